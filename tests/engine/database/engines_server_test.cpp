// What the database layer promises, on every engine that can be run here.
#include <gmock/gmock.h>

#include <map>
#include <thread>

#include "database/recordset.h"
#include "database/row_batch.h"
#include "database/schema.h"
#include "failures/errors.h"
#include "support/places.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using ado::Recordset;
using test::TestEngine;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

using Text = std::optional<std::string>;
using Row = std::vector<Text>;

class EnginesTest : public testing::TestWithParam<const char*> {
protected:
    EnginesTest() : engine_(test::EngineNamed(GetParam())), connection_(test::FreshDatabase(engine_)) {}

    Recordset Open(const std::string& statement) {
        Recordset set;
        set.Open(statement, *connection_);
        return set;
    }

    /// One column of a result, NULL as nothing.
    Row Read(const std::string& statement, const std::string& column) {
        Row cells;
        Recordset set = Open(statement);
        for (std::int64_t row = 1; row <= set.RecordCount(); ++row, set.MoveNext())
            cells.emplace_back(set.Item(column));
        return cells;
    }

    void AddRow(const std::string& table, const std::map<std::string, Text>& values) {
        Recordset set = Open("select * from " + table + " where 1 = 0");
        set.AddNew();
        for (const auto& [name, value] : values) set.Collect(name, value);
        set.Update();
    }

    const TestEngine& engine_;
    std::unique_ptr<ado::Connection> connection_;
};

INSTANTIATE_TEST_SUITE_P(Engines, EnginesTest, testing::ValuesIn(test::kAllEngines),
                         [](const auto& engine) { return std::string(engine.param); });

TEST_P(EnginesTest, AddsChangesAndDeletesSingleRows) {
    using Names = std::array<std::string, 3>;
    const Names chosenKey = {"tblsite", "ID", "3PTName"};
    const Names givenKey = {"tblgroupnames", "ID", "Name"};
    const Names withoutKey = {"tbladdressbook", "Number", "Name"};
    for (const auto& [table, key, name] : {chosenKey, givenKey, withoutKey}) {
        SCOPED_TRACE(table);
        for (const std::string id : {"1", "2", "3"}) AddRow(table, {{key, id}, {name, "n" + id}});
        AddRow(table, {{key, "4"}, {name, {}}});

        const std::string all = "select * from " + table;
        for (const auto& [id, text] : {std::pair("2", "it's \"two\""), {"4", ""}}) {
            Recordset set = Open(all + " where " + key + " = \"" + id + "\"");
            set.Collect(name, text);
            set.Update();
            EXPECT_EQ(set.Text(name), text);
        }
        Open(all + " where " + key + " = \"1\"").Delete();

        EXPECT_THAT(Read(all + " order by " + key, key), ElementsAre("2", "3", "4"));
        EXPECT_THAT(Read(all + " order by " + key, name), ElementsAre("it's \"two\"", "n3", ""));
    }
}

