#include "backup/automated_backup.h"

#include "backup/backup_format.h"
#include "session/database.h"

namespace tallix {

void WriteAutomatedBackup(Application& application) {
    BackupWriter writer(application.folder / kAutomatedBackupName, application.events);
    OpenDatabase(application.session);
    for (const BackupTable& table : BackupTables()) writer.WriteTable(application.session, table);
    writer.Close();
    CloseDatabase(application.session);
}

}  // namespace tallix
