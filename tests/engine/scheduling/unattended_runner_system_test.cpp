// Scheduled reports and the dump as the operating system's scheduler runs them: the
// built programs from outside, with no display.
#include <fmt/chrono.h>
#include <gmock/gmock.h>

#include <ctime>

#include "programs/setup/setup_installation.h"
#include "support/places.h"

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
        const std::filesystem::path file =
            Folder().Write("Reports/Scheduled/My Task.SSR",
                           ";Tallix - Scheduled Report\r\n;\r\n[General]\r\nReport=" + report +
                               "\r\nUser=Administrator\r\n" + keys);
        const test::ProgramRun run = Run("\"" + file.string() + "\"");
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err + run.out, "");
    }

    std::string ToFolder() const {
        return "Output=File\r\nOutputLocation=" + (Home() / "out").string() + "\\\r\n";
    }

    static std::string Today() { return fmt::format("{:%d_%m_%Y}.csv", fmt::localtime(std::time(nullptr))); }
};

TEST_F(UnattendedRunTest, DeliversOneFileADayToAFolder) {
    RunSchedule("Standard\\STD_All Calls.SRT", ToFolder());
    const std::filesystem::path delivered = Home() / "out" / Today();
    const std::vector<std::string> lines = ReadLines(delivered);
    ASSERT_THAT(lines, SizeIs(5 + 500 + 2));
    EXPECT_THAT(lines.back(), StartsWith("Total Number Of Records: 500"));
    EXPECT_FALSE(std::filesystem::exists(Home() / "temp" / "rpt.tmp"));

    const std::string first = ReadBytes(delivered);
    RunSchedule("Standard\\STD_Outgoing Calls.SRT", ToFolder());
    EXPECT_EQ(ReadBytes(delivered), first) << "the second run of a day is lost";
    EXPECT_TRUE(std::filesystem::exists(Home() / "temp" / "rpt.tmp")) << "and stays in the working files";
}

TEST_F(UnattendedRunTest, TakesItsFiltersFromTheSchedule) {
    RunSchedule("Standard\\STD_All Calls.SRT",
                ToFolder() + "TimeS=09:00\r\nTimeF=12:00\r\nDate=01/01/1999\r\n");
    const std::vector<std::string> lines = ReadLines(Home() / "out" / Today());
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
    const auto mails = server.Mails();
    ASSERT_THAT(mails, SizeIs(1));
    EXPECT_THAT(mails[0].attachments,
                ElementsAre(Pair(Today(), StartsWith("Tallix Reports - Internal Calls\r\n"))));

    settings.Write("SMTPAuth", "0");
    RunSchedule("Standard\\STD_Internal Calls.SRT", "Output=Email\r\n");
    EXPECT_THAT(server.Mails(), SizeIs(1)) << "the server takes no mail without a login";
}

TEST_F(UnattendedRunTest, ContinuesWithWhatIsMissing) {
    RunSchedule("Standard\\STD_No Such Report.SRT", ToFolder());
    EXPECT_THAT(ReadLines(Home() / "out" / Today()), SizeIs(5 + 500 + 2)) << "all calls, no columns";
    RunSchedule("", "Output=File\r\nOutputLocation=/no/such/folder\\\r\n");

    std::filesystem::remove(Home() / "out" / Today());
    settings.Write("DBIP", "127.0.0.1:1");
    RunSchedule("Standard\\STD_All Calls.SRT", ToFolder());
    EXPECT_THAT(ReadLines(Home() / "out" / Today()), SizeIs(5 + 2)) << "the head and a zero total";

    for (const char* nothing : {"backup", "/no/such/file.ssr", "\"/no/such/file.SSR\" "}) {
        const test::ProgramRun run = Run(nothing);
        EXPECT_EQ(std::to_string(run.status) + run.err, "0") << nothing;
    }
}

TEST_F(UnattendedRunTest, DumpsSixTables) {
    EXPECT_EQ(Run("Backup").status, 0);
    EXPECT_THAT(ReadLines(Home() / "Automated_Backup.sbk").back(), StartsWith("INSERT INTO tblusers("));
    settings.Write("DBIP", "sqlite:/no/such/folder/tallix.db");
    const test::ProgramRun failed = Run("Backup");
    EXPECT_EQ(failed.status, 1);
    EXPECT_THAT(failed.err, HasSubstr("/no/such/folder/tallix.db"));
}

}  // namespace
}  // namespace tallix
