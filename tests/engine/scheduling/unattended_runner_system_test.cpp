// Scheduled reports and the dump as the operating system's scheduler runs them: the
// built programs from outside, with no display.
#include <fmt/chrono.h>
#include <gmock/gmock.h>

#include <ctime>
#include <regex>
#include <thread>

#include "backup/backup_task.h"
#include "platform/child_process.h"
#include "programs/setup/setup_installation.h"
#include "scheduling/schedules.h"
#include "support/run_program.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::ReadLines;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;
using ::testing::SizeIs;
using ::testing::StartsWith;

class UnattendedRunTest : public ::testing::Test, protected test::InstalledCompany {
protected:
    test::ProgramRun Run(const std::string& commandLine) const {
        auto environment = Environment();
        environment.insert(environment.end(),
                           {{"TALLIX_STEP_MS", "5"}, {"QT_QPA_PLATFORM", ""}, {"DISPLAY", ""}});
        return test::RunProgram(test::ReportsProgram(), {commandLine}, environment);
    }

    // Writes a schedule of a report and runs it. A successful run prints nothing.
    void RunSchedule(const std::string& report, const std::string& keys) {
        const std::string file =
            Folder().Write("Reports/Scheduled/My Task.SSR",
                           ";Tallix - Scheduled Report\r\n;\r\n[General]\r\nReport=" + report +
                               "\r\nUser=Administrator\r\n" + keys);
        const test::ProgramRun run = Run("\"" + file + "\"");
        EXPECT_EQ(std::to_string(run.status) + run.err + run.out, "0");
    }
    void RunToFolder(const std::string& report, const std::string& keys = {}) {
        RunSchedule(report,
                    "Output=File\r\nOutputLocation=" + Delivered().parent_path().string() + "\\\r\n" + keys);
    }

    static std::string Today() { return fmt::format("{:%d_%m_%Y}.csv", fmt::localtime(std::time(nullptr))); }
    std::filesystem::path Delivered() const { return Home() / "out" / Today(); }
};

TEST_F(UnattendedRunTest, DeliversOneFileADayToAFolder) {
    RunToFolder("Standard\\STD_All Calls.SRT");
    const std::vector<std::string> lines = ReadLines(Delivered());
    ASSERT_THAT(lines, SizeIs(5 + 500 + 2));
    EXPECT_THAT(lines.back(), StartsWith("Total Number Of Records: 500"));
    EXPECT_FALSE(std::filesystem::exists(Home() / "temp" / "rpt.tmp"));

    const std::string first = ReadBytes(Delivered());
    RunToFolder("Standard\\STD_Outgoing Calls.SRT");
    EXPECT_EQ(ReadBytes(Delivered()), first) << "the second run of a day is lost";
    EXPECT_TRUE(std::filesystem::exists(Home() / "temp" / "rpt.tmp")) << "and stays in the working files";
}

TEST_F(UnattendedRunTest, TakesItsFiltersFromTheSchedule) {
    RunToFolder("Standard\\STD_All Calls.SRT", "TimeS=09:00\r\nTimeF=12:00\r\nDate=01/01/1999\r\n");
    const std::vector<std::string> lines = ReadLines(Delivered());
    ASSERT_GT(lines.size(), 50u);
    for (std::size_t i = 5; i + 2 < lines.size(); ++i) {
        const std::string time = lines[i].substr(11, 8);
        EXPECT_TRUE(time > "09:00:00" && time < "12:00:00") << lines[i];
    }
}

TEST_F(UnattendedRunTest, MailsTheReport) {
    const test::SmtpServer server(test::SmtpServer::Account{"reports", "pass word"});
    PointMailTo(server);
    settings.Write("SMTPUser", "reports");
    settings.Write("SMTPPass", "pass word");
    RunSchedule("Standard\\STD_Internal Calls.SRT", "Output=Email\r\n");
    settings.Write("SMTPAuth", "0");
    RunSchedule("Standard\\STD_Internal Calls.SRT", "Output=Email\r\n");
    ASSERT_THAT(server.Mails(), SizeIs(1)) << "the server takes no mail without a login";
    EXPECT_THAT(server.Mails()[0].attachments,
                ElementsAre(Pair(Today(), StartsWith("Tallix Reports - Internal Calls\r\n"))));
}

