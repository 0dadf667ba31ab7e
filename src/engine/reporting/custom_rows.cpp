#include "reporting/custom_rows.h"

#include "failures/attempt.h"
#include "reporting/field_text.h"
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

// A flag that is not a number cannot be compared, and passes.
bool IsSet(std::string_view flag) {
    return flag == "1" ||
           (!flag.empty() && flag != "0" && TestOrEnter([&] { return ToInteger32(flag) == 1; }));
}

}  // namespace

CustomRows::CustomRows(const DatabaseScope& database, EventQueue& events, const CustomReport& report,
                       const ado::Rows& calls)
    : report_(report), names_(database, events, kNames) {
    boundsAreDates_ = Attempt([&] {
        if (!report.startDate.empty()) start_ = DayNumber(report.startDate);
        if (!report.endDate.empty()) end_ = DayNumber(report.endDate);
    });
    for (const ReportColumn* column : ShownColumns(report)) {
        steps_.push_back({column->custom.cell, calls.Find(column->source)});
    }
}

Verdict CustomRows::Judge(ado::Row call) {
    cells_.clear();
    for (const Step& step : steps_) {
        if (!Add(step.cell, FieldText(call, step.source))) return Verdict::NoRow;
    }
    return Verdict::Row;
}

bool CustomRows::Add(CustomCell cell, std::string_view text) {
    switch (cell) {
        case CustomCell::Name:
            return AddName(text);
        case CustomCell::Date:
            return AddDate(text);
        case CustomCell::Duration:
            return AddDuration(text);
        case CustomCell::Extension:
            return AddWanted(text, report_.extension);
        case CustomCell::Account:
            return AddWanted(text, report_.account);
        case CustomCell::YesForOne:
            return AddText(IsSet(text) ? kYes : kNo);
        case CustomCell::NoForZero:
            return AddText(text == "0" ? kNo : kYes);
        case CustomCell::Field:
            break;
    }
    return AddText(text);
}

bool CustomRows::AddText(std::string_view text) {
    cells_.push_back(text.empty() ? kBlankCell : text);
    return true;
}

bool CustomRows::AddName(std::string_view extension) {
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
    if (report_.durationTest == DurationTest::None) return true;
    const bool isLonger = report_.durationTest == DurationTest::Greater;
    const bool kept = isLonger ? duration > report_.duration : duration < report_.duration;
    return kept && AddText(duration);
}

bool CustomRows::AddWanted(std::string_view text, const std::string& wanted) {
    return (wanted.empty() || text == wanted) && AddText(text);
}

}  // namespace tallix
