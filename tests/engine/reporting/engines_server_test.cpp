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

// Runs every shipped report in each of its ways and keeps the pages.
void RunReports(TestApplication& test, const std::string& providers, const std::string& costs, Files& files) {
    test.settings.Write("Providers", providers);
    test.settings.Write("CostCompute", costs);
    ReportFlags flags;
    NoProgress progress;
    const RunInputs one = {"201", "1001", "001", "Sales", "01/02/2023", "", "09:00", "17:30"};
    RunInputs all = one;
    all.site = all.group = "ALL";
    for (const std::string& name : ListReports(PresetReportsFolder(kData))) {
        const std::filesystem::path file = PresetReportFile(kData, name);
        const RunKind ways[] = {
            PresetRun{.flags = flags, .reportFile = file, .inputs = one},
            PresetRun{.flags = flags, .reportFile = file, .inputs = all},
            UnattendedRun{.flags = flags, .reportFile = file, .inputs = all},
        };
        int way = 0;
        for (const RunKind& kind : ways) {
            ReportRun(test.application, progress).Make({.reportName = name, .kind = kind});
            const std::string key = name + " " + std::to_string(++way) + " providers " + providers;
            files[key] = Replace(ReadBytes(PageFile(test.application)), test.Folder().string(), "");
        }
    }
}

Files FilesOf(const std::string& engineName) {
    const test::TestEngine& engine = test::EngineNamed(engineName);
    const std::unique_ptr<ado::Connection> connection = test::FreshDatabase(engine);
    std::ostringstream said;
    FillReferenceData(*connection, kData / "reference", said);
    AddDemonstration(*connection, kCalls, kSeed, said);
    connection->Execute("INSERT INTO tblrawdata(Data, SiteID) VALUES ('0105 10:15 201 T001   ', '001')");
    TestApplication test(engine.Database());
    Files files;
    for (const auto& [name, value] :
         {std::pair("V1Reports", "1"), {"AreaCode", "1"}, {"TimeOpen", "08:30"}, {"TimeClosed", "17:30"}}) {
        test.settings.Write(name, value);
    }
    ComputeCosts(test.application.session, test.settings);
    RunReports(test, "1", "1", files);
    RunReports(test, "2", "0", files);
    // Every field of every call, which names extensions by their bare numbers.
    CustomReport report = {.destination = Destination::InExternalApplication};
    report.shown.fill(true);
    NoProgress progress;
    ReportRun(test.application, progress).Make({.reportName = "Mine", .kind = CustomRun{report}});
    files["custom"] = ReadBytes(PageFile(test.application));
    WriteAutomatedBackup(test.application);
    files["dump"] = ReadBytes(test.application.folder / kAutomatedBackupName);
    return files;
}

TEST(Engines, GiveTheSameReportsAndDumps) {
    const Files expected = FilesOf("sqlite");
    for (const auto& [key, rows] :
         {std::pair("dump", kCalls), {"custom", kCalls / 2}, {"All Calls 2 providers 1", kCalls / 8}}) {
        ASSERT_GT(std::ranges::count(expected.at(key), '\n'), rows) << key;
    }
    for (const char* name : {"mariadb", "postgres"}) {
        const Files files = FilesOf(name);
        ASSERT_EQ(files.size(), expected.size());
        for (const auto& [key, bytes] : expected) {
            const std::string& actual = files.at(key);
            const auto same = std::ranges::mismatch(bytes, actual).in1 - bytes.begin();
            EXPECT_TRUE(bytes == actual) << name << ": " << key << ": " << bytes.substr(same, 100) << " | "
                                         << actual.substr(same, 100);
        }
    }
}

}  // namespace
}  // namespace tallix