TEST_P(EnginesTest, TextComesBackByteForByte) {
    Row texts{
        "",   " ",       "trailing  ", "O'Neil \"x\" `y`", "\\",  "\\N", "\\.", "\\t\\'", "a,b\tc\r\nd\n",
        "\"", "\"\",\"", "Zoë € 𝄞",    "%s ? :1 $1 {x}",   "NULL"};
    texts.insert(texts.end(), {std::nullopt, std::string(300'000, 'x') + "'\"\\,\n"});
    ado::RowBatch batch(*connection_, "tblrawdata", {"SiteID", "Data"});
    for (const Text& text : texts) {
        AddRow("tblrawdata", {{"SiteID", "set"}, {"Data", text}});
        batch.Add({"batch", text});
    }
    batch.Flush();
    EXPECT_EQ(Read("SELECT * FROM tblrawdata WHERE SiteID = \"set\"", "Data"), texts);
    EXPECT_EQ(Read("SELECT * FROM tblrawdata WHERE SiteID = \"batch\"", "data"), texts);
    EXPECT_EQ(Read("SELECT Data FROM tblrawdata WHERE SiteID = \"set\"", "DATA"), texts);
}

TEST_P(EnginesTest, UnderstandsTheStatementsOfTheSystem) {
    ado::RowBatch batch(*connection_, "tblphonedata",
                        {"Extension", "DestNum", "Internal", "Date", "Account"});
    batch.Add({"201", "07700900123", "0", "02/01/2016", {}});
    batch.Add({"201 ", "07_00", "1", "01/01/2016", {}});
    batch.Add({" 201x", "07\\7%", "10", "01/01/2016", {}});
    batch.Add({"A", "07700900123", "", "", {}});
    batch.Add({"a", "Abc", "-1.5", {}, "say \"hi\""});
    batch.Add({{}, "abc", {}, {}, "it's"});
    batch.Flush();
    const std::string calls = "SELECT * FROM tblphonedata";
    const std::vector<std::pair<std::string, Row>> cases{
        {calls, {"1", "2", "3", "4", "5", "6"}},
        {calls + " WHERE Extension = \"201\"", {"1"}},
        {calls + " WHERE Extension = \"201\" OR Extension = \"201 \"", {"1", "2"}},
        {calls + " WHERE (Extension=201 OR Extension=202)", {"1", "2", "3"}},
        {calls + " WHERE Internal = 0", {"1", "4"}},
        {calls + " WHERE Internal <> 0 AND Internal < 2.5", {"2", "5"}},
        {calls + " WHERE Internal >= 10", {"3"}},
        {calls + " WHERE Internal <= -1", {"5"}},
        {calls + " WHERE Extension = \"A\"", {"4"}},
        {calls + " WHERE DestNum LIKE \"0770%\"", {"1", "4"}},
        {calls + " WHERE DestNum LIKE \"ab%\"", {"6"}},
        {calls + " WHERE DestNum LIKE \"07\\7%\"", {"3"}},
        {calls + " WHERE DestNum LIKE \"07_0%\"", {"1", "2", "4"}},
        {calls + " WHERE Account = \"say \"\"hi\"\"\"", {"5"}},
        {calls + " WHERE Account = \"it's\"", {"6"}},
        {calls + " WHERE (Internal <> 5) ORDER BY Date, Time, Site", {"5", "4", "2", "3", "1"}},
        {calls + " WHERE Extension < \"B\" ORDER BY Extension", {"3", "1", "2", "4"}},
    };
    for (const auto& [statement, ids] : cases) EXPECT_EQ(Read(statement, "ID"), ids) << statement;

    const std::string sum =
        "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum ORDER BY COUNT(DestNum) DESC";
    EXPECT_EQ(Read(sum, "DestNum").front(), "07700900123");
    EXPECT_EQ(Open(sum).RecordCount(), 5);
}

TEST_P(EnginesTest, UnderstandsDirectStatements) {
    connection_->Execute(
        "INSERT INTO tbllogging(Date, Time, User, Data) VALUES(\"01/02/2016\", \"09:30\", \"Ann\", \"Logged "
        "In\");");
    EXPECT_THAT(Read("select * from tbllogging where User = \"Ann\" order by User", "Data"),
                ElementsAre("Logged In"));

    AddRow("tblusers", {{"Username", "AB01"}, {"GroupID", "3"}});
    const std::string quote = engine_.name == "odbc" || engine_.dbType == "3" ? "'" : "";
    EXPECT_THAT(Read("select * from tblusers where " + quote + "Username" + quote + " = \"AB01\"", "UserID"),
                ElementsAre("1"));
    EXPECT_EQ(connection_->Execute("UPDATE tblusers SET AccessType = \"FF\" WHERE Username = \"AB01\""), 1);
    EXPECT_THAT(Read("select * from tblusers where groupid=3", "accesstype"), ElementsAre("FF"));
    EXPECT_THROW(connection_->Execute("DELETE FROM tbllogging;; DELETE FROM tblusers"), DatabaseError);
    EXPECT_EQ(connection_->Execute("Delete * from tbllogging;"), 1);
}

TEST_P(EnginesTest, GivesKeysAboveThoseThatRowsBring) {
    AddRow("tblusers", {{"Username", "first"}});
    connection_->Execute("INSERT INTO tblusers(UserID,Username) VALUES (\"7\",\"restored\")");
    AddRow("tblusers", {{"Username", "next"}});
    connection_->Execute("DELETE FROM tblusers WHERE Username = \"next\"");
    AddRow("tblusers", {{"Username", "after"}});
    EXPECT_THAT(Read("select * from tblusers order by UserID", "UserID"), ElementsAre("1", "7", "9"));
}

TEST_P(EnginesTest, RefusedStatementsLeaveTheConnectionUsable) {
    AddRow("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann"}});
    for (const char* statement :
         {"SELECT * FROM tblphonedata WHERE Site = \"1\" WHERE Internal = 0", "SELECT * FROM tblnothing",
          "SELECT * FROM tblsite WHERE Name = \"open", "SELECT Nothing FROM tblsite",
          "SELECT * FROM tblphonedata WHERE (Extension=)", ""}) {
        Recordset set = Open("SELECT * FROM tblsite");
        EXPECT_THROW(set.Open(statement, *connection_), DatabaseError) << statement;
        EXPECT_FALSE(set.IsOpen());
        EXPECT_THROW(connection_->Execute(statement), DatabaseError) << statement;
    }
    EXPECT_THROW(AddRow("tblextensions", {{"ExtensionNo", "201"}}), DatabaseError);
    EXPECT_THROW(AddRow("tblextensions", {{"Nothing", "x"}}), DatabaseError);
    EXPECT_THAT(Read("SELECT * FROM tblextensions", "Name"), ElementsAre("Ann"));
}

