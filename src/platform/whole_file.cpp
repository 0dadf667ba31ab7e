#include "platform/whole_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

namespace tallix {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kLockMode = 0640;
constexpr mode_t kPrivate = 0600;
constexpr mode_t kPermissions = 07777;
constexpr std::size_t kReadSize = 16384;

class Descriptor {
public:
    Descriptor(const fs::path& file, int flags, mode_t mode = 0)
        : number_(open(file.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }

private:
    int number_;
};

fs::path Beside(const fs::path& file, std::string_view ending) {
    return file.parent_path() / ("." + file.filename().string() + std::string(ending));
}

bool IsSameFile(int number, const fs::path& file) {
    struct stat held {};
    struct stat named {};
    return fstat(number, &held) == 0 && stat(file.c_str(), &named) == 0 && held.st_ino == named.st_ino &&
           held.st_dev == named.st_dev;
}

/// An exclusive lock on a file beside the one that is to be written. The lock file is
/// removed at the end; whoever then holds a lock on the removed one tries again.
class WriteLock {
public:
    explicit WriteLock(fs::path file) : file_(std::move(file)), held_(Take()) {}
    ~WriteLock() {
        if (held_) unlink(file_.c_str());
    }
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

    bool IsHeld() const { return held_.has_value(); }

private:
    std::optional<Descriptor> Take() const {
        while (true) {
            Descriptor descriptor(file_, O_RDONLY | O_CREAT | O_NOFOLLOW, kLockMode);
            if (!descriptor.IsOpen()) return {};
            while (flock(descriptor.Number(), LOCK_EX) != 0) {
                if (errno != EINTR) return {};
            }
            if (IsSameFile(descriptor.Number(), file_)) return descriptor;
        }
    }

    fs::path file_;
    std::optional<Descriptor> held_;
};

bool WriteAll(int number, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(number, text.data(), text.size());
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

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
    return WriteAll(descriptor.Number(), text) && fsync(descriptor.Number()) == 0;
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
    std::array<char, kReadSize> block;
    while (true) {
        const ssize_t size = read(descriptor.Number(), block.data(), block.size());
        if (size == 0) return text;
        if (size < 0 && errno != EINTR) return {};
        if (size > 0) text.append(block.data(), static_cast<std::size_t>(size));
    }
}

bool RewriteWholeFile(const fs::path& file, mode_t modeWhenNew, const Rewrite& rewrite) {
    // A link is followed first: what it names is replaced, and the link stays.
    std::error_code failure;
    const fs::path real = fs::weakly_canonical(fs::absolute(file), failure);
    if (failure || !real.has_filename()) return false;
    const WriteLock lock(Beside(real, ".lock"));
    return lock.IsHeld() && Replace(real, modeWhenNew, rewrite);
}

}  // namespace tallix
