#include "platform/paths.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <map>

#include "support/temp_folder.h"

namespace tallix {
namespace {

namespace fs = std::filesystem;

/// Sets environment variables for one test; an empty value removes one.
class Environment {
public:
    Environment(std::initializer_list<std::pair<std::string, std::string>> values) {
        for (const auto& [name, value] : values) {
            if (const char* before = std::getenv(name.c_str())) before_[name] = before;
            Set(name, value);
            names_.push_back(name);
        }
    }
    ~Environment() {
        for (const std::string& name : names_) Set(name, before_[name]);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    static void Set(const std::string& name, const std::string& value) {
        if (value.empty()) {
            unsetenv(name.c_str());
        } else {
            setenv(name.c_str(), value.c_str(), 1);
        }
    }

    std::vector<std::string> names_;
    std::map<std::string, std::string> before_;
};

TEST(Paths, TheApplicationFolderIsAbsoluteWithNoSlashBehind) {
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    const std::pair<std::string, fs::path> cases[] = {{"", own},
                                                      {"/opt/Tallix/ReportsTool/", "/opt/Tallix/ReportsTool"},
                                                      {"here", fs::current_path() / "here"}};
    for (const auto& [home, folder] : cases) {
        const Environment environment{{"TALLIX_HOME", home}};
        EXPECT_EQ(ApplicationFolder(), folder);
    }
}

TEST(Paths, SettingsLieWhereTheEnvironmentSays) {
    {
        const Environment environment{{"TALLIX_REGISTRY", "/r"}};
        EXPECT_EQ(MachineSettingsFolder(), "/r");
        EXPECT_EQ(UserSettingsFolder(), "/r");
    }
    const Environment environment{{"TALLIX_REGISTRY", ""}, {"XDG_CONFIG_HOME", "/x"}, {"HOME", "/home/a"}};
    EXPECT_EQ(MachineSettingsFolder(), "/etc/tallix");
    EXPECT_EQ(UserSettingsFolder(), "/x/tallix");
    const Environment plain{{"XDG_CONFIG_HOME", ""}};
    EXPECT_EQ(UserSettingsFolder(), "/home/a/.config/tallix");
}

TEST(Paths, TheTempFolderIsTheUsersAlone) {
    const test::TempFolder scratch;
    const Environment environment{{"Temp", ""}, {"TMPDIR", scratch.Path()}};
    const fs::path folder = TempFolder();
    EXPECT_EQ(folder.parent_path(), scratch.Path());
    chmod(folder.c_str(), 0777);
    EXPECT_EQ(TempFolder(), folder);
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);

    fs::remove(folder);
    fs::create_directory(scratch.Path() / "bait");
    fs::create_directory_symlink(scratch.Path() / "bait", folder);
    EXPECT_THROW(TempFolder(), std::runtime_error) << "a link is laid by somebody else";
    fs::remove(folder);
    scratch.Write(folder.filename(), "");
    EXPECT_THROW(TempFolder(), std::runtime_error);
    const Environment given{{"Temp", "/given"}};
    EXPECT_EQ(TempFolder(), "/given");
}

TEST(Paths, StoredPathsAndCommandLines) {
    EXPECT_EQ(ToNativePath("Standard\\STD_All calls.SRT"), "Standard/STD_All calls.SRT");
    const char* const arguments[] = {"program", "C:\\a", "b.SSR", ""};
    EXPECT_EQ(JoinCommandLine(4, arguments), "C:\\a b.SSR ");
    EXPECT_EQ(JoinCommandLine(1, arguments), "");
    EXPECT_EQ(JoinCommandLine(0, arguments), "");
}

}  // namespace
}  // namespace tallix
