// Renaming as the system's files are moved: never over a file that is there, and
// across file systems where it must be.
#pragma once

#include <filesystem>

namespace tallix {

/// Moves a file. Returns false, with both files as they were, when the target exists
/// or cannot be made.
bool MoveWithoutReplacing(const std::filesystem::path& from, const std::filesystem::path& to);

}  // namespace tallix
