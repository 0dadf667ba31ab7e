// The pages before and after a report, each a small HTML file in the folder of the
// report's. They are written and left there: neither the screen nor the printer
// shows them.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "reporting/cover_settings.h"
#include "reporting/report_settings.h"
#include "session/application.h"

namespace tallix {

/// The names of the two files in the folder of the working files.
inline constexpr std::string_view kCoverName = "rptcov.tmp";
inline constexpr std::string_view kBackPageName = "rptbac.tmp";

struct CoverDescription {
    const CoverSettings& settings;
    const ReportColours& colours;
    std::string reportName;
    std::string applicationFolder;  ///< with the logo
    Version version;
    DateTime printed;
};

/// Both replace the file.
void WriteCover(const std::filesystem::path& file, const CoverDescription& cover);
void WriteBackPage(const std::filesystem::path& file, const CoverDescription& cover);

}  // namespace tallix
