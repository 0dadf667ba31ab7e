// The definition of a scheduled report: an ini file with the extension .SSR, one per
// schedule, that names a preset report, its filters and where the result goes.
#pragma once

#include <filesystem>
#include <string>

namespace tallix {

struct ScheduledReport {
    std::string report;          ///< path of the report file below Reports, with "\"
    std::string user;            ///< who saved the schedule
    std::string output;          ///< "File"; anything else is delivered by mail
    std::string outputLocation;  ///< folder that ends with its separator, for "File"
    std::string account;
    std::string extension;
    std::string site;
    std::string timeStart;
    std::string timeFinish;

    bool DeliversToFile() const { return output == "File"; }
};

/// Reads a definition. A file or key that is missing gives empty texts. The stored
/// `Date` and `Duration` have no effect on a run and are not read.
ScheduledReport ReadScheduledReport(const std::filesystem::path& file);

}  // namespace tallix
