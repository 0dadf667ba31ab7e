// What the build cannot check: every folder of the sources has a README that says what it is
// for, and a row in the map of docs/architecture.md.
#include <gtest/gtest.h>

#include <filesystem>
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

TEST(ArchitectureTest, EveryFolderHasAReadmeAndARowOnTheMap) {
    const std::string map = test::ReadBytes(test::SourceFolder() / "docs" / "architecture.md");
    const std::vector<std::string> folders = FoldersOfSource();
    ASSERT_GT(folders.size(), 20U);
    for (const std::string& folder : folders) {
        EXPECT_NE(map.find("| `" + folder + "` |"), std::string::npos) << folder << " has no row on the map";
        EXPECT_TRUE(fs::exists(test::SourceFolder() / folder / "README.md")) << folder << " has no README";
    }
}

}  // namespace
}  // namespace tallix
