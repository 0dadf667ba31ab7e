#include "compat/batch_file.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "support/temp_folder.h"
#include "support/test_crontab.h"

namespace tallix {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

TEST(BatchFileTest, ReadsQuotedArguments) {
    EXPECT_THAT(SplitBatchLine(R"(schtasks  /TN "a b" /TR "\"C:\x y\p.exe\" \"Backup"\")"),
                Optional(ElementsAre("schtasks", "/TN", "a b", "/TR", R"("C:\x y\p.exe" "Backup")")));
    for (const char* broken : {R"(/TN "a"b"")", R"(/TN "a)", R"(/TN "a\")"}) {
        EXPECT_EQ(SplitBatchLine(broken), std::nullopt) << broken;
    }
}

TEST(BatchFileTest, ItsLinesCreateAndDeleteTasks) {
    const test::TestCrontab crontab;
    const test::TempFolder home;
    const std::string program = "'" + (home.Path() / "Tallix_Reports").string() + "'";
    const auto run = [&](const std::string& line) {
        RunBatchFile(home.Write("a.bat", line + "\r\n"), {home.Path(), std::chrono::Tuesday});
        return crontab.Text();
    };
    setenv("TALLIX_REGISTRY", "/etc/it's 5%", 1);
    const std::string create = "schtasks /Create /RU \"System\" /ST 00:01:00 /TN \"Tallix_50% 'x'\" ";
    const std::string command = R"( /TR "\"C:\any\Tallix_Reports.exe\" \"/r\50% 'x'.SSR\"")";
    const std::pair<const char*, const char*> frequencies[] = {
        {"Hourly", "1 * * * *"}, {"Daily", "1 0 * * *"}, {"weekly", "1 0 * * 2"}, {"Monthly", "1 0 1 * *"}};
    for (const auto& [word, fields] : frequencies) {
        EXPECT_EQ(run(fmt::format("{}/SC {}{}", create, word, command)),
                  std::string("# Tallix_50% 'x'\n") + fields + " /usr/bin/env TALLIX_REGISTRY=" +
                      R"('/etc/it'\''s 5''\%' )" + program + R"( '/r/50''\% '\''x'\''.SSR')" + "\n");
    }
    unsetenv("TALLIX_REGISTRY");
    const std::string before = crontab.Text();
    for (const std::string& refused :
         {fmt::format("{}/SC Yearly{}", create, command), create + "/SC Daily /TR \"\\\"C:\\evil.exe\\\"\"",
          fmt::format("{0}/SC Daily{1}{1}", create, command), create + "/SC Daily /TR",
          std::string("echo /Create"), std::string("SCHTASKS /Delete /TN \"Tallix_50\"")}) {
        EXPECT_EQ(run(refused), before) << refused;
    }
    EXPECT_EQ(run("SCHTASKS /Delete /TN \"Tallix_50% 'x'\""), "");
}

}  // namespace
}  // namespace tallix
