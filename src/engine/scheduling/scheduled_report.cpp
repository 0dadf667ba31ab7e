#include "scheduling/scheduled_report.h"

#include "compat/ini_file.h"

namespace tallix {

ScheduledReport ReadScheduledReport(const std::filesystem::path& file) {
    const IniFile definition(file);
    const auto key = [&](std::string_view name) { return definition.Read("General", name); };
    return {.report = key("Report"),
            .user = key("User"),
            .output = key("Output"),
            .outputLocation = key("OutputLocation"),
            .account = key("Account"),
            .extension = key("Extension"),
            .site = key("Site"),
            .timeStart = key("TimeS"),
            .timeFinish = key("TimeF")};
}

}  // namespace tallix
