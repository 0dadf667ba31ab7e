#include "backup/backup_task.h"

#include "session/batch_run.h"

namespace tallix {
namespace {

constexpr std::string_view kTaskName = "Backup TALLIX";
constexpr std::string_view kTime = "00:04:00";

// The quote that closes the command stands ahead of the argument's own; a reader of such
// lines takes both for what they are meant to be.
constexpr std::string_view kArgument = R"(\"Backup"\")";

}  // namespace

void CreateBackupTask(Application& application) {
    RunBatch(application, "CreateBKP.bat", CreateTaskLine(application, kTaskName, "Daily", kTime, kArgument));
}

void DeleteBackupTask(Application& application) {
    RunBatch(application, "DeleteBKP.bat", DeleteTaskLine(kTaskName));
}

}  // namespace tallix
