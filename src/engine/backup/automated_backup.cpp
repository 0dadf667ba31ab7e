#include "backup/automated_backup.h"

#include "backup/backup_format.h"
#include "database/database_scope.h"

namespace tallix {

void WriteAutomatedBackup(Application& application) {
    BackupWriter writer(application.folder / kAutomatedBackupName, application.events);
    const DatabaseScope database(application.session.database);
    for (const BackupTable& table : BackupTables()) writer.WriteTable(database, table);
    writer.Close();
}

}  // namespace tallix
