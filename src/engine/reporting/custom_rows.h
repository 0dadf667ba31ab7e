// The rows of a custom report: what keeps a call out of it, and the cells of a call that
// stays. A filter applies only where its field is shown.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "database/recordset.h"
#include "host/event_queue.h"
#include "reporting/custom_reports.h"
#include "reporting/key_lookup.h"
#include "session/session.h"

namespace tallix {

/// The labels of the heads, left to right.
std::vector<std::string_view> HeadsOf(const CustomReport& report);

class CustomRows {
public:
    /// `session`, with its connection open, `events` and `report` must outlive the rows.
    /// The columns are those of `calls`.
    CustomRows(Session& session, EventQueue& events, const CustomReport& report, const ado::Recordset& calls);

    /// Whether the current call stays. A test that cannot be made, as with a date that is
    /// none, is passed.
    bool Keeps(const ado::Recordset& calls);

    /// The cells of the call that Keeps let through. They live until its next call.
    const std::vector<std::string_view>& Cells() const { return cells_; }

private:
    std::string_view Text(const ado::Recordset& calls, CustomField field) const;
    bool Add(CustomField field, const ado::Recordset& calls);
    bool AddName(const ado::Recordset& calls);
    bool AddDate(std::string_view date);
    bool AddDuration(std::string_view duration);
    bool AddWanted(std::string_view text, const std::string& wanted);
    bool AddText(std::string_view text);

    const CustomReport& report_;
    std::vector<CustomField> fields_;  ///< those shown
    std::array<ado::Column, kCustomFields> columns_;
    KeyLookup names_;
    bool boundsAreDates_ = true;
    std::int32_t start_ = std::numeric_limits<std::int32_t>::min();
    std::int32_t end_ = std::numeric_limits<std::int32_t>::max();
    std::vector<std::string_view> cells_;
};

}  // namespace tallix
