// The borders between the folders of src: the engine knows no toolkit, and a lower
// folder includes no higher one.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace tallix {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = fs::path(TALLIX_SOURCE_DIR) / "src";

/// A layer and the layers that it may include besides itself.
using Borders = std::map<std::string, std::set<std::string>>;

const Borders& AllowedIncludes() {
    static const Borders borders = [] {
        const std::set<std::string> base = {"platform", "foundation"};
        const std::set<std::string> engine = {"platform",   "foundation", "costing", "reporting",
                                              "scheduling", "custody",    "admin",   "shell"};
        std::set<std::string> everything = engine;
        everything.insert({"ui", "window"});
        return Borders{{"platform", {}},
                       {"foundation", {"platform"}},
                       {"costing", base},
                       {"reporting", {"platform", "foundation", "costing"}},
                       {"scheduling", {"platform", "foundation", "costing", "reporting"}},
                       {"custody", base},
                       {"admin", engine},
                       {"shell", engine},
                       {"ui", base},
                       {"window", everything},
                       {"main", everything}};
    }();
    return borders;
}

/// The layer of a file by its path below src: its folder, save for windows, the pages of
/// windows, the list of windows and main.
std::string LayerOf(const fs::path& file) {
    if (file.parent_path() == "shell" && file.stem() == "windows") return "main";
    if (file.stem().string().ends_with("_window")) return "window";
    if (file.parent_path() == "admin" && file.stem().string().ends_with("_page")) return "window";
    return file.has_parent_path() ? file.begin()->string() : file.stem().string();
}

struct Include {
    bool ofProject = false;
    std::string target;
};

std::vector<Include> IncludesOf(const fs::path& file) {
    static const std::regex pattern(R"re(\s*#\s*include\s*([<"])([^>"]+)[>"].*)re");
    std::vector<Include> includes;
    std::ifstream text(file);
    std::smatch match;
    for (std::string line; std::getline(text, line);) {
        if (std::regex_match(line, match, pattern)) includes.push_back({match[1] == "\"", match[2]});
    }
    return includes;
}

std::vector<fs::path> SourceFiles() {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
        const std::string ending = entry.path().extension().string();
        if (ending == ".h" || ending == ".cpp") files.push_back(fs::relative(entry.path(), kSource));
    }
    return files;
}

bool IsToolkitHeader(const std::string& target) {
    static const std::regex pattern(R"((Qt?[A-Z]\w*(/.*)?|q[a-z0-9]+\.h|.*/moc_.*))");
    return std::regex_match(target, pattern);
}

bool MayUseToolkit(const std::string& layer) {
    return layer == "ui" || layer == "window" || layer == "main";
}

TEST(BorderTest, NoFolderIncludesAHigherOneAndTheEngineNoToolkit) {
    const std::vector<fs::path> files = SourceFiles();
    ASSERT_GT(files.size(), 50U);
    for (const fs::path& file : files) {
        const std::string from = LayerOf(file);
        ASSERT_TRUE(AllowedIncludes().contains(from)) << file << " is in no known layer";
        for (const auto& [ofProject, target] : IncludesOf(kSource / file)) {
            EXPECT_TRUE(MayUseToolkit(from) || !IsToolkitHeader(target)) << file << " includes " << target;
            if (!ofProject) continue;
            EXPECT_TRUE(fs::exists(kSource / target)) << file << " includes " << target;
            const std::string to = LayerOf(target);
            EXPECT_TRUE(from == to || AllowedIncludes().at(from).contains(to))
                << file << " includes the higher " << target;
        }
    }
}

}  // namespace
}  // namespace tallix
