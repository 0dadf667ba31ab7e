// The backup that a person asks for: the chosen groups of tables in one file.
#pragma once

#include <filesystem>
#include <fstream>
#include <set>

#include "backup/backup_format.h"
#include "session/application.h"

namespace tallix {

/// The output file of the window, one per run of the program. A restore holds it until the
/// program ends, so that no backup can be made after a restore in the same run.
class BackupChannel {
public:
    /// Empties the file and holds it open. Has no effect on a channel that holds a file
    /// already. A file that cannot be created is passed over.
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
/// std::runtime_error for the file. The file then keeps what was written until then.
void WriteBackup(Application& application, const BackupChannel& channel, const std::filesystem::path& file,
                 const std::set<BackupGroup>& groups, BackupProgress& progress);

/// Adds the backup to the access log. Throws DatabaseError.
void LogBackup(const Application& application, const std::filesystem::path& file);

}  // namespace tallix
