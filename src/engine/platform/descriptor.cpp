#include "platform/descriptor.h"

#include <array>
#include <cerrno>

namespace tallix {
namespace {

constexpr std::size_t kReadSize = 16384;

}  // namespace

bool ReadToEnd(const Descriptor& file, std::string& bytes) {
    std::array<char, kReadSize> block;
    while (true) {
        const ssize_t size = read(file.Number(), block.data(), block.size());
        if (size == 0) return true;
        if (size < 0 && errno != EINTR) return false;
        if (size > 0) bytes.append(block.data(), static_cast<std::size_t>(size));
    }
}

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

}  // namespace tallix
