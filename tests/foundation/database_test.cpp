#include "foundation/database.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

TEST(ConnectionText, IsThatOfTheDialect) {
    Session session;
    session.DBIP = "10.0.0.5";
    session.SQLUser = "Tallix";
    session.SQLPass = "p w";
    for (const auto& [dbType, text, quote] : std::vector<std::tuple<std::string, std::string, std::string>>{
             {"1",
              "DRIVER={MySQL ODBC 5.1 Driver};SERVER=10.0.0.5;DATABASE=TALLIX;UID=Tallix;PWD=p "
              "w;OPTION=165932",
              "\""},
             {"2", "PROVIDER=SQLNCLI.1;SERVER=10.0.0.5;DATABASE=TALLIX;UID=Tallix;PWD=p w;OPTION=165932",
              "'"},
             {"3",
              "DRIVER={PostgreSQL ANSI};SERVER=10.0.0.5;DATABASE=tallix;UID=Tallix;PWD=p w;OPTION=165932",
              "\""},
             {"", "", "\""},
             {"4", "", "\""}}) {
        session.DBType = dbType;
        EXPECT_EQ(ConnectionText(session), text);
        EXPECT_EQ(StringQuote(dbType), quote);
    }
}

TEST(OpenDatabase, ConnectsReplacesAndCloses) {
    const test::TempFolder folder;
    Session session;
    session.DBType = "3";
    session.DBIP = "sqlite:" + folder.Write("calls.db", "").string();
    EXPECT_THROW(OpenConnection(session), DatabaseError);
    CloseDatabase(session);

    OpenDatabase(session);
    EXPECT_EQ(session.IdQuote, "'");
    OpenConnection(session).Execute("CREATE TABLE t (a TEXT)");
    session.DBType = "1";
    OpenDatabase(session);
    EXPECT_EQ(session.IdQuote, "");
    EXPECT_EQ(OpenConnection(session).Execute("DELETE FROM t"), 0);
    CloseDatabase(session);
    EXPECT_EQ(session.DBConn, nullptr);
}

TEST(OpenDatabase, DoesNothingForAnUnknownDialectAndLeavesNothingOpenWhenRefused) {
    Session session;
    session.IdQuote = "'";
    OpenDatabase(session);
    EXPECT_EQ(session.DBConn, nullptr);
    EXPECT_EQ(session.IdQuote, "'");
    session.DBType = "1";
    session.DBIP = "sqlite:/nowhere/calls.db";
    EXPECT_THROW(OpenDatabase(session), DatabaseError);
    EXPECT_THROW(OpenConnection(session), DatabaseError);
}

}  // namespace
}  // namespace tallix
