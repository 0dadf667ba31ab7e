// The same world of calls gives the same bytes on every engine: each shipped report, at
// the screen and scheduled, and the dump.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "backup/automated_backup.h"
#include "costing/cost_computation.h"
#include "database/database_scope.h"
#include "reporting/custom_reports.h"
#include "reporting/report_run.h"
#include "setup/demo_data.h"
#include "setup/reference_data.h"
#include "support/places.h"
#include "support/test_application.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::TestApplication;

constexpr std::uint64_t kCalls = 4000;
constexpr std::uint64_t kSeed = 7;

const std::filesystem::path kData = test::SourceFolder() / "data";

using Files = std::map<std::string, std::string>;

void FillWorld(const test::TestEngine& engine) {
    const std::unique_ptr<ado::Connection> connection = test::FreshDatabase(engine);
    std::ostringstream said;
    FillReferenceData(*connection, kData / "reference", said);
    AddDemonstration(*connection, kCalls, kSeed, said);
    connection->Execute("INSERT INTO tblrawdata(Data, SiteID) VALUES ('0105 10:15 201 T001   ', '001')");
}

const RunInputs kInputs = {.extension = "201",
                           .account = "1001",
                           .site = "001",
                           .group = "Sales",
                           .startDate = "01/02/2023",
                           .endDate = "",
                           .timeFrom = "09:00",
                           .timeTo = "17:30"};

RunInputs AllSites() {
    RunInputs inputs = kInputs;
    inputs.site = inputs.group = "ALL";
    return inputs;
}

// Runs every shipped report in each of its ways and keeps the pages.
void RunReports(TestApplication& test, const std::string& providers, const std::string& costs, Files& files) {
    test.settings.Write("Providers", providers);
    test.settings.Write("CostCompute", costs);
    ReportFlags flags;
    NoProgress progress;
    for (const std::string& name : ListReports(PresetReportsFolder(kData))) {
        const std::filesystem::path file = PresetReportFile(kData, name);
        const RunKind ways[] = {
            PresetRun{.flags = flags, .reportFile = file, .inputs = kInputs},
            PresetRun{.flags = flags, .reportFile = file, .inputs = AllSites()},
            UnattendedRun{.flags = flags, .reportFile = file, .inputs = AllSites()},
        };
        int way = 0;
        for (const RunKind& kind : ways) {
            ReportRun(test.application, progress).Make({.reportName = name, .kind = kind});
            const std::string key = name + " " + std::to_string(++way) + " providers " + providers;
            files[key] = Replace(ReadBytes(PageFile(test.application)), test.Folder().string(), "");
        }
    }
}

// Every field of every call, which names extensions by their bare numbers.
void RunCustomReport(TestApplication& test, Files& files) {
    CustomReport report;
    report.shown.fill(true);
    report.destination = Destination::InExternalApplication;
    NoProgress progress;
    ReportRun(test.application, progress).Make({.reportName = "Mine", .kind = CustomRun{report}});
    files["custom"] = ReadBytes(PageFile(test.application));
}

Files FilesOf(const std::string& engineName) {
    const test::TestEngine& engine = test::EngineNamed(engineName);
    FillWorld(engine);
    TestApplication test(engine.Database());
    Files files;
    for (const auto& [name, value] :
         {std::pair("V1Reports", "1"), {"AreaCode", "1"}, {"TimeOpen", "08:30"}, {"TimeClosed", "17:30"}}) {
        test.settings.Write(name, value);
    }
    ComputeCosts(test.application.session, test.settings);
    RunReports(test, "1", "1", files);
    RunReports(test, "2", "0", files);
    RunCustomReport(test, files);
    WriteAutomatedBackup(test.application);
    files["dump"] = ReadBytes(test.application.folder / kAutomatedBackupName);
    return files;
}

std::ptrdiff_t RowsOf(const std::string& page) {
    return std::count(page.begin(), page.end(), '\n');
}

// The first line in which two files differ, both ways; a page is too long to print.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
    std::istringstream left(expected);
    std::istringstream right(actual);
    std::string ours;
    std::string theirs;
    while (std::getline(left, ours) && std::getline(right, theirs)) {
        if (ours != theirs) return ours + " | " + theirs;
    }
    return expected == actual ? "" : "different lengths";
}

TEST(Engines, GiveTheSameReportsAndDumps) {
    const Files expected = FilesOf("sqlite");
    ASSERT_GT(RowsOf(expected.at("dump")), kCalls);
    ASSERT_GT(RowsOf(expected.at("custom")), kCalls / 2);
    ASSERT_GT(RowsOf(expected.at("All Calls 2 providers 1")), kCalls / 8);
    for (const char* name : {"mariadb", "postgres"}) {
        const Files actual = FilesOf(name);
        ASSERT_EQ(actual.size(), expected.size());
        for (const auto& [key, bytes] : expected)
            EXPECT_EQ(FirstDifference(bytes, actual.at(key)), "") << name << ": " << key;
    }
}

}  // namespace
}  // namespace tallix
