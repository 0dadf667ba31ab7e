// The unattended dump of the operating system's backup task.
#pragma once

#include "session/application.h"

namespace tallix {

inline constexpr std::string_view kAutomatedBackupName = "Automated_Backup.sbk";

/// Writes all six tables to kAutomatedBackupName in the application folder, replacing
/// the file. Shows and logs nothing. Throws what stopped it; the file then keeps what
/// was written until then.
void WriteAutomatedBackup(Application& application);

}  // namespace tallix
