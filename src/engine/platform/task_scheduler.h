// The task scheduler of the operating system: the crontab of the user, in
// which each task is a line that names it and the entry below:
//
//     # Tallix_Calls of the week
//     1 0 * * 2 /usr/bin/env TALLIX_HOME='/srv/tallix' '/srv/tallix/Tallix_Reports' '/srv/...'
//
// All other lines stay as they are. Several processes may change tasks at once.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

enum class TaskFrequency { Hourly, Daily, Weekly, Monthly };

struct Task {
    std::string name{};  ///< unique among the tasks of the user; IsTaskName
    TaskFrequency frequency = TaskFrequency::Daily;
    int hour = 0;  ///< in local time; hourly tasks run at the minute alone
    int minute = 0;
    std::chrono::weekday weekday{};          ///< of a weekly task; a monthly one runs on the first
    std::vector<std::string> environment{};  ///< "NAME=value"
    std::vector<std::string> command{};      ///< kProgramName with its folder, and its arguments
};

/// Whether a text can name a task: not empty, one line, no "/" and no "\".
bool IsTaskName(std::string_view name);

/// Adds the task; it replaces one of the same name. Returns false, with everything as
/// it was, when the scheduler cannot take it: a bad name, a line break, or a command that
/// is longer than the scheduler keeps (998 bytes).
bool CreateTask(const Task& task);

/// Removes the task of that name. Returns false when the crontab cannot be changed.
bool DeleteTask(std::string_view name);

/// The text of a crontab with and without a task: what the two functions above do to it.
std::string WithTask(std::string_view crontab, const Task& task);
std::string WithoutTask(std::string_view crontab, std::string_view name);

}  // namespace tallix
