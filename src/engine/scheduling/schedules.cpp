#include "scheduling/schedules.h"

#include <fmt/format.h>

#include <algorithm>
#include <system_error>

#include "compat/file_list.h"
#include "compat/ini_file.h"
#include "platform/paths.h"
#include "platform/task_scheduler.h"
#include "platform/whole_file.h"
#include "reporting/catalogue.h"
#include "session/access_log.h"
#include "session/batch_run.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kDefinitionMode = 0644;
constexpr std::string_view kEnding = ".SSR";
constexpr std::string_view kPresetPrefix = "STD_";
constexpr std::string_view kTime = "00:01:00";

/// The key of a parameter in a definition, and the key of a report file that allows it.
struct ParameterKeys {
    std::string_view definition;
    std::string_view report;
};

constexpr std::array<ParameterKeys, kParameters> kKeys = {{{"Account", "Account"},
                                                           {"Duration", "Duration"},
                                                           {"Date", "Date"},
                                                           {"Extension", "Extension"},
                                                           {"Site", "Site"},
                                                           {"TimeS", "Time"},
                                                           {"TimeF", "Time"}}};

fs::path Folder(const Application& application) {
    return application.folder / "Reports" / "Scheduled";
}

fs::path DefinitionFile(const Application& application, std::string_view name) {
    return Folder(application) / (std::string(name) + std::string(kEnding));
}

std::string TaskName(std::string_view name) {
    return "Tallix_" + std::string(name);
}

std::string DefinitionText(const Session& session, const Schedule& schedule) {
    std::string text = fmt::format(
        ";Tallix - Scheduled Report\r\n;\r\n[General]\r\nReport=Standard\\STD_{}.SRT\r\nUser={}\r\n"
        "Output={}\r\nOutputLocation={}\r\n",
        schedule.report, session.CurrentUser, schedule.delivery == Delivery::ToFolder ? "File" : "Email",
        schedule.location);
    for (std::size_t i = 0; i < kParameters; ++i) {
        text += fmt::format("{}={}\r\n", kKeys.at(i).definition, schedule.parameters.at(i));
    }
    return text;
}

void CreateTaskOf(Application& application, const Schedule& schedule) {
    const std::string definition =
        fmt::format("{}\\Reports\\Scheduled\\{}{}", application.folder.string(), schedule.name, kEnding);
    RunBatch(application, "Create.bat",
             CreateTaskLine(application, TaskName(schedule.name), schedule.frequency, kTime,
                            fmt::format(R"(\"{}\"")", definition)));
}

void DeleteTaskOf(Application& application, std::string_view name) {
    RunBatch(application, "Delete.bat", DeleteTaskLine(TaskName(name)));
}

}  // namespace

std::vector<std::string> ListPresetReports(const Application& application) {
    std::vector<std::string> names;
    for (const std::string& file : ListFileNames(PresetReportsFolder(application.folder), ".SRT")) {
        if (EqualNoCase(Left(file, kPresetPrefix.size()), kPresetPrefix)) names.push_back(ReportNameOf(file));
    }
    return names;
}

std::vector<std::string> ListSchedules(const Application& application) {
    std::vector<std::string> names = ListFileNames(Folder(application), kEnding);
    for (std::string& name : names) name.resize(name.size() - kEnding.size());
    return names;
}

std::array<bool, kParameters> UsableParameters(const Application& application, std::string_view report) {
    const IniFile keys(FindIgnoringCase(PresetReportFile(application.folder, report)));
    std::array<bool, kParameters> usable{};
    std::transform(kKeys.begin(), kKeys.end(), usable.begin(),
                   [&](const ParameterKeys& key) { return keys.Read("Options", key.report) == "True"; });
    return usable;
}

ScheduledReport ReadSchedule(const Application& application, std::string_view name) {
    return ReadScheduledReport(FindIgnoringCase(DefinitionFile(application, name)));
}

std::optional<Message> RefusalOf(const Schedule& schedule) {
    const char* lacking = nullptr;
    if (schedule.report.empty()) lacking = "selected a report to be run";
    if (schedule.frequency.empty()) lacking = "selected a frequency";
    if (schedule.name.empty()) lacking = "entered a name for this task";
    if (lacking == nullptr) return std::nullopt;
    return Message{"Tallix Reports", fmt::format("You have not {}. Schedule Not Saved!", lacking),
                   MessageIcon::Exclamation};
}

void SaveSchedule(Application& application, const Schedule& schedule, SaveMode mode) {
    if (IsTaskName(schedule.name)) {
        RewriteWholeFile(DefinitionFile(application, schedule.name), kDefinitionMode,
                         [&](const std::string&) { return DefinitionText(application.session, schedule); });
    }
    if (mode == SaveMode::Replace) DeleteTaskOf(application, schedule.name);
    CreateTaskOf(application, schedule);
    LogOnItsOwn(application.session, application.clock, "Saved Scheduled Reports");
}

void DeleteSchedule(Application& application, std::string_view name) {
    std::error_code ignored;
    if (IsTaskName(name)) fs::remove(FindIgnoringCase(DefinitionFile(application, name)), ignored);
    DeleteTaskOf(application, name);
}

}  // namespace tallix