TEST_P(EnginesTest, ARefusedRowOfABatchCostsOnlyItself) {
    AddRow("tblextensions", {{"ExtensionNo", "150"}, {"Name", "kept"}});
    ado::RowBatch batch(*connection_, "tblextensions", {"ExtensionNo", "Name"});
    constexpr int kRows = 1200;
    for (int number = 0; number < kRows; ++number)
        batch.Add({std::to_string(number), number % 2 == 0 ? ado::Value("x") : ado::Value()});
    batch.Flush();
    EXPECT_EQ(batch.Refused(), 1);
    EXPECT_EQ(Open("SELECT * FROM tblextensions").RecordCount(), kRows);
    EXPECT_THAT(Read("SELECT * FROM tblextensions WHERE ExtensionNo = \"150\"", "Name"), ElementsAre("kept"));
}

TEST_P(EnginesTest, ConnectionsAreIndependentAndCanBeOpenedAgain) {
    const std::unique_ptr<ado::Connection> other = test::Connect(engine_);
    Recordset before = Open("SELECT * FROM tblextensions");
    other->Execute("INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('201','Ann')");
    EXPECT_EQ(before.RecordCount(), 0);
    EXPECT_THAT(Read("SELECT * FROM tblextensions", "Name"), ElementsAre("Ann"));
    connection_->Close();
    connection_->Close();
    EXPECT_THROW(connection_->Execute("DELETE FROM tblextensions"), DatabaseError);
    connection_->Open();
    EXPECT_EQ(Open("SELECT * FROM tblextensions").RecordCount(), 1);
}

TEST_P(EnginesTest, TheSchemaAddsOnlyWhatIsMissing) {
    const std::filesystem::path folder = test::SourceFolder() / "data/schema";
    AddRow("tblsite", {{"ID", "1"}});
    connection_->Server().Execute("DROP TABLE tblcostmap");
    EXPECT_THAT(LayDownSchema(*connection_, folder), ElementsAre("tblcostmap"));
    EXPECT_THAT(LayDownSchema(*connection_, folder), testing::IsEmpty());
    EXPECT_EQ(Open("SELECT * FROM tblsite").RecordCount(), 1);
    EXPECT_THROW(LayDownSchema(*connection_, folder / "nowhere"), DatabaseError);
}

class ServersTest : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Engines, ServersTest, testing::Values("mariadb", "postgres", "odbc"),
                         [](const auto& engine) { return std::string(engine.param); });

std::string ConnectFailure(const TestEngine& engine, const std::string& good, const std::string& bad) {
    TestEngine wrong = engine;
    wrong.connectionText.replace(wrong.connectionText.find(good), good.size(), bad);
    try {
        test::Connect(wrong);
    } catch (const DatabaseError& failure) {
        return failure.what();
    }
    return "connected";
}

TEST_P(ServersTest, AConnectThatFailsSaysWhereAndWhy) {
    const TestEngine& engine = test::EngineNamed(GetParam());
    const std::string address = "database server at " + engine.address + ": ";
    const std::string nobody = "127.0.0.1:1";
    EXPECT_THAT(ConnectFailure(engine, "PWD=" + engine.password, "PWD=wrong"),
                AllOf(HasSubstr(address), HasSubstr("Tallix")));
    EXPECT_THAT(ConnectFailure(engine, "DATABASE=", "DATABASE=no"),
                AllOf(HasSubstr(address), HasSubstr("no")));
    EXPECT_THAT(ConnectFailure(engine, engine.address, nobody), HasSubstr("server at " + nobody + ": "));
}

TEST(SqlServerTest, IsReachedThroughItsDriver) {
    TestEngine engine;
    engine.connectionText = ConnectionText({DatabaseKind::SqlServer, "127.0.0.1:1", "u", "p"});
    EXPECT_THAT(ConnectFailure(engine, "", ""), AllOf(HasSubstr("127.0.0.1:1: "), HasSubstr("FreeTDS")));
}

TEST_P(ServersTest, AServerLostInTheMiddleOfAFetchIsAFailure) {
    const TestEngine& engine = test::EngineNamed(GetParam());
    const auto connection = test::FreshDatabase(engine);
    const bool mySql = connection->Server().Kind() == ado::Server::MySql;
    const std::string id(*connection->Server()
                              .Query(mySql ? "SELECT CONNECTION_ID()" : "SELECT pg_backend_pid()")
                              .rows.At(0, 0));
    std::thread killer([&] {
        const auto other = test::Connect(engine);
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        other->Server().Query(mySql ? "KILL " + id : "SELECT pg_terminate_backend(" + id + ")");
    });
    const std::string rows =
        mySql ? "SELECT seq, REPEAT('x', 9000), SLEEP(0.01) FROM seq_1_to_2000"
              : "SELECT i, repeat('x', 9000), pg_sleep(0.01) FROM generate_series(1, 2000) i";
    EXPECT_THROW(connection->Server().Query(rows), DatabaseError);
    killer.join();
    EXPECT_THROW(connection->Execute("DELETE FROM tblsite"), DatabaseError);
}

}  // namespace
}  // namespace tallix
