// A person's session at the screen, over the accessibility bus, by captions alone.
#include <gmock/gmock.h>

#include "programs/setup/setup_installation.h"
#include "support/places.h"
#include "support/print_server.h"

namespace tallix {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

constexpr char kPassword[] = "Larkfield7";

class SessionSystem : public testing::Test, protected test::SetupInstallation {};

TEST_F(SessionSystem, LogsInReadsAndPrintsAReportAndLogsOut) {
    const test::PrintServer printer("Front_Office");
    for (const char* data : {"Reports", "Company Docs"}) {
        fs::copy(test::SourceFolder() / "data" / data, Home() / data, fs::copy_options::recursive);
    }
    fs::create_directory(Home() / "temp");
    // Nobody listens there: the check for a newer version leaves the machine alone.
    Folder().Write("Site.ini", "[Web]\r\nManifest=HTTP://127.0.0.1:9/\r\n");
    ASSERT_EQ(RunSetup({"--demo", "300", "--admin-password", kPassword}).status, 0);
    const fs::path script = test::SourceFolder() / "tests/programs/reports_tool/session.py";
    const test::ProgramRun session =
        test::RunProgram("/usr/bin/python3", {script, test::ReportsProgram(), kPassword},
                         {{"TALLIX_HOME", Home()},
                          {"TALLIX_REGISTRY", Hive().parent_path()},
                          {"TALLIX_STEP_MS", "20"},
                          {"Temp", Home() / "temp"}});
    ASSERT_EQ(session.status, 0) << session.out << session.err;

    EXPECT_EQ(Rows("SELECT Data FROM tbllogging"),
              "Logged In|\nReport Run - All Calls|\nReport Printed|\nLogged Out|\n");
    const std::string firstCall = Rows("SELECT Date, Time FROM tblphonedata ORDER BY Date, Time LIMIT 1");
    EXPECT_THAT(session.out, testing::StartsWith(firstCall.substr(0, firstCall.size() - 1)));
    EXPECT_THAT(session.out, HasSubstr("|Zo\xC3\xAB Hartley|"));
    ASSERT_EQ(printer.Jobs().size(), 1U);
    const auto job = test::RunProgram("/usr/bin/pdftotext", {"-layout", printer.Jobs().front(), "-"});
    EXPECT_THAT(job.out, HasSubstr("Total Number Of Records: 300"));
    EXPECT_TRUE(fs::is_empty(Home() / "temp"));
}

}  // namespace
}  // namespace tallix
