// The tests that each fetched call must pass before it becomes a row: date, time of
// day, office hours, and a number that is there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "database/recordset.h"
#include "reporting/call_columns.h"
#include "reporting/run_description.h"

namespace tallix {

class RecordFilters {
public:
    /// `opens` and `closes` are the office hours ("08:30"), used where `byHours` is set.
    /// An empty opening time keeps no call.
    RecordFilters(const RunDescription& run, bool byHours, std::string_view opens, std::string_view closes);

    /// Whether the current call of `calls` goes on. A test of the time that cannot be made,
    /// as with a time that is no time, is passed; a call whose date is no date takes the day
    /// of the call before.
    bool Keeps(const ado::Recordset& calls, const CallColumns& columns);

private:
    bool KeepsDate(const ado::Recordset& calls, const CallColumns& columns);
    bool KeepsTime(const ado::Recordset& calls, const CallColumns& columns) const;
    bool KeepsHours(const ado::Recordset& calls, const CallColumns& columns) const;
    bool WithinSchedule(std::int32_t time) const;
    bool PastStart(std::int32_t time) const { return !from_ || time > *from_; }
    bool BeforeEnd(std::int32_t time) const { return !to_ || time < *to_; }

    TimeRule timeRule_;
    bool dropsBlankNumbers_;
    bool byTime_;
    bool byHours_;
    std::int32_t firstDay_ = 0;  ///< 0 for no bound, as well as a bound that is no date
    std::int32_t lastDay_ = 0;
    std::int32_t day_ = 0;  ///< of the latest call whose date is one
    bool startsEmpty_;
    std::optional<std::int32_t> from_;  ///< nothing where the text is no time
    std::optional<std::int32_t> to_;
    std::string opens_;
    std::string closes_;
};

}  // namespace tallix
