// Replays a dump into the database: executes the lines of the chosen groups. Nothing is
// deleted, and every failure is passed over.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string_view>

#include "backup/backup_format.h"
#include "session/application.h"

namespace tallix {

/// The group that a line belongs to, by its first characters; nothing for a line that is
/// never executed. The rows of the telephone system begin like calls and belong to them.
std::optional<BackupGroup> GroupOfLine(std::string_view line);

/// Reads every line of the file, calls `nextLine` before each, and executes those of the
/// chosen groups with every apostrophe turned into the server's literal delimiter.
/// A missing file has no lines.
void ReplayBackup(Application& application, const std::filesystem::path& file,
                  const std::set<BackupGroup>& groups, const std::function<void()>& nextLine);

}  // namespace tallix
