// The task of the operating system that writes the automated backup every night.
#pragma once

#include "session/application.h"

namespace tallix {

/// Has the program run with the argument "Backup" daily at 00:04. A task that is there
/// already gives way to the new one. Nothing tells whether it worked.
void CreateBackupTask(Application& application);

/// Removes that task.
void DeleteBackupTask(Application& application);

}  // namespace tallix
