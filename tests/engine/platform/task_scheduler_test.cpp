#include "platform/task_scheduler.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <thread>

#include "compat/batch_file.h"
#include "support/test_crontab.h"

namespace tallix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Optional;

Task Named(const std::string& name) {
    return {.name = name, .command = {"/opt/Tallix_Reports", "Backup"}};
}

std::string EntryOf(const std::string& name) {
    return "# " + name + "\n0 0 * * * '/opt/Tallix_Reports' 'Backup'\n";
}

TEST(TaskSchedulerTest, LeavesForeignLinesAndOtherTasksAsTheyAre) {
    const test::TestCrontab crontab;
    const std::string foreign =
        "# Tallix_a\nMAILTO=x\r\n\n# Tallix_a\n# Tallix_Reports of old\n*/5 * * * * cp a\\%b /x  \n";
    crontab.Set(foreign + EntryOf("Tallix_a # Tallix_b") + "9 9 * * * last, without its line feed");
    ASSERT_TRUE(CreateTask(Named("Tallix_b")));
    const std::string others =
        foreign + EntryOf("Tallix_a # Tallix_b") + "9 9 * * * last, without its line feed\n";
    EXPECT_EQ(crontab.Text(), others + EntryOf("Tallix_b"));
    ASSERT_TRUE(CreateTask(Named("Tallix_b")));
    EXPECT_EQ(crontab.Text(), others + EntryOf("Tallix_b")) << "one entry by name";
    ASSERT_TRUE(DeleteTask("Tallix_b"));
    ASSERT_TRUE(DeleteTask("Tallix_"));
    EXPECT_EQ(crontab.Text(), others);
}

TEST(TaskSchedulerTest, RefusesWhatWouldBreakTheCrontabOrBeCutOff) {
    const test::TestCrontab crontab;
    for (const std::string name : {"", "a\n* * * * * rm", "a/b", "..\\b"}) {
        EXPECT_FALSE(CreateTask(Named(name))) << name;
    }
    Task task = Named("Tallix_long");
    task.command[1] = std::string(1000, 'x');
    EXPECT_FALSE(CreateTask(task));
    task.command[1] = "a\nb";
    EXPECT_FALSE(CreateTask(task));
    EXPECT_EQ(crontab.Text(), "");
}

TEST(TaskSchedulerTest, ChangesAtOnceAreAllKept) {
    const test::TestCrontab crontab;
    std::vector<std::thread> others;
    others.reserve(8);
    for (int i = 0; i < 8; ++i)
        others.emplace_back([i] { CreateTask(Named("Tallix_" + std::to_string(i))); });
    for (std::thread& other : others) other.join();
    for (int i = 0; i < 8; ++i)
        EXPECT_THAT(crontab.Text(), HasSubstr(EntryOf("Tallix_" + std::to_string(i))));
}

TEST(BatchFileTest, ReadsArgumentsAsTheirSystemDoes) {
    EXPECT_THAT(SplitBatchLine(R"(schtasks  /TN "a b" /TR "\"C:\x y\p.exe\" \"Backup"\")"),
                Optional(ElementsAre("schtasks", "/TN", "a b", "/TR", R"("C:\x y\p.exe" "Backup")")));
    for (const char* broken : {R"(/TN "a"b"")", R"(/TN "a)", R"(/TN "a\")"}) {
        EXPECT_EQ(SplitBatchLine(broken), std::nullopt) << broken;
    }
}

TEST(BatchFileTest, DrivesTheSchedulerByTheWordsOfItsLines) {
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
