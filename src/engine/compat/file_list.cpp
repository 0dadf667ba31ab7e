#include "compat/file_list.h"

#include <algorithm>
#include <system_error>

#include "text/text_pieces.h"

namespace tallix {

std::vector<std::string> ListFileNames(const std::filesystem::path& folder, std::string_view ending) {
    std::vector<std::string> names;
    std::error_code error;
    for (auto entry = std::filesystem::directory_iterator(folder, error);
         !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::string name = entry->path().filename().string();
        const bool isListed = EqualNoCase(Right(name, ending.size()), ending);
        if (isListed && entry->is_regular_file(error)) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(), [](const std::string& left, const std::string& right) {
        return LowerCase(left) < LowerCase(right);
    });
    return names;
}

}  // namespace tallix
