#include "custody/restore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "custody/backup.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::ReadLines;
using test::TestApplication;
using ::testing::ElementsAre;

struct NoProgress : BackupProgress {
    void ShowOverall(std::size_t, std::size_t) override {}
    void ShowModule(std::int64_t, std::int64_t) override {}
    void ClearModule() override {}
};

const std::set<BackupGroup> kAllGroups = {BackupGroup::ProcessedCalls, BackupGroup::RawCalls,
                                          BackupGroup::SystemOptions};

class RestoreTest : public ::testing::Test {
protected:
    void Dump(TestApplication& from, const BackupChannel& channel = {}) {
        NoProgress progress;
        WriteBackup(from.application, channel, file, kAllGroups, progress);
    }
    void Replay(const std::set<BackupGroup>& groups) {
        ReplayBackup(target.application, file, groups, [this] { ++lines; });
    }

    TestApplication target;
    std::filesystem::path file = target.Folder() / "calls.sbk";
    int lines = 0;
};

TEST_F(RestoreTest, BringsBackWhatWasDumpedWithRawLinesCut) {
    TestApplication source;
    source.InsertCall();
    source.Insert("tblphonesystem", {{"SystemID", "1"}, {"Manafacturer", "Acme"}});
    source.Insert("tblrawdata", {{"Data", "ABCDEFGH"}, {"SiteID", "001"}});
    source.Insert("tblextensions", {{"ExtensionNo", "2001"}, {"Name", "Café Desk"}});
    Dump(source);
    const std::vector<std::string> dumped = ReadLines(file);

    Replay({BackupGroup::ProcessedCalls, BackupGroup::RawCalls});
    EXPECT_EQ(lines, 4);
    Dump(target);
    std::vector<std::string> expected = {dumped[0], dumped[1], dumped[3]};
    expected[1].replace(expected[1].find("ABCDE"), 5, "AB");
    EXPECT_EQ(ReadLines(file), expected);
}

TEST_F(RestoreTest, ExecutesNothingButWholeLinesOfTheDump) {
    std::ofstream(file, std::ios::binary)
        << "DELETE FROM tblextensions\r\n"
        << "insert into tblextensions(ExtensionNo,Name) VALUES ('1','lower')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('2','a'); DELETE FROM tblextensions\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('3','" << std::string(1 << 20, 'x') << "\r\n"
        << " \r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('4','Caf\xE9')\r\n"
        << "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('5','cut";
    target.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES (\"0\", \"kept\")");
    Replay({BackupGroup::SystemOptions});
    EXPECT_EQ(lines, 7);
    Dump(target);
    const std::string prefix = "INSERT INTO tblextensions(ExtensionNo,Name) VALUES (";
    EXPECT_THAT(ReadLines(file), ElementsAre(prefix + "'0','kept')", prefix + "'4','Café')"));
}

TEST_F(RestoreTest, AHeldFileIsCutAndStopsALaterBackup) {
    std::ofstream(file) << "earlier";
    BackupChannel channel;
    channel.Hold("");
    channel.RequireFree();
    channel.Hold(file);
    EXPECT_EQ(std::filesystem::file_size(file), 0U);
    EXPECT_THROW(Dump(target, channel), std::runtime_error);
}

}  // namespace
}  // namespace tallix
