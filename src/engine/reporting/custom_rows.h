// The rows of a custom report: what keeps a call out of it, and the cells of a call that
// stays. A filter applies only where its field is shown.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_scope.h"
#include "host/event_queue.h"
#include "reporting/custom_reports.h"
#include "reporting/key_lookup.h"
#include "reporting/record_walk.h"

namespace tallix {

class CustomRows {
public:
    /// `database`, `events` and `report` must outlive the rows. The columns are those of
    /// `calls`.
    CustomRows(const DatabaseScope& database, EventQueue& events, const CustomReport& report,
               const ado::Rows& calls);

    /// Whether a call has a row. A test that cannot be made, as with a date that
    /// is not a date, passes.
    Verdict Judge(ado::Row call);

    /// The cells of the call that Judge let through. They live until its next call.
    const std::vector<std::string_view>& Cells(ado::Row) const { return cells_; }

private:
    struct Step {
        CustomCell cell;
        ado::Column source;
    };

    bool Add(CustomCell cell, std::string_view text);
    bool AddName(std::string_view extension);
    bool AddDate(std::string_view date);
    bool AddDuration(std::string_view duration);
    bool AddWanted(std::string_view text, const std::string& wanted);
    bool AddText(std::string_view text);

    const CustomReport& report_;
    std::vector<Step> steps_;
    KeyLookup names_;
    bool boundsAreDates_ = true;
    std::int32_t start_ = std::numeric_limits<std::int32_t>::min();
    std::int32_t end_ = std::numeric_limits<std::int32_t>::max();
    std::vector<std::string_view> cells_;
};

}  // namespace tallix
