#include "platform/paths.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include "support/temp_folder.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

/// Environment variables are put back after each test.
class Paths : public testing::Test {
protected:
    ~Paths() override {
        for (const auto& [name, value] : before_) Put(name, value);
    }

    /// An empty value removes the variable.
    void Set(const std::string& name, const std::string& value) {
        const char* before = std::getenv(name.c_str());
        before_.emplace(name, before == nullptr ? "" : before);
        Put(name, value);
    }

private:
    static void Put(const std::string& name, const std::string& value) {
        value.empty() ? unsetenv(name.c_str()) : setenv(name.c_str(), value.c_str(), 1);
    }

    std::map<std::string, std::string> before_;
};

TEST_F(Paths, TheApplicationFolderIsAbsoluteWithoutAFinalSlash) {
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    for (const auto& [home, folder] : {std::pair<std::string, fs::path>{"", own},
                                       {"/opt/Tallix/", "/opt/Tallix"},
                                       {"here", fs::current_path() / "here"}}) {
        Set("TALLIX_HOME", home);
        EXPECT_EQ(ApplicationFolder(), folder);
    }
}

TEST_F(Paths, SettingsAreWhereTheEnvironmentSays) {
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
    chmod(folder.c_str(), 0777);
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

}  // namespace
}  // namespace tallix
