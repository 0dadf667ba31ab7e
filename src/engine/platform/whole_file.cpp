#include "platform/whole_file.h"

#include <sys/stat.h>

#include <cerrno>
#include <string_view>

#include "platform/descriptor.h"
#include "platform/file_lock.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kPrivate = 0600;
constexpr mode_t kPermissions = 07777;

/// Owner and permissions of the file that is replaced. The owner can be kept by root
/// alone; anybody else's new file is their own.
bool KeepOwnerAndMode(int number, const struct stat& previous) {
    if (previous.st_uid != geteuid() && fchown(number, previous.st_uid, previous.st_gid) != 0 &&
        geteuid() == 0) {
        return false;
    }
    return fchmod(number, previous.st_mode & kPermissions) == 0;
}

/// `previous` is null where no file is replaced.
bool WriteNewFile(const fs::path& file, std::string_view text, mode_t modeWhenNew,
                  const struct stat* previous) {
    unlink(file.c_str());  // of a writer that crashed, perhaps with another mode
    const Descriptor descriptor(file, O_WRONLY | O_CREAT | O_EXCL, previous ? kPrivate : modeWhenNew);
    if (!descriptor.IsOpen()) return false;
    if (previous && !KeepOwnerAndMode(descriptor.Number(), *previous)) return false;
    return WriteAll(descriptor, text) && fsync(descriptor.Number()) == 0;
}

/// The rename is on the disk once its folder is. A folder that cannot be synced (some
/// network file systems) still has the new file.
void SyncFolder(const fs::path& folder) {
    const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
    if (descriptor.IsOpen()) fsync(descriptor.Number());
}

/// Replaces the file under a lock that is already held.
bool Replace(const fs::path& file, mode_t modeWhenNew, const Rewrite& rewrite) {
    struct stat state {};
    const bool isNew = lstat(file.c_str(), &state) != 0 && errno == ENOENT;
    if (!isNew && access(file.c_str(), W_OK) != 0) return false;
    const std::optional<std::string> text = isNew ? std::string() : ReadWholeFile(file);
    if (!text) return false;
    const fs::path newFile = Beside(file, ".new");
    const bool written = WriteNewFile(newFile, rewrite(*text), modeWhenNew, isNew ? nullptr : &state);
    if (!written || rename(newFile.c_str(), file.c_str()) != 0) {
        unlink(newFile.c_str());
        return false;
    }
    SyncFolder(file.parent_path());
    return true;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const fs::path& file) {
    // Not to wait for a writer, should the path name a pipe.
    const Descriptor descriptor(file, O_RDONLY | O_NONBLOCK);
    struct stat state {};
    if (!descriptor.IsOpen() || fstat(descriptor.Number(), &state) != 0 || !S_ISREG(state.st_mode)) return {};
    std::string text;
    if (!ReadToEnd(descriptor, text)) return {};
    return text;
}

bool RewriteWholeFile(const fs::path& file, mode_t modeWhenNew, const Rewrite& rewrite) {
    // A link is followed first: what it names is replaced, and the link stays.
    std::error_code failure;
    const fs::path real = fs::weakly_canonical(fs::absolute(file), failure);
    if (failure || !real.has_filename()) return false;
    const FileLock lock(Beside(real, ".lock"));
    return lock.IsHeld() && Replace(real, modeWhenNew, rewrite);
}

}  // namespace tallix
