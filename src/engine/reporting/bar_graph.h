// A bar chart as HTML, of nested tables alone. Ten groups of nine bars, one group per
// record: field 0 is its label, fields 1 to 9 are percentages.
#pragma once

#include <cstdint>
#include <string>

#include "database/database_scope.h"
#include "database/rows.h"

namespace tallix {

/// In pixels.
struct GraphSize {
    int height;
    int barWidth;
};

/// The chart of ten records, of which `first`, counted from 0, is the first. A value that is
/// not there leaves a gap, and so do missing records. Throws DatabaseError for calls with
/// fewer than ten fields.
std::string BuildBarGraph(const ado::Rows& calls, std::int64_t first, const GraphSize& size);

}  // namespace tallix
