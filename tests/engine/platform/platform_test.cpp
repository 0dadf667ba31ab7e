#include "platform/paths.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <map>
#include <thread>

#include "platform/task_scheduler.h"
#include "platform/whole_file.h"
#include "support/test_application.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

/// Environment variables are put back after each test.
class Paths : public testing::Test {
protected:
    ~Paths() override {
        for (const auto& [name, value] : before_) Set(name, value);
    }

    /// An empty value removes the variable.
    void Set(const std::string& name, const std::string& value) {
        const char* before = std::getenv(name.c_str());
        before_.emplace(name, before == nullptr ? "" : before);
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }

private:
    std::map<std::string, std::string> before_;
};

TEST_F(Paths, FollowTheEnvironmentAndAreAbsoluteWithoutAFinalSlash) {
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    for (const auto& [home, folder] : {std::pair<std::string, fs::path>{"", own},
                                       {"/opt/Tallix/", "/opt/Tallix"},
                                       {"here", fs::current_path() / "here"}}) {
        Set("TALLIX_HOME", home);
        EXPECT_EQ(ApplicationFolder(), folder);
    }
    Set("TALLIX_REGISTRY", "/r");
    EXPECT_EQ(MachineSettingsFolder(), "/r");
    EXPECT_EQ(UserSettingsFolder(), "/r");
    Set("TALLIX_REGISTRY", "");
    Set("XDG_CONFIG_HOME", "/x");
    EXPECT_EQ(MachineSettingsFolder(), "/etc/tallix");
    EXPECT_EQ(UserSettingsFolder(), "/x/tallix");
    Set("XDG_CONFIG_HOME", "");
    Set("HOME", "/home/a");
    EXPECT_EQ(UserSettingsFolder(), "/home/a/.config/tallix");
}

TEST_F(Paths, TheTempFolderIsTheUsersAlone) {
    const test::TempFolder scratch;
    Set("Temp", "");
    Set("TMPDIR", scratch.Path());
    const fs::path folder = TempFolder();
    EXPECT_EQ(folder.parent_path(), scratch.Path());
    fs::permissions(folder, fs::perms::all);
    EXPECT_EQ(TempFolder(), folder);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);

    fs::remove(folder);
    fs::create_directory(scratch.Path() / "bait");
    fs::create_directory_symlink(scratch.Path() / "bait", folder);
    EXPECT_THROW(TempFolder(), std::runtime_error) << "a link is laid by somebody else";
    Set("Temp", "/given");
    EXPECT_EQ(TempFolder(), "/given");
}

TEST_F(Paths, StoredPathsAndCommandLines) {
    EXPECT_EQ(ToNativePath("Standard\\STD_All calls.SRT"), "Standard/STD_All calls.SRT");
    const char* const arguments[] = {"program", "C:\\a", "b.SSR", ""};
    EXPECT_EQ(JoinCommandLine(4, arguments), "C:\\a b.SSR ");
    EXPECT_EQ(JoinCommandLine(0, arguments), "");
}

std::string Marked(const std::string& text) {
    return text + "+";
}

TEST(WholeFile, KeepsModeAndLinkOfWhatItReplaces) {
    const test::TempFolder folder;
    const auto real = folder.Write("real", "text");
    fs::permissions(real, fs::perms(0604));
    fs::create_symlink("real", folder.Path() / "link");
    EXPECT_TRUE(RewriteWholeFile(folder.Path() / "link", 0640, &Marked));
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "link"));
    EXPECT_EQ(test::ReadBytes(real), "text+");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms(0604));
    EXPECT_TRUE(RewriteWholeFile(folder.Path() / "new", 0600, &Marked));
    EXPECT_EQ(fs::status(folder.Path() / "new").permissions(), fs::perms(0600));
}

TEST(WholeFile, ReplacesOnlyWhatItCouldRead) {
    const test::TempFolder folder;
    ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
    fs::create_directory(folder.Path() / "folder");
    fs::create_symlink("nowhere/x", folder.Path() / "dangling");
    for (const char* name : {"pipe", "folder", "dangling", "absent/file"}) {
        EXPECT_EQ(ReadWholeFile(folder.Path() / name), std::nullopt) << name;
        EXPECT_FALSE(RewriteWholeFile(folder.Path() / name, 0640, &Marked)) << name;
    }
    EXPECT_TRUE(fs::is_fifo(folder.Path() / "pipe"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 3);
}

Task Named(const std::string& name) {
    return {.name = name, .command = {"/opt/Tallix_Reports", "Backup"}};
}

std::string EntryOf(const std::string& name) {
    return "# " + name + "\n0 0 * * * '/opt/Tallix_Reports' 'Backup'\n";
}

TEST(TaskSchedulerTest, LeavesForeignLinesAndOtherTasksAsTheyAre) {
    const test::TestCrontab crontab;
    const std::string others =
        "# Tallix_a\nMAILTO=x\r\n\n# Tallix_a\n# Tallix_Reports of old\n*/5 * * * * cp a\\%b /x  \n" +
        EntryOf("Tallix_a # Tallix_b") + "9 9 * * * last, without its line feed\n";
    crontab.Set(others.substr(0, others.size() - 1));
    for (int time = 0; time < 2; ++time) {
        ASSERT_TRUE(CreateTask(Named("Tallix_b")));
        EXPECT_EQ(crontab.Text(), others + EntryOf("Tallix_b"));
    }
    ASSERT_TRUE(DeleteTask("Tallix_b"));
    ASSERT_TRUE(DeleteTask("Tallix_"));
    EXPECT_EQ(crontab.Text(), others);
}

TEST(TaskSchedulerTest, RefusesWhatWouldBreakTheCrontabOrBeCutOff) {
    const test::TestCrontab crontab;
    for (const std::string name : {"", "a\n* * * * * rm", "a/b", "..\\b"})
        EXPECT_FALSE(CreateTask(Named(name))) << name;
    for (const std::string& argument : {std::string(1000, 'x'), std::string("a\nb")})
        EXPECT_FALSE(CreateTask({.name = "Tallix_a", .command = {"/opt/Tallix_Reports", argument}}));
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
        EXPECT_THAT(crontab.Text(), testing::HasSubstr(EntryOf("Tallix_" + std::to_string(i))));
}

}  // namespace
}  // namespace tallix
