// What a run is to do, decided by the text after the program's name.
#pragma once

#include <string>
#include <string_view>

namespace tallix {

enum class StartKind {
    Interactive,      ///< an empty command line: a person at the screen
    ScheduledReport,  ///< the path of a scheduled report definition
    Backup,           ///< the exact word "Backup"
    Nothing,          ///< any other text: the run ends without a word
};

struct RunRequest {
    StartKind kind = StartKind::Nothing;
    std::string pathText;  ///< the definition's path as given, of a scheduled report only
};

/// Reads the raw command line. A path may be between double quotes; it counts only
/// when its last four characters are ".SSR" in upper case.
RunRequest DecideRun(std::string_view commandLine);

}  // namespace tallix
