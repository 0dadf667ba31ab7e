// The way in which the program changes the tasks of the operating system: a batch file
// of one line in the application folder that is written, run and deleted.
#pragma once

#include <string>
#include <string_view>

#include "session/application.h"

namespace tallix {

/// Writes, runs and deletes a batch file; waiting events run in between. Its outcome is not
/// reported, and a folder that cannot be written to has none. Two windows may use
/// one name at a time.
void RunBatch(Application& application, std::string_view fileName, std::string_view line);

/// The line that creates a task which runs this program at its frequency ("Daily") from
/// `time` ("00:01:00") on. `arguments` are quoted as the line needs them and end with the
/// quote that closes the command.
std::string CreateTaskLine(const Application& application, std::string_view name, std::string_view frequency,
                           std::string_view time, std::string_view arguments);

/// The line that deletes a task.
std::string DeleteTaskLine(std::string_view name);

}  // namespace tallix
