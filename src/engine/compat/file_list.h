// The folders whose files are a list to choose from.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallix {

/// The names of the files of a folder that end in `ending` (".srt"), in any case and with
/// it, ordered without regard to case. A folder that cannot be read has none.
std::vector<std::string> ListFileNames(const std::filesystem::path& folder, std::string_view ending);

}  // namespace tallix
