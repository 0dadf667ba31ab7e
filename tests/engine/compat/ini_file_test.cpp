#include "compat/ini_file.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace tallix {
namespace {

constexpr const char* kText =
    "\xEF\xBB\xBFstray=above all sections\r\n[Data]\r\n; Date=comment\r\n  Date \t= True \r\ndate=second\r\n"
    "Title=\"  two blanks  \"\r\nHalf=\"open\r\nWhere=WHERE a = 'b'\r\nCurrency=\xA3\r\nno equals sign\r\n"
    "Empty=\r\n[Broken\r\nLost=1\r\n[ options ] behind\r\nTop=10\r\n[DATA]\r\nLate=second of that name\r\n"
    "[Last]\r\nEnd=no line break";

TEST(IniFile, ReadsAsProfileFilesAreRead) {
    const IniFile ini = IniFile::FromText(kText);
    const std::tuple<const char*, const char*, std::optional<std::string>> cases[] = {
        {"data", "DATE", "True"},
        {"Data", "Title", "  two blanks  "},
        {"Data", "Half", "\"open"},
        {"Data", "Where", "WHERE a = 'b'"},
        {"Data", "Currency", "£"},
        {"Data", "Empty", ""},
        {"Data", "Lost", {}},
        {"Broken", "Lost", {}},
        {"Options", "Top", "10"},
        {"Data", "Late", {}},
        {"", "stray", {}},
        {"Data", "; Date", {}},
        {"Last", "End", "no line break"},
        {"Data", "no equals sign", {}}};
    for (const auto& [section, key, value] : cases) EXPECT_EQ(ini.Find(section, key), value) << key;
}

TEST(IniFile, WritingLeavesAllOtherLinesAlone) {
    std::string expected = kText;
    expected.replace(expected.find("  Date \t= True "), 15, "DATE=False");
    EXPECT_EQ(WithIniKey(kText, "data", "DATE", "False"), expected);
    expected = kText;
    expected.insert(expected.find("[DATA]"), "Sum=Duration\r\n");
    EXPECT_EQ(WithIniKey(kText, "Options", "Sum", "Duration"), expected);
    EXPECT_EQ(WithIniKey(kText, "New", "k", "v"), std::string(kText) + "\r\n[New]\r\nk=v\r\n");
    EXPECT_EQ(WithIniKey("[a]\nx=1\n\n\n[b]\n", "a", "y", "2"), "[a]\nx=1\ny=2\n\n\n[b]\n");
    EXPECT_EQ(WithIniKey("", "a", "x", "1\n[b]"), "[a]\nx=1\n") << "a value is one line";
}

TEST(IniFile, CutsLongValuesByCharactersAndWritesFilesThatAreThereOrNot) {
    std::string pounds;
    for (int count = 0; count < 300; ++count) pounds += "£";
    const test::TempFolder folder;
    auto file = folder.Write("a.ini", "[S]\nlong=" + pounds);
    EXPECT_EQ(ReadIniKey("S", "long", file), pounds.substr(0, kLongestIniValue * 2));
    EXPECT_EQ(IniFile(file).Read("S", "long"), pounds.substr(0, kLongestIniValue * 2));
    EXPECT_EQ(ReadIniKey("S", "long", folder.Path()), "") << "a folder has no keys";
    file = folder.Path() / "new.SSR";
    EXPECT_TRUE(WriteIniKey("Report", "Name", "Café\xA3", file));
    EXPECT_TRUE(WriteIniKey("Report", "name", "Caf\xE9", file));
    EXPECT_EQ(test::ReadBytes(file), "[Report]\nname=Café\n");
    EXPECT_FALSE(WriteIniKey("a\nb", "k", "v", file));
    EXPECT_FALSE(WriteIniKey("a", "k\n[x]", "v", file));
    EXPECT_FALSE(WriteIniKey("a", "k", "v", folder.Path() / "no folder/x.ini"));
}

}  // namespace
}  // namespace tallix
