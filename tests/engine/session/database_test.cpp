#include "session/database.h"

#include <gtest/gtest.h>

#include "failures/errors.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

TEST(ConnectionText, IsThatOfTheDialect) {
    Session session;
    session.DBIP = "10.0.0.5";
    session.SQLUser = "Tallix";
    session.SQLPass = "p w";
    const std::string server = "SERVER=10.0.0.5;DATABASE=";
    const std::string account = ";UID=Tallix;PWD=p w;OPTION=165932";
    for (const auto& [dbType, text, quote] : std::vector<std::tuple<std::string, std::string, std::string>>{
             {"1", "DRIVER={MySQL ODBC 5.1 Driver};" + server + "TALLIX" + account, "\""},
             {"2", "PROVIDER=SQLNCLI.1;" + server + "TALLIX" + account, "'"},
             {"3", "DRIVER={PostgreSQL ANSI};" + server + "tallix" + account, "\""},
             {"4", "", "\""}}) {
        session.DBType = dbType;
        EXPECT_EQ(ConnectionText(session), text);
        EXPECT_EQ(StringQuote(dbType), quote);
    }
}

TEST(OpenDatabase, ConnectsReplacesAndCloses) {
    const test::TempFolder folder;
    Session session;
    OpenDatabase(session);  // of no dialect
    EXPECT_EQ(session.DBConn, nullptr);
    session.DBType = "1";
    session.DBIP = "sqlite:/nowhere/calls.db";
    EXPECT_THROW(OpenDatabase(session), DatabaseError);
    EXPECT_THROW(OpenConnection(session), DatabaseError);

    session.DBType = "3";
    session.DBIP = "sqlite:" + folder.Write("calls.db", "").string();
    OpenDatabase(session);
    EXPECT_EQ(session.IdQuote, "'");
    OpenConnection(session).Execute("CREATE TABLE t (a TEXT)");
    session.DBType = "1";
    OpenDatabase(session);
    EXPECT_EQ(session.IdQuote, "");
    EXPECT_EQ(OpenConnection(session).Execute("DELETE FROM t"), 0);
    CloseDatabase(session);
    CloseDatabase(session);
    EXPECT_EQ(session.DBConn, nullptr);
}

}  // namespace
}  // namespace tallix
