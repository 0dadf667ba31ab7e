#include "custody/automated_backup.h"

#include "custody/backup_format.h"
#include "foundation/database.h"

namespace tallix {

void WriteAutomatedBackup(Application& application) {
    BackupWriter writer(application.folder / kAutomatedBackupName, application.events);
    OpenDatabase(application.session);
    for (const BackupTable& table : BackupTables()) writer.WriteTable(application.session, table);
    writer.Close();
    CloseDatabase(application.session);
}

}  // namespace tallix
