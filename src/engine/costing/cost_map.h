// The classes of charge of area codes, in a table of their own that nothing else reads.
// All functions work in continue-on-error mode: what the database refuses is passed over.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tallix {

struct CostMapRow {
    std::string area;    ///< the area code
    std::string charge;  ///< L local, N national, M mobile, P premium; may be empty

    friend bool operator==(const CostMapRow&, const CostMapRow&) = default;
};

/// Reads the table in its stored order.
std::vector<CostMapRow> LoadCostMap(const Session& session);

/// Appends a row for each code of the area code table and charges as many rows, counted from
/// the top of the list, as local calls.
void AppendAreaCodes(const Session& session, std::vector<CostMapRow>& rows);

/// Empties the table and checks the charge of each row. Returns false at the first one that
/// is not one character long, whatever the letter. No row is added: each round updates the
/// first record of the table, and has no effect on an empty one.
bool SaveCostMap(const Session& session, const std::vector<CostMapRow>& rows);

}  // namespace tallix
