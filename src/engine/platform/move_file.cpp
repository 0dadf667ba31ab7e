#include "platform/move_file.h"

#include <fcntl.h>
#include <stdio.h>

#include <cerrno>
#include <system_error>

namespace tallix {

namespace {

bool CopyThenRemove(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    const bool existed = std::filesystem::exists(std::filesystem::symlink_status(to, error));
    if (existed) return false;
    if (!std::filesystem::copy_file(from, to, std::filesystem::copy_options::none, error) || error) {
        std::filesystem::remove(to, error);
        return false;
    }
    std::filesystem::remove(from, error);
    return true;
}

}  // namespace

bool MoveWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
    const bool otherFileSystem = errno == EXDEV || errno == EINVAL || errno == ENOSYS;
    return otherFileSystem && CopyThenRemove(from, to);
}

}  // namespace tallix
