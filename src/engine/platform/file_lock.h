// Standing in line with other processes for a thing that only one may change at a time.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/descriptor.h"

namespace tallix {

/// An exclusive lock, held from its making to its end, on a file that exists for nothing
/// else. Waits for whoever holds it; a process that asks twice waits for ever. The file is
/// removed at the end: whoever then holds a lock on the removed one tries again.
class FileLock {
public:
    explicit FileLock(std::filesystem::path file);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// False where the file cannot be made.
    bool IsHeld() const { return held_.has_value(); }

private:
    std::optional<Descriptor> Take() const;

    std::filesystem::path file_;
    std::optional<Descriptor> held_;
};

/// The hidden file beside another one that serves it: ".rpt.csv.lock" for "rpt.csv" and
/// the ending ".lock".
std::filesystem::path Beside(const std::filesystem::path& file, std::string_view ending);

}  // namespace tallix
