#include "foundation/access_log.h"

#include <gtest/gtest.h>

#include "foundation/database.h"
#include "foundation/errors.h"
#include "support/fixed_clock.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

TEST(WriteLog, AddsARowInEveryDialect) {
    const test::TempFolder folder;
    const test::FixedClock clock;  // 9 March 2021, 14:05:30
    Session session;
    session.DBIP = "sqlite:" + folder.Write("calls.db", "").string();
    session.CurrentUser = "Ann";
    for (const char* dbType : {"1", "2", "3"}) {
        session.DBType = dbType;
        session.StrQuote = StringQuote(dbType);
        OpenDatabase(session);
        ado::Connection& connection = OpenConnection(session);
        connection.Execute(
            "CREATE TABLE IF NOT EXISTS tbllogging (Date TEXT, Time TEXT, User TEXT, Data TEXT)");
        WriteLog(session, clock, "Report Run - Daily");

        const ado::Result rows =
            connection.Fetch("select * from tbllogging where User = " + Quoted(session, "Ann"));
        ASSERT_EQ(rows.rows.Rows(), 1);
        EXPECT_EQ(rows.rows.At(0, 0), "09/03/2021");
        EXPECT_EQ(rows.rows.At(0, 1), "14:05");
        EXPECT_EQ(rows.rows.At(0, 3), "Report Run - Daily");
        EXPECT_THROW(WriteLog(session, clock, "Report Run - 5" + session.StrQuote + " x"), DatabaseError);
        EXPECT_EQ(connection.Execute("Delete * from tbllogging"), 1);
    }
    CloseDatabase(session);
    EXPECT_THROW(WriteLog(session, clock, "x"), DatabaseError);
}

}  // namespace
}  // namespace tallix
