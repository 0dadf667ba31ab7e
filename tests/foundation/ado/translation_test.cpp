#include "foundation/ado/translation.h"

#include <gtest/gtest.h>

#include <vector>

namespace tallix::ado {
namespace {

struct Case {
    const char* statement;
    const char* sqlite;  ///< nullptr where the statement stays as it is
    const char* mySql;
    const char* postgres;
    const char* sqlServer;
};

void Check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
        const auto expect = [&](const char* expected) { return expected ? expected : c.statement; };
        EXPECT_EQ(Translate(c.statement, Server::Sqlite), expect(c.sqlite));
        EXPECT_EQ(Translate(c.statement, Server::MySql), expect(c.mySql));
        EXPECT_EQ(Translate(c.statement, Server::Postgres), expect(c.postgres));
        EXPECT_EQ(Translate(c.statement, Server::SqlServer), expect(c.sqlServer));
    }
}

TEST(Translate, TurnsLiterals) {
    Check({
        {R"(SELECT * FROM tblextensions WHERE Name = "it's ""so"" \")",
         R"(SELECT * FROM tblextensions WHERE Name = 'it''s "so" \')", nullptr,
         R"(SELECT * FROM tblextensions WHERE Name = 'it''s "so" \')",
         R"(SELECT * FROM tblextensions WHERE Name = 'it''s "so" \')"},
        {R"(SELECT * FROM tbladdressbook WHERE Number ="a -- ; [b] `c` tblSite 'User' = 1")",
         R"(SELECT * FROM tbladdressbook WHERE Number ='a -- ; [b] `c` tblSite ''User'' = 1')", nullptr,
         R"(SELECT * FROM tbladdressbook WHERE Number ='a -- ; [b] `c` tblSite ''User'' = 1')",
         R"(SELECT * FROM tbladdressbook WHERE Number ='a -- ; [b] `c` tblSite ''User'' = 1')"},
        {"INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('2001','O''Hara \\')", nullptr, nullptr,
         nullptr, nullptr},
        // An unescaped quote stays the mistake that it is.
        {R"(select * from tblusers where Username = "Fre"d")",
         R"(select * from tblusers where Username = 'Fre'd")", nullptr,
         R"(select * from tblusers where Username = 'Fre'd")",
         R"(select * from tblusers where Username = 'Fre'd")"},
        {"select * from tblusers where Username = 'Fre'd'", nullptr, nullptr, nullptr, nullptr},
    });
}

TEST(Translate, TurnsIdentifiers) {
    Check({
        {R"(select * from tblusers where 'Username' = "6A00")",
         R"(select * from tblusers where "Username" = '6A00')", nullptr,
         R"(select * from tblusers where "username" = '6A00')",
         "select * from tblusers where 'Username' = '6A00'"},
        {R"(select * from t where (Name <> "a" AND 'a b' = Name))",
         R"(select * from t where (Name <> 'a' AND 'a b' = Name))", nullptr,
         R"(select * from t where (Name <> 'a' AND 'a b' = Name))",
         R"(select * from t where (Name <> 'a' AND 'a b' = Name))"},
        {R"(INSERT INTO tbllogging(Date, Time, User, Data) VALUES("01/02/2020", "09:30", "Ann", "Logged In");)",
         "INSERT INTO tbllogging(Date, Time, User, Data) VALUES('01/02/2020', '09:30', 'Ann', 'Logged In');",
         nullptr,
         R"(INSERT INTO tbllogging(Date, Time, "user", Data) VALUES('01/02/2020', '09:30', 'Ann', 'Logged In');)",
         "INSERT INTO tbllogging(Date, Time, [User], Data) VALUES('01/02/2020', '09:30', 'Ann', 'Logged "
         "In');"},
        {"INSERT INTO tbllogging([Date], [Us]]er]) VALUES('a', 'b');", nullptr,
         "INSERT INTO tbllogging(`Date`, `Us]er`) VALUES('a', 'b');",
         R"(INSERT INTO tbllogging("date", "us]er") VALUES('a', 'b');)", nullptr},
        {"UPDATE tblsite SET 3PTName = 'x'", R"(UPDATE tblsite SET "3PTName" = 'x')", nullptr,
         R"(UPDATE tblsite SET "3ptname" = 'x')", "UPDATE tblsite SET [3PTName] = 'x'"},
        {"Delete * From tblcostmap", "Delete From tblcostmap", "Delete From tblcostmap",
         "Delete From tblcostmap", "Delete From tblcostmap"},
        {"DELETE FROM tblSite WHERE ID = \"5\"", "DELETE FROM tblSite WHERE ID = '5'",
         "DELETE FROM tblsite WHERE ID = \"5\"", "DELETE FROM tblSite WHERE ID = '5'",
         "DELETE FROM tblSite WHERE ID = '5'"},
    });
}

