#include "session/batch_run.h"

#include <fmt/format.h>

#include <chrono>
#include <system_error>

#include "compat/batch_file.h"
#include "platform/file_lock.h"
#include "platform/whole_file.h"

namespace tallix {
namespace {

constexpr mode_t kMode = 0644;

std::chrono::weekday WeekdayOf(const DateTime& moment) {
    return std::chrono::sys_days(std::chrono::year(moment.year) / moment.month / moment.day);
}

}  // namespace

// The lock is not held while events run, since their handlers may come here again. The
// file that is deleted at the end may be another window's, which has run by then.
void RunBatch(Application& application, std::string_view fileName, std::string_view line) {
    const std::filesystem::path file = application.folder / fileName;
    const std::filesystem::path lockFile = Beside(file, ".run");
    {
        const FileLock lock(lockFile);
        const auto text = [&](const std::string&) { return std::string(line) + "\r\n"; };
        if (!lock.IsHeld() || !RewriteWholeFile(file, kMode, text)) return;
        RunBatchFile(file, {application.folder, WeekdayOf(application.clock.Now())});
    }
    application.events.Serve();
    const FileLock lock(lockFile);
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

std::string CreateTaskLine(const Application& application, std::string_view name, std::string_view frequency,
                           std::string_view time, std::string_view arguments) {
    return fmt::format(
        R"(schtasks /Create /RU "System" /SC {} /ST {} /TN "{}" /TR "\"{}\Tallix_Reports.exe\" {})",
        frequency, time, name, application.folder.string(), arguments);
}

std::string DeleteTaskLine(std::string_view name) {
    return fmt::format("SCHTASKS /Delete /TN \"{}\"", name);
}

}  // namespace tallix
