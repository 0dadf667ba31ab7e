#include "text/text_lines.h"

#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "support/temp_folder.h"

namespace tallix {
namespace {

TEST(TextLinesTest, ReadsAnyFile) {
    const test::TempFolder folder;
    const auto file = folder.Path() / "any.txt";
    const std::string huge(3'000'000, 'x');
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"", {}},
        {"\n", {""}},
        {"a\r\nb\nc", {"a", "b", "c"}},
        {"a\rb\r\n\r\n", {"a\rb", ""}},
        {"\xEF\xBB\xBF"
         "2001,A\n\xEF\xBB\xBF",
         {"2001,A", "\uFEFF"}},
        {"caf\xE9\ncaf\xC3\xA9\n", {"café", "café"}},
        {std::string("\0\xFF", 2), {std::string("\0ÿ", 3)}},
        {huge + "\nb", {huge, "b"}},
    };
    for (const auto& [bytes, expected] : cases) {
        std::ofstream(file, std::ios::binary) << bytes;
        std::vector<std::string> lines;
        TextLines reader(file);
        while (const std::string* line = reader.Next()) lines.push_back(*line);
        EXPECT_EQ(lines, expected) << bytes.substr(0, 20);
    }
    EXPECT_EQ(TextLines(folder.Path() / "none").Next(), nullptr);
}

}  // namespace
}  // namespace tallix
