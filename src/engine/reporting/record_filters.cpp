#include "reporting/record_filters.h"

#include <compare>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {

namespace {

bool HasTimeTest(const RunDescription& run) {
    const bool from = !run.inputs.timeFrom.empty();
    const bool to = !run.inputs.timeTo.empty();
    return run.rules.time == TimeRule::BothBounds ? from && to : from || to;
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

// Throws for a time that is none and for a column that the statement did not return.
std::int32_t TimeOf(const ado::Recordset& calls, const CallColumns& columns) {
    return NumberOf(calls.Text(columns.time));
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

RecordFilters::RecordFilters(const RunDescription& run, bool byHours, std::string_view opens,
                             std::string_view closes)
    : timeRule_(run.rules.time),
      dropsBlankNumbers_(run.rules.dropsBlankNumbers),
      byTime_(HasTimeTest(run)),
      byHours_(byHours),
      firstDay_(Bound(run.inputs.startDate)),
      lastDay_(Bound(run.inputs.endDate)),
      startsEmpty_(run.inputs.timeFrom.empty()),
      from_(Bounding(run.inputs.timeFrom)),
      to_(Bounding(run.inputs.timeTo)),
      opens_(Replace(opens, ":", "")),
      closes_(Replace(closes, ":", "")) {}

bool RecordFilters::Keeps(const ado::Recordset& calls, const CallColumns& columns) {
    return KeepsDate(calls, columns) && KeepsTime(calls, columns) && KeepsHours(calls, columns) &&
           !(dropsBlankNumbers_ && columns.destNum && Trim(FieldText(calls, columns.destNum)).empty());
}

bool RecordFilters::KeepsDate(const ado::Recordset& calls, const CallColumns& columns) {
    if (firstDay_ == 0 && lastDay_ == 0) return true;
    Attempt([&] { day_ = DayNumber(FieldText(calls, columns.date)); });
    return (firstDay_ == 0 || day_ >= firstDay_) && (lastDay_ == 0 || day_ <= lastDay_);
}

bool RecordFilters::KeepsTime(const ado::Recordset& calls, const CallColumns& columns) const {
    if (!byTime_) return true;
    return TestOrEnter([&] {
        const std::int32_t time = TimeOf(calls, columns);
        return timeRule_ == TimeRule::Schedule ? WithinSchedule(time) : PastStart(time) && BeforeEnd(time);
    });
}

// Past the start, the end decides; at or before the start only a schedule without one
// goes on to the end.
bool RecordFilters::WithinSchedule(std::int32_t time) const {
    return (PastStart(time) || startsEmpty_) && BeforeEnd(time);
}

// Only calls before the opening time stay. The second test, on closing, adds nothing to
// the first and is part of the rule all the same.
bool RecordFilters::KeepsHours(const ado::Recordset& calls, const CallColumns& columns) const {
    if (!byHours_ || !columns.time) return true;
    const std::string_view time = FieldText(calls, columns.time);
    const bool beforeOpening = std::is_lt(CompareDigits(time, opens_));
    return beforeOpening && (std::is_gt(CompareDigits(time, closes_)) || beforeOpening);
}

}  // namespace tallix
