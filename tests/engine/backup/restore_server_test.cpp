// A backup from any server restores on any other, and executes nothing else.
#include "backup/restore.h"

#include <gmock/gmock.h>

#include <sstream>

#include "backup/backup.h"
#include "failures/errors.h"
#include "setup/demo_data.h"
#include "support/faults.h"
#include "support/test_application.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using test::ReadLines;
using test::TestApplication;
using testing::ElementsAre;
using testing::ElementsAreArray;

struct NoBars : BackupProgress {
    void ShowOverall(std::size_t, std::size_t) override {}
    void ShowModule(std::int64_t, std::int64_t) override {}
    void ClearModule() override {}
};

const std::set<BackupGroup> kAllGroups = {BackupGroup::ProcessedCalls, BackupGroup::RawCalls,
                                          BackupGroup::SystemOptions};

std::vector<std::string> Dump(TestApplication& from, const std::set<BackupGroup>& groups = kAllGroups,
                              const BackupChannel& channel = {}) {
    NoBars progress;
    const auto file = from.Folder() / "calls.sbk";
    WriteBackup(from.application, channel, file, groups, progress);
    std::vector<std::string> lines = ReadLines(file);
    std::sort(lines.begin(), lines.end());  // a server guarantees no order
    return lines;
}

class Restores : public testing::TestWithParam<const char*> {
protected:
    const test::TestEngine& engine_ = test::EngineNamed(GetParam());
};

TEST_P(Restores, BringBackWhatAnyServerDumped) {
    for (const char* from : test::kSessionEngines) {
        TestApplication files;
        const auto file = files.Folder() / "calls.sbk";
        std::vector<std::string> expected;
        {
            const test::TestEngine& origin = test::EngineNamed(from);
            const auto connection = test::FreshDatabase(origin);
            std::ostringstream said;
            AddDemonstration(*connection, 300, 11, said);
            connection->Execute("INSERT INTO tblrawdata(Data, SiteID) VALUES ('ABCDEFGH', '001')");
            connection->Execute("INSERT INTO tblphonesystem(SystemID, Model) VALUES ('1', 'Café')");
            TestApplication source(origin.Database());
            expected = Dump(source);
            std::filesystem::copy_file(source.Folder() / "calls.sbk", file);
        }
        const auto isDamaged = [](const auto& line) { return std::ranges::count(line, '\'') % 2 == 1; };
        EXPECT_EQ(std::erase_if(expected, isDamaged), 2U) << "an apostrophe in an extension and in a site";
        test::FreshDatabase(engine_);
        TestApplication target(engine_.Database());
        ReplayBackup(target.application, file, kAllGroups, [] {});
        const std::string raw = "INSERT INTO tblrawdata(Data,SiteID) VALUES ('";
        const auto cut = std::find(expected.begin(), expected.end(), raw + "ABCDE','001')");
        ASSERT_NE(cut, expected.end());
        *cut = raw + "AB','001')";
        EXPECT_THAT(Dump(target), ElementsAreArray(expected)) << "from " << from;

        test::FreshDatabase(engine_);
        ReplayBackup(target.application, file, {BackupGroup::SystemOptions}, [] {});
        std::erase_if(expected,
                      [](const auto& line) { return GroupOfLine(line) != BackupGroup::SystemOptions; });
        EXPECT_THAT(Dump(target), ElementsAreArray(expected)) << "without the telephone system";
    }
}

TEST_P(Restores, ExecuteNothingButWholeLinesOfTheDump) {
    test::FreshDatabase(engine_);
    TestApplication target(engine_.Database());
    const auto file = target.Folder() / "bad.sbk";
    std::ofstream(file, std::ios::binary)
        << "DELETE FROM tblextensions\r\n"
        << "insert into tblextensions(ExtensionNo,Name) VALUES ('1','lower')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('2','a'); DELETE FROM tblextensions\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('3','" << std::string(1 << 20, 'x') << "\r\n"
        << " \r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('4','Caf\xE9')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('5','O'Neill')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('6','two\r\nlines')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('7" << '\0' << "\xFF\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('8','cut";
    target.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES (\"0\", \"kept\")");
    int lines = 0;
    ReplayBackup(target.application, file, {BackupGroup::SystemOptions}, [&] { ++lines; });
    EXPECT_EQ(lines, 11);
    const std::string prefix = "INSERT INTO tblextensions(ExtensionNo,Name) VALUES (";
    EXPECT_THAT(Dump(target), ElementsAre(prefix + "'0','kept')", prefix + "'4','Café')"));
}

INSTANTIATE_TEST_SUITE_P(Engines, Restores, testing::ValuesIn(test::kSessionEngines));

TEST(BrokenRestore, EndsByItselfWhenItsServerStops) {
    test::OwnServer server;
    TestApplication target(server.address);
    const auto file = target.Folder() / "calls.sbk";
    for (int i = 0; i < 100; ++i)
        std::ofstream(file, std::ios::app)
            << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('" << i << "','a')\n";
    int lines = 0;
    ReplayBackup(target.application, file, kAllGroups, [&] {
        if (++lines == 50) server.Stop();
    });
    EXPECT_EQ(lines, 100);
}

TEST(BrokenBackup, LeavesWholeLinesOnAFullDiskAndAHeldFileStopsIt) {
    TestApplication test;
    for (int call = 0; call < 1000; ++call) test.InsertCall();
    const std::vector<std::string> whole = Dump(test);
    {
        const test::FullDisk full(100'000);
        EXPECT_THROW(Dump(test), std::runtime_error);
    }
    const auto file = test.Folder() / "calls.sbk";
    EXPECT_LE(std::filesystem::file_size(file), 100'000U);
    EXPECT_EQ(ReadLines(file).at(0), whole.at(0));
    EXPECT_TRUE(Dump(test, {}).empty());

    BackupChannel channel;
    channel.Hold("");
    EXPECT_FALSE(Dump(test, kAllGroups, channel).empty());
    channel.Hold(file);
    EXPECT_EQ(std::filesystem::file_size(file), 0U);
    EXPECT_THROW(Dump(test, kAllGroups, channel), std::runtime_error);
}

}  // namespace
}  // namespace tallix