TEST(Translate, ComparesTextWithBareNumbersAsNumbersOnSqlite) {
    const std::vector<std::pair<const char*, const char*>> cases{
        {"select * from t where GroupID =3", "select * from t where CAST(GroupID AS REAL) =3"},
        {"select * from t where (Extension=201 OR Extension=202) ",
         "select * from t where (CAST(Extension AS REAL)=201 OR CAST(Extension AS REAL)=202) "},
        {"select * from t where a.[Rings]>=-1.5e3 and 7 <> `b` and not c!=.5",
         "select * from t where CAST(a.[Rings] AS REAL)>=-1.5e3 and 7 <> CAST(`b` AS REAL) and not CAST(c AS "
         "REAL)!=.5"},
        {"select * from t where a between 1 and 5 or b not in (1, 2)",
         "select * from t where CAST(a AS REAL) between 1 and 5 or CAST(b AS REAL) not in (1, 2)"},
        {"select * from t where 'Rings' < 3", "select * from t where CAST(\"Rings\" AS REAL) < 3"},
        {"select a, count(b) from t group by a having count(b) > 5 order by a limit 3", nullptr},
        {"select * from t where Site = '1' and a = 3PTName",
         "select * from t where Site = '1' and a = \"3PTName\""},
        {"update t set GroupID = 0 where GroupID=4",
         "update t set GroupID = 0 where CAST(GroupID AS REAL)=4"},
        {"insert into t(a) values (1)", nullptr},
    };
    for (const auto& [statement, expected] : cases) {
        EXPECT_EQ(Translate(statement, Server::Sqlite), expected ? expected : statement);
    }
    EXPECT_EQ(Translate(cases[1].first, Server::Postgres), cases[1].first);
}

TEST(Translate, GivesEqualRowsOneOrder) {
    Check({
        {"SELECT * FROM tblphonedata WHERE (Internal = '0') ORDER BY Date, Time DESC, Site",
         "SELECT * FROM tblphonedata WHERE (Internal = '0') ORDER BY Date, Time DESC, Site, ID",
         "SELECT * FROM tblphonedata WHERE (Internal = '0') ORDER BY Date, Time DESC, Site, ID",
         "SELECT * FROM tblphonedata WHERE (Internal = '0') ORDER BY Date NULLS FIRST, Time DESC NULLS LAST, "
         "Site "
         "NULLS FIRST, ID",
         "SELECT * FROM tblphonedata WHERE (Internal = '0') ORDER BY Date, Time DESC, Site, ID"},
        {"SELECT * FROM tblPhoneData WHERE Site = '1' LIMIT 5;",
         "SELECT * FROM tblPhoneData WHERE Site = '1' ORDER BY ID LIMIT 5;",
         "SELECT * FROM tblphonedata WHERE Site = '1' ORDER BY ID LIMIT 5;",
         "SELECT * FROM tblPhoneData WHERE Site = '1' ORDER BY ID LIMIT 5;",
         "SELECT * FROM tblPhoneData WHERE Site = '1' ORDER BY ID LIMIT 5;"},
        {"SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum HAVING DestNum > '' ",
         "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum HAVING DestNum > '' ORDER BY "
         "DestNum ",
         "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum HAVING DestNum > '' ORDER BY "
         "DestNum ",
         "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum HAVING DestNum > '' ORDER BY "
         "DestNum "
         "NULLS FIRST ",
         "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum HAVING DestNum > '' ORDER BY "
         "DestNum "},
        {"SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC",
         "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC, a",
         "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC, a",
         "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC NULLS LAST, a NULLS FIRST",
         "SELECT a, COUNT(a) FROM t GROUP BY a ORDER BY COUNT(a) DESC, a"},
        {"select * from tblphonedata order by id desc", nullptr, nullptr, nullptr, nullptr},
        {"select * from tblphonedata", nullptr, nullptr, nullptr, nullptr},
        {"select * from tblextensions where Name = 'a'", nullptr, nullptr, nullptr, nullptr},
        {"SELECT DestNum, COUNT(DestNum) FROM tblphonedata WHERE Site = '1'", nullptr, nullptr, nullptr,
         nullptr},
    });
}

TEST(Translate, LeavesPatternsWithoutEscapeCharacter) {
    Check({
        {R"(SELECT * FROM tblcosts WHERE Number LIKE "0[1\%")",
         R"(SELECT * FROM tblcosts WHERE Number LIKE '0[1\%')",
         R"(SELECT * FROM tblcosts WHERE Number LIKE "0[1\\%" ESCAPE '\')",
         R"(SELECT * FROM tblcosts WHERE Number LIKE '0[1\%' ESCAPE '')",
         R"(SELECT * FROM tblcosts WHERE Number LIKE '0[[]1\%')"},
        {"SELECT * FROM tblcosts WHERE Number LIKE '5%'", nullptr, nullptr,
         "SELECT * FROM tblcosts WHERE Number LIKE '5%' ESCAPE ''", nullptr},
        {"SELECT * FROM tblcosts WHERE Number like '5!%' escape '!'", nullptr, nullptr, nullptr, nullptr},
    });
}

TEST(Translate, LeavesStatementsOfTheServersOwn) {
    for (const char* statement :
         {"CREATE TABLE tblSite (\"User\" TEXT, Cost REAL DEFAULT 1)", "PRAGMA page_size = 4096",
          "-- delete it\nDROP TABLE \"tblSite\"", "", " ", "\"", "5"}) {
        for (const Server server : {Server::Sqlite, Server::MySql, Server::Postgres, Server::SqlServer}) {
            EXPECT_EQ(Translate(statement, server), statement);
        }
    }
}

}  // namespace
}  // namespace tallix::ado
