#include "compat/shell_command.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <thread>

#include "compat/batch_file.h"
#include "compat/service_script.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using namespace std::chrono_literals;

class ShellCommandTest : public testing::Test {
protected:
    ShellCommandTest() {
        setenv("PATH", (folder_.Path().string() + ":/usr/bin:/bin").c_str(), 1);
        unsetenv("XDG_CURRENT_DESKTOP");
    }
    ~ShellCommandTest() override { setenv("PATH", path_.c_str(), 1); }

    /// A program that writes its arguments, one per line.
    std::string Install(const std::string& name) {
        const auto file = folder_.Write(name, fmt::format("#!/bin/sh\nprintf '%s\\n' \"$@\" >'{0}.part'\n"
                                                          "mv '{0}.part' '{0}'\n",
                                                          output_));
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file.string();
    }
    std::vector<std::string> Translated(const std::string& line) {
        return TranslateCommand(ReadShellCommand(line));
    }

    const std::string path_ = std::getenv("PATH");
    test::TempFolder folder_;
    const std::string output_ = folder_.Path() / "output";
};

TEST_F(ShellCommandTest, ProgramsOfOtherSystemsHaveReplacements) {
    const std::string root = folder_.Path();
    EXPECT_THAT(Translated("C:\\Gone\\Viewer.exe \"x\""), testing::IsEmpty());
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

TEST_F(ShellCommandTest, AStartedProgramGetsTheFileNameAsItIs) {
    Install("Notera");
    Shell("\\Notera.exe \"/tmp/it's $(touch x); `y` & z\\rpt.csv\"");
    for (int i = 0; i < 500 && !std::filesystem::exists(output_); ++i) std::this_thread::sleep_for(10ms);
    EXPECT_EQ(test::ReadBytes(output_), "/tmp/it's $(touch x); `y` & z/rpt.csv\n");
    Shell("\\Gone.exe \"x\"");
}

TEST(Commands, HaveQuotedArguments) {
    EXPECT_THAT(ReadShellCommand("a.exe b \"c d\"e \"\" ").arguments, ElementsAre("b", "c de", ""));
    EXPECT_EQ(ReadShellCommand("C:\\x.exe.d\\y.exe").program, "C:\\x.exe.d\\y.exe");
    EXPECT_EQ(ReadShellCommand("").program, "");
    EXPECT_THAT(
        SplitBatchLine(R"(schtasks  /TN "a b" /TR "\"C:\x y\p.exe\" \"Backup"\")"),
        testing::Optional(ElementsAre("schtasks", "/TN", "a b", "/TR", R"("C:\x y\p.exe" "Backup")")));
    for (const char* broken : {R"(/TN "a"b"")", R"(/TN "a)", R"(/TN "a\")"})
        EXPECT_EQ(SplitBatchLine(broken), std::nullopt) << broken;
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

TEST(ServiceScripts, AreWaitedForInTheirFolderWhileOthersAreServedUpToTheLimit) {
    const test::TempFolder folder;
    int served = 0;
    const auto run = [&](const char* name, const char* script, std::chrono::milliseconds limit) {
        return RunServiceScript(folder.Write(name, script), folder.Path(), limit, [&] { ++served; });
    };
    EXPECT_TRUE(run("Processor/It's off.bat", "sleep 0.2\necho stopped > first\nexit 3\n", 10s));
    EXPECT_EQ(test::ReadBytes(folder.Path() / "first"), "stopped\n");
    EXPECT_GT(served, 2);
    EXPECT_TRUE(RunServiceScript(folder.Path() / "missing", folder.Path() / "none", 10s, [] {}));

    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(run("long", "sleep 1\necho stopped > second\n", 100ms));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 900ms);
    EXPECT_EQ(test::ReadBytes(folder.Path() / "second"), "");
    const char* const wait = "for i in $(seq 200); do test -e second && break; sleep 0.05; done";
    EXPECT_FALSE(run("short", wait, 200ms));
    EXPECT_TRUE(run("wait", wait, 10s)) << "the long one went on and has ended";
}

}  // namespace
}  // namespace tallix
