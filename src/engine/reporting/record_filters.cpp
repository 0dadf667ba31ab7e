#include "reporting/record_filters.h"

#include <compare>

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "reporting/field_text.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

bool HasTimeTest(TimeRule rule, const RunInputs& inputs) {
    const bool from = !inputs.timeFrom.empty();
    const bool to = !inputs.timeTo.empty();
    return rule == TimeRule::BothBounds ? from && to : from || to;
}

std::int32_t Bound(const std::string& date) {
    std::int32_t day = 0;
    if (!date.empty()) Attempt([&] { day = DayNumber(date); });
    return day;
}

std::int32_t NumberOf(std::string_view time) {
    return time.empty() ? 0 : TimeNo(time);
}

std::optional<std::int32_t> Bounding(const std::string& time) {
    std::optional<std::int32_t> number;
    Attempt([&] { number = NumberOf(time); });
    return number;
}

// Compares as if every ":" of `left` were gone; `right` has none.
std::strong_ordering CompareDigits(std::string_view left, std::string_view right) {
    std::size_t place = 0;
    for (const char c : left) {
        if (c == ':') continue;
        if (place == right.size()) return std::strong_ordering::greater;
        const auto ours = static_cast<unsigned char>(c);
        const auto theirs = static_cast<unsigned char>(right[place++]);
        if (ours != theirs) return ours <=> theirs;
    }
    return place == right.size() ? std::strong_ordering::equal : std::strong_ordering::less;
}

}  // namespace

RecordFilters::RecordFilters(const ado::Rows& calls, const FilterRules& rules, const RunInputs& inputs,
                             const std::optional<OfficeHours>& hours)
    : rules_(rules),
      date_(calls.Find("Date")),
      time_(calls.Find("Time")),
      destNum_(calls.Find("DestNum")),
      byTime_(HasTimeTest(rules.time, inputs)),
      byHours_(hours.has_value()),
      firstDay_(Bound(inputs.startDate)),
      lastDay_(Bound(inputs.endDate)),
      startsEmpty_(inputs.timeFrom.empty()),
      from_(Bounding(inputs.timeFrom)),
      to_(Bounding(inputs.timeTo)),
      opens_(hours ? Replace(hours->opens, ":", "") : ""),
      closes_(hours ? Replace(hours->closes, ":", "") : "") {}

bool RecordFilters::Keeps(ado::Row call) {
    if (!KeepsDate(call) || !KeepsTime(call) || !KeepsHours(call)) return false;
    return rules_.blankNumbers == BlankNumbers::Kept || !destNum_ || !Trim(FieldText(call, destNum_)).empty();
}

bool RecordFilters::KeepsDate(ado::Row call) {
    if (firstDay_ == 0 && lastDay_ == 0) return true;
    Attempt([&] { day_ = DayNumber(FieldText(call, date_)); });
    return (firstDay_ == 0 || day_ >= firstDay_) && (lastDay_ == 0 || day_ <= lastDay_);
}

// A column that the statement did not return fails the test as well.
bool RecordFilters::KeepsTime(ado::Row call) const {
    if (!byTime_) return true;
    return TestOrEnter([&] {
        const std::int32_t time = NumberOf(call.Text(time_));
        return rules_.time == TimeRule::Schedule ? WithinSchedule(time) : PastStart(time) && BeforeEnd(time);
    });
}

// After the start, the end decides. At or before the start, only a schedule without a
// start goes on to the end.
bool RecordFilters::WithinSchedule(std::int32_t time) const {
    return (PastStart(time) || startsEmpty_) && BeforeEnd(time);
}

// Only calls before the opening time stay. The second test, on closing, adds nothing to
// the first and is part of the rule all the same.
bool RecordFilters::KeepsHours(ado::Row call) const {
    if (!byHours_ || !time_) return true;
    const std::string_view time = FieldText(call, time_);
    const bool beforeOpening = std::is_lt(CompareDigits(time, opens_));
    return beforeOpening && (std::is_gt(CompareDigits(time, closes_)) || beforeOpening);
}

}  // namespace tallix
