#include "backup/backup.h"

#include <algorithm>
#include <stdexcept>

#include "backup/serving_database.h"
#include "database/database_scope.h"
#include "session/access_log.h"

namespace tallix {
namespace {

bool IsLastOfGroup(const BackupTable& table) {
    const auto& tables = BackupTables();
    const auto isOfGroup = [&](const BackupTable& other) { return other.group == table.group; };
    return &*std::find_if(tables.rbegin(), tables.rend(), isOfGroup) == &table;
}

}  // namespace

void BackupChannel::Hold(const std::filesystem::path& file) {
    if (!held_.is_open()) held_.open(file, std::ios::binary | std::ios::trunc);
}

void BackupChannel::RequireFree() const {
    if (held_.is_open()) throw std::runtime_error("File already open");
}

void WriteBackup(Application& application, const BackupChannel& channel, const std::filesystem::path& file,
                 const std::set<BackupGroup>& groups, BackupProgress& progress) {
    channel.RequireFree();
    progress.ShowOverall(0, groups.size());
    BackupWriter writer(file, application.events);
    const DatabaseScope database = OpenServing(application.events, application.session.database);
    const auto showRow = [&](std::int64_t row, std::int64_t rows) { progress.ShowModule(row, rows); };
    std::size_t done = 0;
    for (const BackupTable& table : BackupTables()) {
        if (!groups.contains(table.group)) continue;
        writer.WriteTable(database, table, showRow);
        if (IsLastOfGroup(table)) progress.ShowOverall(++done, groups.size());
        progress.ClearModule();
    }
    writer.Close();
}

void LogBackup(const Application& application, const std::filesystem::path& file) {
    const Session& session = application.session;
    WriteLog(DatabaseScope(session.database), session, application.clock,
             "Backup Created - " + file.string());
}

}  // namespace tallix
