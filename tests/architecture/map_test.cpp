// What the build cannot check: every folder of the sources has a README that says what it is
// for, and a row in the map of docs/architecture.md that names the folders it uses.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <vector>

#include "support/places.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> FoldersOfSource() {
    std::vector<std::string> folders;
    for (const char* root : {"src", "programs"}) {
        for (const auto& entry : fs::recursive_directory_iterator(test::SourceFolder() / root)) {
            if (entry.path().filename() != "CMakeLists.txt") continue;
            const std::string folder =
                fs::relative(entry.path().parent_path(), test::SourceFolder()).string();
            if (folder != root) folders.push_back(folder);
        }
    }
    return folders;
}

/// The folders that the build lets a folder use, as the map writes them.
std::string UsesOf(const fs::path& folder) {
    const std::string build = test::ReadBytes(folder / "CMakeLists.txt");
    std::smatch uses;
    if (!std::regex_search(build, uses, std::regex("USES ([^\n)]*)"))) return "nothing";
    return std::regex_replace(uses[1].str(), std::regex(" "), ", ");
}

TEST(ArchitectureTest, EveryFolderHasAReadmeAndItsRowOnTheMap) {
    const std::string map = test::ReadBytes(test::SourceFolder() / "docs" / "architecture.md");
    const std::vector<std::string> folders = FoldersOfSource();
    ASSERT_GT(folders.size(), 20U);
    for (const std::string& folder : folders) {
        const fs::path path = test::SourceFolder() / folder;
        EXPECT_TRUE(fs::exists(path / "README.md")) << folder << " has no README";
        std::smatch row;
        const bool found =
            std::regex_search(map, row, std::regex("\\| `" + folder + "` \\|[^\n]*\\| ([^|\n]*) \\|\n"));
        EXPECT_TRUE(found) << folder << " has no row on the map";
        if (!found || row[1].str().starts_with("every")) continue;
        EXPECT_EQ(row[1].str(), UsesOf(path)) << folder;
    }
}

}  // namespace
}  // namespace tallix
