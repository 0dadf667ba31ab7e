// The dialect of the server that engines_server_test.cpp cannot run, and what running does not show.
#include "database/translation.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <regex>
#include <set>

#include "database/schema.h"
#include "database/statement.h"
#include "support/places.h"
#include "support/temp_folder.h"
#include "text/text_conversion.h"

namespace tallix::ado {
namespace {

using Tables = std::map<std::string, std::set<std::string>>;

TEST(Translate, SpeaksTheDialectOfTheServer) {
    using enum Server;
    const std::tuple<Server, const char*, const char*> cases[] = {
        {SqlServer, R"(SELECT * FROM tblextensions WHERE Name = "it's ""so"" \")",
         R"(SELECT * FROM tblextensions WHERE Name = 'it''s "so" \')"},
        {SqlServer, R"(SELECT * FROM t WHERE Number ="a -- ; [b] `c` tblSite 'User' = 1")",
         R"(SELECT * FROM t WHERE Number ='a -- ; [b] `c` tblSite ''User'' = 1')"},
        // An unescaped quote stays the mistake that it is.
        {SqlServer, R"(select * from t where a = "Fre"d")", R"(select * from t where a = 'Fre'd")"},
        {Postgres, R"(select * from tblusers where 'Username' = "6A00")",
         R"(select * from tblusers where "username" = '6A00')"},
        {Sqlite, R"(select * from t where (Name <> "a" AND 'a b' = Name))",
         R"(select * from t where (Name <> 'a' AND 'a b' = Name))"},
        {SqlServer, R"(INSERT INTO tbllogging(Date, Time, User, Data) VALUES("1", "2", "Ann", "In");)",
         "INSERT INTO tbllogging(Date, Time, [User], Data) VALUES('1', '2', 'Ann', 'In');"},
        {MySql, "UPDATE tbllogging SET [Us]]er] = 'a'", "UPDATE tbllogging SET `Us]er` = 'a'"},
        {Postgres, "UPDATE tbllogging SET [Us]]er] = 'a'", R"(UPDATE tbllogging SET "us]er" = 'a')"},
        {MySql, "UPDATE tblsite SET 3PTName = 'x'", "UPDATE tblsite SET 3PTName = 'x'"},
        {SqlServer, "UPDATE tblsite SET 3PTName = 'x'", "UPDATE tblsite SET [3PTName] = 'x'"},
        {SqlServer, "Delete * From tblcostmap", "Delete From tblcostmap"},
        // Sqlite compares texts with bare numbers as numbers where the translation demands it.
        {Sqlite, "select * from t where a.[Rings]>=-1.5e3 and 7 <> `b` and not c!=.5",
         "select * from t where CAST(a.[Rings] AS REAL)>=-1.5e3 and 7 <> CAST(`b` AS REAL) and not CAST(c AS "
         "REAL)!=.5"},
        {Sqlite, "select * from t where a between 1 and 5 or b not in (1, 2)",
         "select * from t where CAST(a AS REAL) between 1 and 5 or CAST(b AS REAL) not in (1, 2)"},
        {Sqlite, "select * from t where 'Rings' < 3", R"(select * from t where CAST("Rings" AS REAL) < 3)"},
        {Sqlite, "select * from t where Site = '1' and a = 3PTName",
         R"(select * from t where Site = '1' and a = "3PTName")"},
        {Sqlite, "update t set GroupID = 0 where GroupID=4",
         "update t set GroupID = 0 where CAST(GroupID AS REAL)=4"},
        // Equal rows have one order.
        {Postgres, "SELECT * FROM tblphonedata ORDER BY Date, Time DESC, Site",
         "SELECT * FROM tblphonedata ORDER BY Date NULLS FIRST, Time DESC NULLS LAST, Site NULLS FIRST, ID"},
        {SqlServer, "SELECT * FROM tblPhoneData WHERE Site = '1' LIMIT 5;",
         "SELECT * FROM tblPhoneData WHERE Site = '1' ORDER BY ID LIMIT 5;"},
        {SqlServer, "SELECT a, COUNT(a) FROM tblphonedata GROUP BY a HAVING a > '' ",
         "SELECT a, COUNT(a) FROM tblphonedata GROUP BY a HAVING a > '' ORDER BY a "},
        {SqlServer, "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC",
         "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC, a"},
        // Patterns have no escape character but the one that they name.
        {SqlServer, R"(SELECT * FROM tblcosts WHERE Number LIKE "0[1\%")",
         R"(SELECT * FROM tblcosts WHERE Number LIKE '0[[]1\%')"},
        {MySql, R"(SELECT * FROM tblcosts WHERE Number LIKE "0[1\%")",
         R"(SELECT * FROM tblcosts WHERE Number LIKE "0[1\\%" ESCAPE '\')"},
    };
    for (const auto& [server, statement, expected] : cases) EXPECT_EQ(Translate(statement, server), expected);
}

TEST(Translate, LeavesWhatEveryServerTakes) {
    for (const char* statement :
         {R"(CREATE TABLE tblSite ("User" TEXT, Cost REAL DEFAULT 1))", "PRAGMA page_size = 4096",
          "-- delete it\nDROP TABLE \"tblSite\"", "", " ", "\"", "5", R"(INSERT INTO t(a) VALUES ('O''H \'))",
          "select * from tblusers where Username = 'Fre'd'", "select * from tblphonedata order by id desc",
          "select * from tblphonedata", "SELECT a, COUNT(a) FROM tblphonedata WHERE Site = '1'",
          "SELECT * FROM tblcosts WHERE Number like '5!%' escape '!'", "insert into t(a) values (1)"}) {
        for (const Server server : {Server::Sqlite, Server::MySql, Server::Postgres, Server::SqlServer})
            EXPECT_EQ(Translate(statement, server), statement);
    }
}

TEST(Tokenise, LosesNothingOfAnyText) {
    constexpr std::string_view kAlphabet = "a5e.-+'\"[]`=<>(),; \n\\\xC3";
    std::mt19937 random(7);
    for (int round = 0; round < 3000; ++round) {
        std::string text(random() % 30, ' ');
        for (char& c : text) c = kAlphabet[random() % kAlphabet.size()];
        std::string joined;
        for (const Token& token : Tokenise(text)) joined += token.text;
        ASSERT_EQ(joined, text);
    }
}

/// Tables and their columns as a schema file names them, in lower case.
Tables TablesOf(const std::string& file) {
    const std::string text = LowerCase(test::ReadBytes(test::SourceFolder() / "data/schema" / file));
    static const std::regex kTable("create table (?:if not exists )?(\\w+) \\(");
    static const std::regex kColumn("\n  [\\[\"`]?(\\w+)");
    Tables tables;
    for (const std::string& statement : SchemaStatements(text)) {
        std::smatch table;
        if (!std::regex_search(statement, table, kTable)) continue;
        const std::sregex_token_iterator columns(statement.begin(), statement.end(), kColumn, 1);
        tables[table[1]] = {columns, {}};
    }
    return tables;
}

TEST(Schema, IsTheSameOnEveryServer) {
    const Tables tables = TablesOf("sqlite.sql");
    EXPECT_EQ(tables.size(), 19u);
    EXPECT_EQ(tables.at("tblphonedata").size(), 16u);
    EXPECT_TRUE(tables.at("tblsite").contains("3ptdatabase"));
    for (const char* file : {"mysql.sql", "postgres.sql", "sqlserver.sql"})
        EXPECT_EQ(TablesOf(file), tables) << file;
}

}  // namespace
}  // namespace tallix::ado
