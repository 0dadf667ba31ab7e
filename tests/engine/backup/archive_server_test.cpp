// Calls leave tblphonedata for a file or a table, with the same outcome on every server, and
// none is lost when the archiving fails.
#include <gmock/gmock.h>

#include "backup/archive.h"
#include "failures/errors.h"
#include "support/faults.h"
#include "support/run_program.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

/// Answers as a window would, and notes the calls it gets.
class NotedView : public ArchiveView, public RunProgress {
public:
    void ShowProgress() override { shown += "show "; }
    ArchiveRequest Request() const override { return request; }
    void LockInputs() override { shown += "lock "; }
    RunProgress& Records() override { return *this; }
    void ClearInputs() override { shown += "clear "; }
    void HideProgress() override { shown += "hide "; }
    void ResetProgress() override { shown += "reset"; }
    void Record(std::int64_t record, std::int64_t) override {
        if (record == strikesAt) strike();
    }

    ArchiveRequest request;
    std::string shown;
    std::int64_t strikesAt = 0;
    std::function<void()> strike;
};

constexpr char kCalls[] = "select ID from tblphonedata order by ID";
constexpr char kArchived[] = "select ID, Date, Error, Site from tblarchive order by ID";

ArchiveRequest WholeYear(const char* year, ArchiveDestination destination) {
    return {ArchivePeriod::EntireYear, year, "", "", destination, {"any", "x"}};
}

class Archives : public test::EngineTest {
protected:
    Archives() {
        test_.Execute("INSERT INTO tblphonedata(Trunk) VALUES ('T')");  // a call without a date
        for (const char* date : {"15/03/2009", "01/01/2010", "31/06/2010", "02/07/2010", "05/05/10"})
            test_.InsertCall({{"Date", date}, {"Account", "Zoë"}});
        test_.prompts.answers = {Answer::Yes};
    }

    NotedView view_;
};

TEST_P(Archives, TakeTheCallsWhoseTextIsBetweenTheMonths) {
    const std::string file = test_.Folder() / "out.SAF";
    view_.request = {ArchivePeriod::SelectedMonths, "",           "01/2010", "06/2010",
                     ArchiveDestination::ToFile,    {"any", file}};
    RunArchive(test_.application, view_);
    EXPECT_EQ(view_.shown, "show lock clear hide reset");
    EXPECT_EQ(test_.Rows(kCalls), "1|\n5|\n6|\n");
    EXPECT_EQ(test::RunProgram("/usr/bin/unzip", {"-t", file}).status, 0);
    EXPECT_EQ(test::RunProgram("/usr/bin/unzip", {"-p", file, "archive.tmp"}).out,
              "Tallix Archive File\r\nGenerated on: 09/03/2021\r\n"
              "2 15/03/2009 10:15:00 00:02:30 201 3 201 01632960123 0 0 0 0 0 T001 Zo\xEB\r\n"
              "3 01/01/2010 10:15:00 00:02:30 201 3 201 01632960123 0 0 0 0 0 T001 Zo\xEB\r\n"
              "4 31/06/2010 10:15:00 00:02:30 201 3 201 01632960123 0 0 0 0 0 T001 Zo\xEB\r\n");
    EXPECT_FALSE(std::filesystem::exists(test_.application.folder / "archive.tmp"));
    EXPECT_EQ(test_.prompts.messages.back().title, "Archive Complete!");
    EXPECT_EQ(test_.Rows("select Data from tbllogging"), "Data Archived|\n");
}

TEST_P(Archives, TakeTheYearIntoTheTableWithNullsAndSites) {
    test_.Execute("UPDATE tblphonedata SET Error = NULL, Site = '002' WHERE ID = 5");
    view_.request = WholeYear("2010", ArchiveDestination::ToDatabase);
    RunArchive(test_.application, view_);
    EXPECT_EQ(test_.Rows(kCalls), "1|\n2|\n6|\n");
    EXPECT_EQ(test_.Rows(kArchived), "1|01/01/2010|0|001|\n2|31/06/2010|0|001|\n3|02/07/2010|NULL|002|\n");
    test_.Execute("DELETE FROM tblphonedata");
    test_.prompts.answers = {Answer::Yes};
    EXPECT_THROW(RunArchive(test_.application, view_), DatabaseError) << "closes a set that was not opened";
    EXPECT_EQ(test_.prompts.messages.back().icon, MessageIcon::Critical);
}

INSTANTIATE_TEST_SUITE_P(Engines, Archives, testing::ValuesIn(test::kSessionEngines));

TEST(BrokenArchive, LosesNoCallWithItsServer) {
    for (const auto destination : {ArchiveDestination::ToDatabase, ArchiveDestination::ToFile}) {
        test::OwnServer server;
        test::TestApplication test(server.address);
        for (int call = 0; call < 6; ++call) test.InsertCall();
        NotedView view;
        view.request = WholeYear("2021", destination);
        view.strikesAt = 4;
        const std::size_t rows = destination == ArchiveDestination::ToDatabase ? 3 : 0;
        view.strike = [&] {
            EXPECT_EQ(test.Rows(kCalls), "4|\n5|\n6|\n");
            EXPECT_EQ(test.Rows("select count(*) from tblarchive"), std::to_string(rows) + "|\n");
            server.Stop();
        };
        test.prompts.answers = {Answer::Yes};
        EXPECT_THROW(RunArchive(test.application, view), DatabaseError);
        EXPECT_EQ(view.shown, "show lock ");
        EXPECT_THAT(test::ReadLines(test.application.folder / "archive.tmp"),
                    testing::SizeIs(rows > 0 ? 0 : 2 + 4));
    }
}

TEST(BrokenArchive, LosesNoCallWithAFullDiskButAllWithoutItsZipFile) {
    test::FreshDatabase(test::EngineNamed("mariadb"));
    test::TestApplication test(test::EngineNamed("mariadb").Database());
    for (int call = 0; call < 6; ++call) test.InsertCall();
    NotedView view;
    view.request = WholeYear("2021", ArchiveDestination::ToFile);
    view.request.target.location = test.Folder() / "absent/out.SAF";
    test.prompts.answers = {Answer::Yes, Answer::Yes};
    {
        const test::FullDisk full(300);
        EXPECT_THROW(RunArchive(test.application, view), std::runtime_error);
    }
    EXPECT_THAT(test::ReadLines(test.application.folder / "archive.tmp"), testing::SizeIs(2 + 3 + 1))
        << "the last in part";
    EXPECT_EQ(test.Rows(kCalls), "4|\n5|\n6|\n");
    RunArchive(test.application, view);
    EXPECT_EQ(test.Rows(kCalls), "");
    EXPECT_EQ(test.prompts.messages.back().title, "Archive Complete!");
}

}  // namespace
}  // namespace tallix
