// Defining schedules: the folder of the definitions is their list, and the operating
// system's task scheduler keeps one task for each, which starts this program with the
// path of the definition.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scheduling/scheduled_report.h"
#include "session/application.h"

namespace tallix {

/// The frequencies as the task scheduler names them.
inline constexpr std::array<std::string_view, 4> kFrequencies = {"Hourly", "Daily", "Weekly", "Monthly"};

/// What a schedule can pass to its report, in the order of its file.
enum class Parameter { Account, Duration, Date, Extension, Site, TimeStart, TimeFinish };
inline constexpr std::size_t kParameters = 7;

enum class Delivery { ToFolder, ByMail };

/// Whether a schedule is saved for the first time or replaces one of the same name.
enum class SaveMode { New, Replace };

/// A schedule as a person defines it.
struct Schedule {
    std::string name;
    std::string report;          ///< name of a preset report
    std::string_view frequency;  ///< one of kFrequencies; empty where none is chosen
    Delivery delivery = Delivery::ToFolder;
    std::string location;                             ///< folder that ends with "\"
    std::array<std::string, kParameters> parameters;  ///< by Parameter
};

/// The preset reports to choose from: files "STD_" + name + ".SRT".
std::vector<std::string> ListPresetReports(const Application& application);

/// The names of the schedules in the order of their files.
std::vector<std::string> ListSchedules(const Application& application);

/// Which parameters a preset report can use: those whose key is exactly "True". Both
/// times share one key. A report that does not exist can use none.
std::array<bool, kParameters> UsableParameters(const Application& application, std::string_view report);

/// The definition of a schedule; empty texts where it cannot be read.
ScheduledReport ReadSchedule(const Application& application, std::string_view name);

/// Why a schedule cannot be saved; nothing where it can.
std::optional<Message> RefusalOf(const Schedule& schedule);

/// Writes the definition, creates the task of the operating system and logs it. Replacing
/// deletes the old task first. Failures are not reported. A name that is not a valid file
/// name gets no definition.
void SaveSchedule(Application& application, const Schedule& schedule, SaveMode mode);

/// Deletes the definition and the task.
void DeleteSchedule(Application& application, std::string_view name);

}  // namespace tallix
