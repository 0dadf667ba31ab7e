// Files that are read whole and replaced whole: settings and ini texts, which other
// processes read and write at the same time. A reader sees the old text or the new
// one, never a part; writers wait for each other.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace tallix {

/// The bytes of a regular file; nothing where there is none or it cannot be read.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& file);

/// Makes the new text of a file from its present text, which is empty where the file is absent.
using Rewrite = std::function<std::string(const std::string& text)>;

/// Replaces a file by what `rewrite` makes of it, under a lock that holds off other
/// writers from before the read to after the replacement. The new text is on the
/// disk before it takes the old one's place, so that a crash leaves one of the two.
/// `modeWhenNew` is for a file that was not there; another keeps its mode. Returns
/// false, with the old file untouched, when a step fails or the file is read-only.
bool RewriteWholeFile(const std::filesystem::path& file, mode_t modeWhenNew, const Rewrite& rewrite);

}  // namespace tallix
