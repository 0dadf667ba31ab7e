// Which columns a report shows: the labels of its heads and the cells of its rows, as
// two lists, because their orders differ.
#pragma once

#include <string_view>
#include <vector>

#include "reporting/catalogue.h"
#include "reporting/report_settings.h"

namespace tallix {

/// What a cell shows. Each kind has its rule in reporting/row_resolution.h.
enum class Cell {
    Date,
    Time,
    Extension,
    Name,
    Duration,
    SummedDuration,
    NumRings,
    Forward,
    Account,
    DestNum,
    OrigNum,
    Area,
    Trunk,
    Site,
    Country,
    Cost,
};

/// The cells of a row, left to right. The called number comes before the calling one,
/// while the heads have it the other way round: with both shown, each column stands
/// under the other's label. Readers of the reports rely on the order of both.
std::vector<Cell> CellsOf(const ReportFlags& flags, NumberTable numbers);

/// The labels of the heads, left to right.
std::vector<std::string_view> HeadsOf(const ReportFlags& flags, NumberTable numbers);

}  // namespace tallix
