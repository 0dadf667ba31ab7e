// The classes of charge of area codes, in a table of their own that nothing else reads.
// Continue-on-error throughout: what the database refuses is passed over.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tallix {

/// An area code and its charge: L local, N national, M mobile, P premium. A row may lack
/// its charge.
using CostMapRow = std::vector<std::string>;

/// Reads the table in its stored order.
std::vector<CostMapRow> LoadCostMap(Session& session);

/// Appends a row for each code of the area code table and marks as many rows, counted from
/// the top of the list, as local calls.
void AppendAreaCodes(Session& session, std::vector<CostMapRow>& rows);

/// Empties the table and looks at each row's charge. Returns false at the first one that
/// is not one character long, whatever the letter. No row is added: each round goes to
/// whatever record the emptied table still has, and passes over that there is none.
bool SaveCostMap(Session& session, const std::vector<CostMapRow>& rows);

}  // namespace tallix
