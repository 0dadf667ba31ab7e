// The task of the operating system that writes the automated backup every night.
#pragma once

#include "session/application.h"

namespace tallix {

/// Runs the program with the argument "Backup" daily at 00:04. Replaces an existing task.
/// Failures are not reported.
void CreateBackupTask(Application& application);

/// Removes that task.
void DeleteBackupTask(Application& application);

}  // namespace tallix
