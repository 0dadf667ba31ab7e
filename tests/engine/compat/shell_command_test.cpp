#include "compat/shell_command.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "support/temp_folder.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ShellCommandTest : public testing::Test {
protected:
    ShellCommandTest() {
        setenv("PATH", (folder_.Path().string() + ":/usr/bin:/bin").c_str(), 1);
        unsetenv("XDG_CURRENT_DESKTOP");
    }
    ~ShellCommandTest() override { setenv("PATH", path_.c_str(), 1); }

    /// A program that writes its arguments, one per line.
    std::string Install(const std::string& name) {
        const auto file =
            folder_.Write(name, "#!/bin/sh\nprintf '%s\\n' \"$@\" >'" + Output().string() + ".part'\nmv '" +
                                    Output().string() + ".part' '" + Output().string() + "'\n");
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file.string();
    }
    std::filesystem::path Output() const { return folder_.Path() / "output"; }

    std::vector<std::string> Translated(const std::string& line) {
        return TranslateCommand(ReadShellCommand(line));
    }

    const std::string path_ = std::getenv("PATH");
    test::TempFolder folder_;
};

TEST_F(ShellCommandTest, ProgramsOfOtherSystemsHaveReplacements) {
    const std::string root = folder_.Path().string();
    EXPECT_THAT(Translated("C:\\Gone\\Viewer.exe \"x\""), IsEmpty());
    const std::string office = Install("Open Office/program/scalc");
    const std::string calc = Install("localc");
    const std::string gedit = Install("gedit");
    const std::string kwrite = Install("kwrite");
    const std::string viewer = Install("Notera");
    EXPECT_THAT(Translated("\\SYSTEM32\\NOTEPAD.EXE \"/t\\rpt.csv\""), ElementsAre(gedit, "/t/rpt.csv"));
    setenv("XDG_CURRENT_DESKTOP", "KDE", 1);
    EXPECT_THAT(Translated("\\SYSTEM32\\notepad.exe \"x\""), ElementsAre(kwrite, "x"));
    EXPECT_THAT(Translated(root + "/Open Office/program\\scalc.exe \"x\""), ElementsAre(office, "x"));
    EXPECT_THAT(Translated("C:\\Program Files\\Excel.exe \"x\""), ElementsAre(calc, "x"));
    EXPECT_THAT(Translated(root + "\\Notera.exe \"x\""), ElementsAre(viewer, "x"));
    EXPECT_THAT(Translated("C:\\Apps\\Notera.exe \"x\""), ElementsAre(viewer, "x"));
}

TEST_F(ShellCommandTest, ArgumentsAreQuotedTextsAndWords) {
    EXPECT_THAT(ReadShellCommand("a.exe b \"c d\"e \"\" ").arguments, ElementsAre("b", "c de", ""));
    EXPECT_EQ(ReadShellCommand("C:\\x.exe.d\\y.exe").program, "C:\\x.exe.d\\y.exe");
    EXPECT_EQ(ReadShellCommand("").program, "");
}

TEST_F(ShellCommandTest, AStartedProgramGetsTheFileNameAsItIs) {
    Install("Notera");
    Shell("\\Notera.exe \"/tmp/it's $(touch x); `y` & z\\rpt.csv\"");
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!std::filesystem::exists(Output()) && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(test::ReadBytes(Output()), "/tmp/it's $(touch x); `y` & z/rpt.csv\n");
    Shell("\\Gone.exe \"x\"");
}

}  // namespace
}  // namespace tallix
