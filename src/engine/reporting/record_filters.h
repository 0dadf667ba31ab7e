// The tests that each fetched call must pass before it becomes a row: date, time of
// day, office hours, and a number that is there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "database/database_scope.h"
#include "database/rows.h"
#include "reporting/run_description.h"

namespace tallix {

enum class TimeRule {
    BothBounds,  ///< applies when both times are given; each bound is exclusive
    Schedule,    ///< applies when either is given; a missing end keeps nothing
};

/// What happens to a call without a dialled number.
enum class BlankNumbers { Kept, Dropped };

struct FilterRules {
    TimeRule time = TimeRule::BothBounds;
    BlankNumbers blankNumbers = BlankNumbers::Kept;
};

/// The two settings, such as "08:30". An empty opening time keeps no call.
struct OfficeHours {
    std::string_view opens;
    std::string_view closes;
};

class RecordFilters {
public:
    /// The columns are those of `calls`. Without `hours` calls of the whole day pass.
    RecordFilters(const ado::Rows& calls, const FilterRules& rules, const RunInputs& inputs,
                  const std::optional<OfficeHours>& hours);

    /// Whether a call of `calls` goes on. A test of the time that cannot be made passes: the
    /// time of the call is not a time. A call whose date is not a date takes the day of the
    /// call before.
    bool Keeps(ado::Row call);

private:
    bool KeepsDate(ado::Row call);
    bool KeepsTime(ado::Row call) const;
    bool KeepsHours(ado::Row call) const;
    bool WithinSchedule(std::int32_t time) const;
    bool PastStart(std::int32_t time) const { return !from_ || time > *from_; }
    bool BeforeEnd(std::int32_t time) const { return !to_ || time < *to_; }

    const FilterRules rules_;
    const ado::Column date_;
    const ado::Column time_;
    const ado::Column destNum_;
    bool byTime_;
    bool byHours_;
    std::int32_t firstDay_ = 0;  ///< 0 without a bound, and for a bound that is not a date
    std::int32_t lastDay_ = 0;
    std::int32_t day_ = 0;  ///< of the latest call whose date is one
    bool startsEmpty_;
    std::optional<std::int32_t> from_;  ///< nothing where the text is not a time
    std::optional<std::int32_t> to_;
    std::string opens_;
    std::string closes_;
};

}  // namespace tallix
