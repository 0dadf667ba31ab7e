// A bar chart as HTML, of nested tables alone. Ten groups of nine bars, a group to a
// record: field 0 is its label, fields 1 to 9 are percentages.
#pragma once

#include <string>

#include "database/recordset.h"

namespace tallix {

/// The chart of the ten records from the current one on; `calls` is moved behind them.
/// A value that is not there leaves a gap, and so do missing records. `height` and
/// `barWidth` are in pixels. Throws DatabaseError for a set with fewer than ten fields.
std::string BuildBarGraph(ado::Recordset& calls, int height, int barWidth);

}  // namespace tallix
