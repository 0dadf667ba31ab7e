#include "platform/file_lock.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>

namespace tallix {
namespace {

constexpr mode_t kLockMode = 0640;

bool IsSameFile(int number, const std::filesystem::path& file) {
    struct stat held {};
    struct stat named {};
    return fstat(number, &held) == 0 && stat(file.c_str(), &named) == 0 && held.st_ino == named.st_ino &&
           held.st_dev == named.st_dev;
}

}  // namespace

FileLock::FileLock(std::filesystem::path file) : file_(std::move(file)), held_(Take()) {}

FileLock::~FileLock() {
    if (held_) unlink(file_.c_str());
}

std::optional<Descriptor> FileLock::Take() const {
    while (true) {
        Descriptor descriptor(file_, O_RDONLY | O_CREAT | O_NOFOLLOW, kLockMode);
        if (!descriptor.IsOpen()) return {};
        while (flock(descriptor.Number(), LOCK_EX) != 0) {
            if (errno != EINTR) return {};
        }
        if (IsSameFile(descriptor.Number(), file_)) return descriptor;
    }
}

std::filesystem::path Beside(const std::filesystem::path& file, std::string_view ending) {
    return file.parent_path() / ("." + file.filename().string() + std::string(ending));
}

}  // namespace tallix
