// The backup that a person asks for: the chosen groups of tables in one file.
#pragma once

#include <filesystem>
#include <fstream>
#include <set>

#include "backup/backup_format.h"
#include "session/application.h"

namespace tallix {

/// The one file that the window may write. A restore takes it and keeps it until the
/// program ends, so that no backup can be made after a restore in the same run.
class BackupChannel {
public:
    /// Cuts the file to nothing and holds it open. A channel that is held already keeps
    /// its file and leaves this one alone; a file that cannot be made is passed over.
    void Hold(const std::filesystem::path& file);

    /// Throws std::runtime_error while a file is held.
    void RequireFree() const;

private:
    std::ofstream held_;
};

/// Follows a backup. A module is one chosen group.
class BackupProgress {
public:
    virtual ~BackupProgress() = default;
    virtual void ShowOverall(std::size_t done, std::size_t groups) = 0;
    virtual void ShowModule(std::int64_t row, std::int64_t rows) = 0;
    virtual void ClearModule() = 0;
};

/// Writes the tables of the chosen groups to the file, replacing it. Throws what stopped
/// it: DatabaseError, ConversionError for a raw line too short to be cut, and
/// std::runtime_error for the file. The file is then left as far as it was written.
void WriteBackup(Application& application, const BackupChannel& channel, const std::filesystem::path& file,
                 const std::set<BackupGroup>& groups, BackupProgress& progress);

}  // namespace tallix
