#include "session/access_log.h"

#include <gmock/gmock.h>

#include "database/database_scope.h"
#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix {
namespace {

class AccessLogTest : public testing::Test {
protected:
    std::string Export() {
        ExportAccessLog(test.application.session, test.application.folder);
        return test::ReadBytes(test.application.folder / "AccessLog.txt");
    }

    std::vector<AccessLogRow> Rows() { return ReadAccessLog(test.application.session); }

    test::TestApplication test;
};

TEST_F(AccessLogTest, WritesARowInEveryDialect) {
    Session& session = test.application.session;
    for (const DatabaseKind kind : {DatabaseKind::MySql, DatabaseKind::SqlServer, DatabaseKind::Postgres}) {
        session.database.kind = kind;
        const DatabaseScope database(session.database);
        WriteLog(database, session, test.clock, "Report Run - Daily");
        const std::string broken = "Report Run - 5" + std::string(StringQuote(kind)) + " x";
        EXPECT_THROW(WriteLog(database, session, test.clock, broken), DatabaseError);
    }
    const AccessLogRow row = {"09/03/2021", "14:05", "Ann", "Report Run - Daily"};
    EXPECT_THAT(Rows(), testing::ElementsAre(row, row, row));
}

TEST_F(AccessLogTest, ARowOnItsOwnIsPassedOverWhereItFails) {
    Session& session = test.application.session;
    LogOnItsOwn(session, test.clock, "Report Printed");
    LogOnItsOwn(session, test.clock, "Report Run - 5\" x");
    EXPECT_THAT(Rows(), testing::ElementsAre(AccessLogRow{"09/03/2021", "14:05", "Ann", "Report Printed"}));
    session.database.server = "sqlite:/nowhere/at/all.db";
    EXPECT_NO_THROW(LogOnItsOwn(session, test.clock, "Logged Out"));
}

TEST_F(AccessLogTest, ExportAddsToTheFileAndAnEmptyLogLeavesItAlone) {
    EXPECT_EQ(Export(), "");
    EXPECT_FALSE(std::filesystem::exists(test.application.folder / "AccessLog.txt"));
    test.Insert(
        "tbllogging",
        {{"Date", "09/03/2021"}, {"Time", "14:05"}, {"User", "Ren\u00E9"}, {"Data", "Report Run - a,b"}});
    test.Execute("INSERT INTO tbllogging(Date) VALUES ('10/03/2021')");
    EXPECT_THAT(Rows(),
                testing::ElementsAre(AccessLogRow{"09/03/2021", "14:05", "Ren\u00E9", "Report Run - a,b"},
                                     AccessLogRow{"10/03/2021", "", "", ""}));

    const std::string lines = "09/03/2021,14:05,Ren\xE9,Report Run - a,b\r\n10/03/2021,,,\r\n";
    EXPECT_EQ(Export(), lines);
    EXPECT_EQ(Export(), lines + lines);
    test.Execute("DELETE FROM tbllogging");
    EXPECT_EQ(Export(), lines + lines);

    test.Insert("tbllogging", {{"Data", "x"}});
    std::filesystem::remove(test.application.folder / "AccessLog.txt");
    std::filesystem::create_directory(test.application.folder / "AccessLog.txt");
    EXPECT_THROW(Export(), std::runtime_error);
}

TEST_F(AccessLogTest, AClearedLogHoldsItsClearingAlone) {
    for (int i = 0; i < 3; ++i) test.Insert("tbllogging", {{"Data", "Logged In"}});
    ClearAccessLog(test.application.session, test.clock);
    EXPECT_THAT(Rows(),
                testing::ElementsAre(AccessLogRow{"09/03/2021", "14:05", "Ann", "Access Log Cleared!"}));
}

}  // namespace
}  // namespace tallix
