#include "database/database_scope.h"

#include <gmock/gmock.h>

#include <optional>
#include <tuple>

#include "failures/errors.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

constexpr char kNowhere[] = "sqlite:/nowhere/calls.db";

TEST(ConnectionText, FollowsTheKindOfDatabase) {
    const std::string server = "SERVER=10.0.0.5;DATABASE=";
    const std::string account = ";UID=Tallix;PWD=p w;OPTION=165932";
    const std::tuple<const char*, std::string, const char*> cases[] = {
        {"1", "DRIVER={MySQL ODBC 5.1 Driver};" + server + "TALLIX" + account, "\"a\""},
        {"2", "PROVIDER=SQLNCLI.1;" + server + "TALLIX" + account, "'a'"},
        {"3", "DRIVER={PostgreSQL ANSI};" + server + "tallix" + account, "\"a\""},
        {"4", "", "\"a\""},
    };
    for (const auto& [stored, text, quoted] : cases) {
        const DatabaseKind kind = DatabaseKindOf(stored);
        EXPECT_EQ(ConnectionText({kind, "10.0.0.5", "Tallix", "p w"}), text);
        EXPECT_EQ(Quoted(kind, "a"), quoted);
    }
}

TEST(DatabaseScope, KeepsRowsAfterItIsClosedAndFindsColumnsWithoutCase) {
    const test::TempFolder folder;
    const DatabaseAddress address = {DatabaseKind::MySql, "sqlite:" + folder.Write("calls.db", "").string(),
                                     "", ""};
    std::optional<DatabaseScope> database(address);
    database->Execute("CREATE TABLE t (a TEXT, b TEXT)");
    for (const char* values : {"('1', NULL)", "('2', 'x')"}) {
        database->Execute(std::string("INSERT INTO t(a, b) VALUES ") + values);
    }
    const ado::Rows rows = database->Query("SELECT * FROM t");
    const ado::Rows none = database->Query("SELECT * FROM t WHERE a = '3'");
    database.reset();

    std::string read;
    const ado::Column second = rows.Find("B");
    for (const ado::Row row : rows) {
        read.append(row.Text("A")).append(row.At(second) ? "=" : " is NULL").append(row.Text(second)) += ';';
    }
    EXPECT_EQ(read, "1 is NULL;2=x;");
    EXPECT_EQ(rows.First().Text("a"), "1");
    EXPECT_THROW(rows.First().Text("c"), DatabaseError);
    EXPECT_THROW(rows.First().Text(rows.Find("c")), DatabaseError);
    EXPECT_THROW(none.First(), DatabaseError);
}

TEST(DatabaseScope, WithoutAConnectionEveryStatementFails) {
    const DatabaseAddress address = {DatabaseKind::Postgres, kNowhere, "", ""};
    EXPECT_THROW(DatabaseScope{address}, DatabaseError);
    const DatabaseScope passedOver = DatabaseScope::TryOpen(address);
    EXPECT_EQ(passedOver.QuotedName("Username"), "'Username'");
    const DatabaseScope unknown(DatabaseAddress{DatabaseKind::Unknown, kNowhere, "", ""});
    for (const DatabaseScope* scope : {&passedOver, &unknown}) {
        EXPECT_FALSE(scope->IsOpen());
        EXPECT_THROW(scope->Query("SELECT 1"), DatabaseError);
        EXPECT_THROW(scope->Execute("DELETE FROM t"), DatabaseError);
    }
}

}  // namespace
}  // namespace tallix