TEST_F(UnattendedRunTest, ContinuesWithWhatIsMissingButNotADump) {
    RunToFolder("Standard\\STD_No Such Report.SRT");
    EXPECT_THAT(ReadLines(Delivered()), SizeIs(5 + 500 + 2)) << "all calls, no columns";
    RunSchedule("", "Output=File\r\nOutputLocation=/no/such/folder\\\r\n");

    std::filesystem::remove(Delivered());
    settings.Write("DBIP", "127.0.0.1:1");
    RunToFolder("Standard\\STD_All Calls.SRT");
    EXPECT_THAT(ReadLines(Delivered()), SizeIs(5 + 2)) << "the head and a zero total";

    for (const char* nothing : {"backup", "/no/such/file.ssr", "\"/no/such/file.SSR\" "}) {
        const test::ProgramRun run = Run(nothing);
        EXPECT_EQ(std::to_string(run.status) + run.err, "0") << nothing;
    }
    settings.Write("DBIP", "sqlite:/no/such/folder/tallix.db");
    const test::ProgramRun failed = Run("Backup");
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("/no/such/folder/tallix.db"));
}

constexpr const char* kForeign = "# somebody's own\r\nX=100%\n#\n";

/// Puts the user's crontab back when this process ends.
class CrontabKeeper {
private:
    const ChildResult before_ = RunChild({"env", "VISUAL=cat", "crontab", "-e"});
    const bool isEmpty_ = RunChild({"crontab", "-l"}).status != 0;
    const test::TempFolder folder_;
    const std::string saved_ = folder_.Write("saved", before_.out);
    const test::EndGuard guard_{isEmpty_ ? "crontab -r" : "crontab " + saved_};
};

// From end to end: saved as the window saves it, kept in the user's real crontab, started by
// the real cron, delivered to a folder and to a mail server.
class ScheduleChain : public testing::Test, protected test::InstalledCompany {
protected:
    ScheduleChain() {
        std::filesystem::create_symlink(test::ReportsProgram(), Home() / "Tallix_Reports");
        settings.Write("SMTPAuth", "0");
        for (const auto& [name, value] : Environment()) setenv(name.c_str(), value.c_str(), 1);
        RunChild({"crontab", "-"}, kForeign);
    }
    ~ScheduleChain() override {
        for (const auto& [name, value] : Environment()) unsetenv(name.c_str());
    }

    std::string Delivered() const {
        const std::filesystem::directory_iterator file(Home() / "out");
        return file == end(file) ? "" : WithoutMoment(test::ReadBytes(file->path()));
    }

    static std::string WithoutMoment(const std::string& report) {
        return std::regex_replace(report, std::regex("Generated On: [^\r\n]*"), "");
    }

    CrontabKeeper keeper_;
    test::FixedClock clock_;
    NoEvents events_;
    Application application_{Home(), Home() / "temp", {}, settings, prompts, clock_, events_};
};

TEST_F(ScheduleChain, ReachesTheFolderAndTheMailboxWithinItsMinute) {
    const test::SmtpServer server;
    PointMailTo(server);
    const std::string awkward = "It's 50% #1 $(touch injected) `id`;&| <x>";
    const std::string folder = (Home() / "out").string() + "\\";
    SaveSchedule(application_, {awkward, "All Calls", "Daily", Delivery::ToFolder, folder, {}},
                 SaveMode::New);
    SaveSchedule(application_, {"By mail", "All Calls", "Daily", Delivery::ByMail, "", {}}, SaveMode::New);
    CreateBackupTask(application_);
    const std::string tasks = RunChild({"env", "VISUAL=cat", "crontab", "-e"}).out;  // now for every minute
    RunChild({"crontab", "-"},
             std::regex_replace(tasks, std::regex("\n\\d+ \\d+ \\* \\* \\* "), "\n* * * * * "));
    // Ends at once where the machine has a cron already.
    const test::RunningProgram cron("/usr/sbin/cron -f");
    const auto complete = [&] {
        const std::string dump = test::ReadBytes(Home() / "Automated_Backup.sbk");
        return !server.Mails().empty() && !Delivered().empty() &&
               dump.find("INSERT INTO tblusers(") != std::string::npos;
    };
    for (int i = 0; i < 1500 && !complete(); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    for (const char* name : {"By mail", awkward.c_str()}) DeleteSchedule(application_, name);
    DeleteBackupTask(application_);
    EXPECT_EQ(RunChild({"env", "VISUAL=cat", "crontab", "-e"}).out, kForeign);

    ASSERT_TRUE(complete());
    const std::string attached = server.Mails()[0].attachments.at(0).second;
    EXPECT_THAT(attached, HasSubstr("Total Number Of Records: 500"));
    EXPECT_EQ(WithoutMoment(attached), Delivered());
}

}  // namespace
}  // namespace tallix
