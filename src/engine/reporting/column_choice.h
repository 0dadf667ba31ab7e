// Which columns a preset report shows.
#pragma once

#include <string_view>
#include <vector>

#include "reporting/catalogue.h"
#include "reporting/report_columns.h"
#include "reporting/report_settings.h"

namespace tallix {

/// The columns of a row, left to right.
std::vector<const ReportColumn*> ColumnsOf(const ReportFlags& flags, NumberTable numbers);

/// The labels of the heads, left to right.
std::vector<std::string_view> HeadsOf(const ReportFlags& flags, NumberTable numbers);

}  // namespace tallix
