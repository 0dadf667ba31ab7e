#include "backup/backup_task.h"

#include "session/batch_run.h"

namespace tallix {
namespace {

constexpr std::string_view kTaskName = "Backup TALLIX";
constexpr std::string_view kTime = "00:04:00";

// The quote that closes the command comes before the argument's own. Reading the line back
// accepts this order.
constexpr std::string_view kArgument = R"(\"Backup"\")";

}  // namespace

void CreateBackupTask(Application& application) {
    RunBatch(application, "CreateBKP.bat", CreateTaskLine(application, kTaskName, "Daily", kTime, kArgument));
}

void DeleteBackupTask(Application& application) {
    RunBatch(application, "DeleteBKP.bat", DeleteTaskLine(kTaskName));
}

}  // namespace tallix
