// An open file of the operating system that closes by itself.
#pragma once

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace tallix {

class Descriptor {
public:
    /// Takes over a number that the system gave; a negative one is none.
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const std::filesystem::path& file, int flags, mode_t mode = 0)
        : Descriptor(open(file.c_str(), flags | O_CLOEXEC, mode)) {}
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

/// The bytes from the file's position to its end; false when a read fails.
bool ReadToEnd(const Descriptor& file, std::string& bytes);

/// Writes all of the bytes; false when a write fails.
bool WriteAll(const Descriptor& file, std::string_view bytes);

}  // namespace tallix
