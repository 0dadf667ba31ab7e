#include "reporting/custom_rows.h"

#include "failures/attempt.h"
#include "reporting/call_columns.h"
#include "reporting/site.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kYes = "Yes";
constexpr std::string_view kNo = "No";

// Calls hold more digits than the extensions' table; as numbers they are the same.
constexpr KeyLookupNames kNames = {.table = "tblextensions",
                                   .statement = "SELECT * FROM tblextensions WHERE ExtensionNo = ",
                                   .key = "ExtensionNo",
                                   .value = "Name",
                                   .form = KeyForm::Bare};

bool IsTrunk(std::string_view extension) {
    return !extension.empty() && (extension.front() == 'T' || extension.front() == 't');
}

// A flag that is no number cannot be compared, and passes.
bool IsSet(std::string_view flag) {
    return flag == "1" ||
           (!flag.empty() && flag != "0" && TestOrEnter([&] { return ToInteger32(flag) == 1; }));
}

}  // namespace

std::vector<std::string_view> HeadsOf(const CustomReport& report) {
    std::vector<std::string_view> heads;
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        if (report.shown[i]) heads.push_back(kCustomFieldNames[i].head);
    }
    return heads;
}

CustomRows::CustomRows(Session& session, EventQueue& events, const CustomReport& report,
                       const ado::Recordset& calls)
    : report_(report), names_(session, events, kNames) {
    boundsAreDates_ = Attempt([&] {
        if (!report.startDate.empty()) start_ = DayNumber(report.startDate);
        if (!report.endDate.empty()) end_ = DayNumber(report.endDate);
    });
    for (std::size_t i = 0; i < kCustomFields; ++i) {
        columns_[i] = calls.Find(kCustomFieldNames[i].column);
        if (report.shown[i]) fields_.push_back(static_cast<CustomField>(i));
    }
}

bool CustomRows::Keeps(const ado::Recordset& calls) {
    cells_.clear();
    for (const CustomField field : fields_) {
        if (!Add(field, calls)) return false;
    }
    return true;
}

std::string_view CustomRows::Text(const ado::Recordset& calls, CustomField field) const {
    return FieldText(calls, columns_[static_cast<std::size_t>(field)]);
}

bool CustomRows::Add(CustomField field, const ado::Recordset& calls) {
    const std::string_view text = Text(calls, field);
    switch (field) {
        case CustomField::ExtensionName:
            return AddName(calls);
        case CustomField::Date:
            return AddDate(text);
        case CustomField::Duration:
            return AddDuration(text);
        case CustomField::Extension:
            return AddWanted(text, report_.extension);
        case CustomField::Account:
            return AddWanted(text, report_.account);
        case CustomField::Internal:
        case CustomField::Speedcall:
        case CustomField::Forward:
            return AddText(IsSet(text) ? kYes : kNo);
        case CustomField::Trunk:
            return AddText(text == "0" ? kNo : kYes);
        default:
            return AddText(text);
    }
}

bool CustomRows::AddText(std::string_view text) {
    cells_.push_back(text.empty() ? kBlankCell : text);
    return true;
}

bool CustomRows::AddName(const ado::Recordset& calls) {
    const std::string_view extension = Text(calls, CustomField::ExtensionName);
    if (IsTrunk(extension)) return false;
    cells_.push_back(names_.Find(extension).value_or(kBlankCell));
    return true;
}

// Both bounds are exclusive: a call of the first or the last day is left out.
bool CustomRows::AddDate(std::string_view date) {
    if (report_.startDate.empty() && report_.endDate.empty()) return AddText(date);
    const bool kept = !boundsAreDates_ || TestOrEnter([&] {
        const std::int32_t day = DayNumber(date);
        return day > start_ && day < end_;
    });
    if (kept) cells_.push_back(date);
    return kept;
}

// With a duration to compare and no way to do it the row is one cell short.
bool CustomRows::AddDuration(std::string_view duration) {
    if (report_.duration.empty()) return AddText(duration);
    if (!report_.greater && !report_.less) return true;
    const bool kept = report_.greater ? duration > report_.duration : duration < report_.duration;
    return kept && AddText(duration);
}

bool CustomRows::AddWanted(std::string_view text, const std::string& wanted) {
    return (wanted.empty() || text == wanted) && AddText(text);
}

}  // namespace tallix
