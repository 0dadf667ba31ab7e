// The record set without any server, the embedded engine, and what both are made of.
#include "database/recordset.h"

#include <gtest/gtest.h>

#include "database/connection_text.h"
#include "database/database_scope.h"
#include "database/row_arena.h"
#include "database/row_batch.h"
#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix::ado {
namespace {

constexpr const char* kKeyed = "select * from tblkeyed";

std::unique_ptr<Connection> Connect(const std::filesystem::path& file) {
    return test::ConnectTo("DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:" + file.string());
}

class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() {
        connection_->Execute(
            "CREATE TABLE tblkeyed (ID INTEGER PRIMARY KEY, Name TEXT UNIQUE, Rings TEXT DEFAULT '0')");
        connection_->Execute("INSERT INTO tblkeyed(Name) VALUES('Ann'), ('Ben'), ('Cy')");
    }

    Recordset Open(std::string_view statement) {
        Recordset set;
        set.Open(statement, *connection_);
        return set;
    }

    std::string Stored() {
        return test::AllRows(*connection_, "select Name, Rings from tblkeyed order by ID");
    }

    test::TempFolder folder_;
    const std::filesystem::path file_ = folder_.Write("calls.db", "");
    std::unique_ptr<Connection> connection_ = Connect(file_);
};

TEST_F(RecordsetTest, WalksBothWaysAndKnowsItsEnds) {
    Recordset set = Open(kKeyed);
    const Column name = set.Find("NAME");
    for (int step = 0; step < 5; ++step) set.MoveNext();
    EXPECT_THROW(set.At(name), DatabaseError);
    set.MovePrevious();
    EXPECT_EQ(set.Text(name), "Cy");
    for (int step = 0; step < 5; ++step) set.MovePrevious();
    EXPECT_THROW(set.At(name), DatabaseError);
    set.MoveNext();
    EXPECT_EQ(set.Text(name), "Ann");
    EXPECT_THROW(Open("select * from tblkeyed where ID = 9").Item("Name"), DatabaseError);
    EXPECT_THROW(set.At(set.Find("Nothing")), DatabaseError);
    EXPECT_THROW(set.Collect("Nothing", "x"), DatabaseError);
}

TEST_F(RecordsetTest, ACloneHasAPlaceOfItsOwnAndOutlivesTheFirst) {
    Recordset set = Open(kKeyed);
    set.MoveNext();
    Recordset clone = set.Clone();
    set.Close();
    EXPECT_THROW(set.RecordCount(), DatabaseError);
    EXPECT_THROW(set.At(clone.Find("Name")), DatabaseError);
    EXPECT_THROW(set.AddNew(), DatabaseError);
    EXPECT_THROW(set.Delete(), DatabaseError);
    connection_->Close();
    EXPECT_EQ(clone.RecordCount(), 3);
    EXPECT_EQ(clone.Text("Name"), "Ann");
    EXPECT_THROW(clone.Delete(), DatabaseError);
}

TEST_F(RecordsetTest, ANewRowReadsAsItIsFilledAndGivesWayToTheCurrentOne) {
    Recordset set = Open(kKeyed);
    set.MoveNext();
    set.AddNew();
    EXPECT_EQ(set.Item("Name"), std::nullopt);
    set.Collect("name", "Di");
    set.Collect("Rings", std::nullopt);
    EXPECT_EQ(set.Text("Name"), "Di");
    set.Update();
    EXPECT_EQ(set.Text("Name"), "Ben");
    EXPECT_EQ(set.RecordCount(), 3);
    set.AddNew();
    set.Update();
    EXPECT_EQ(Stored(), "Ann|0|\nBen|0|\nCy|0|\nDi|NULL|\nNULL|0|\n");
}

TEST_F(RecordsetTest, WhatWasSetIsKeptInTheSetAndDroppedByARefusalOrAMove) {
    Recordset set = Open("select Name, Rings from tblkeyed");  // without the key
    set.Collect("Name", "Cy");
    EXPECT_THROW(set.Update(), DatabaseError);
    EXPECT_EQ(set.Text("Name"), "Ann");
    set.Collect("Rings", "5");
    set.MoveNext();
    set.Update();
    set.Collect("Name", "B'en");
    set.Update();
    set.MoveNext();
    set.MovePrevious();
    EXPECT_EQ(set.Text("Name"), "B'en");
    set.Collect("Rings", "7");  // finds the row by what was stored
    set.Update();
    EXPECT_EQ(Stored(), "Ann|0|\nB'en|7|\nCy|0|\n");
}

TEST_F(RecordsetTest, DeletesTheCurrentRowAndWalksOnButOnlyInOneTable) {
    for (const char* several : {"select a.Name from tblkeyed a join tblkeyed b on a.ID = b.ID",
                                "select Name from tblkeyed, (select 1)",
                                "select Name from tblkeyed where ID in (select ID from tblkeyed)"}) {
        Recordset joined = Open(several);
        joined.Collect("Name", "x");
        EXPECT_THROW(joined.Update(), DatabaseError) << several;
        EXPECT_THROW(joined.Delete(), DatabaseError) << several;
    }
    Recordset set = Open(kKeyed);
    for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext())
        if (set.Text("Name") != "Ben") set.Delete();
    EXPECT_EQ(Stored(), "Ben|0|\n");
}

TEST_F(RecordsetTest, TheEmbeddedEngineKeepsNulBytesAndRunsOneStatementAtATime) {
    const std::string_view data("a\0b'", 4);
    RowBatch batch(*connection_, "tblkeyed", {"Name"});
    batch.Add({data});
    batch.Flush();
    EXPECT_EQ(Open("SELECT Name FROM tblkeyed WHERE ID = 4").Item("Name"), data);
    EXPECT_THROW(connection_->Execute("DELETE FROM tblkeyed; DELETE FROM tblkeyed"), DatabaseError);
    EXPECT_THROW(connection_->Execute("SELECT * FROM tblkeyed WHERE `nothing` = Name"), DatabaseError);
    EXPECT_EQ(connection_->Execute("DELETE FROM tblkeyed; -- no more"), 4);
}

TEST_F(RecordsetTest, EmbeddedFilesAreDatabasesWhoseReadersDoNotWaitForAWriter) {
    const auto missing = folder_.Path() / "missing.db";
    for (const auto& file : {missing, folder_.Path(), folder_.Write("text.db", "A text.\n")})
        EXPECT_THROW(Connect(file), DatabaseError) << file;
    EXPECT_FALSE(std::filesystem::exists(missing));
    const auto writer = Connect(file_);
    writer->Execute("BEGIN IMMEDIATE");
    writer->Execute("DELETE FROM tblkeyed");
    EXPECT_EQ(Open(kKeyed).RecordCount(), 3);
    writer->Execute("COMMIT");
    EXPECT_EQ(Open(kKeyed).RecordCount(), 0);
}

TEST_F(RecordsetTest, RowsOutliveTheirScopeAndFindColumnsWithoutCase) {
    connection_->Execute("UPDATE tblkeyed SET Rings = NULL WHERE Name = 'Ann'");
    std::optional<DatabaseScope> database(
        DatabaseAddress{DatabaseKind::MySql, "sqlite:" + file_.string(), "", ""});
    const Rows rows = database->Query(kKeyed);
    const Rows none = database->Query("select * from tblkeyed where ID = 9");
    database.reset();
    std::string read;
    const Column rings = rows.Find("RINGS");
    for (const Row row : rows)
        read.append(row.Text("name")).append(row.At(rings) ? "=" : " is NULL").append(row.Text(rings)) += ';';
    EXPECT_EQ(read, "Ann is NULL;Ben=0;Cy=0;");
    EXPECT_EQ(rows.First().Text("NAME"), "Ann");
    EXPECT_THROW(rows.First().Text("c"), DatabaseError);
    EXPECT_THROW(rows.First().Text(rows.Find("c")), DatabaseError);
    EXPECT_THROW(none.First(), DatabaseError);
}

TEST(DatabaseScope, WithoutAConnectionEveryStatementFails) {
    DatabaseAddress address = {DatabaseKind::Postgres, "sqlite:/nowhere/calls.db", "", ""};
    EXPECT_THROW(DatabaseScope{address}, DatabaseError);
    const DatabaseScope passedOver = DatabaseScope::TryOpen(address);
    EXPECT_EQ(passedOver.QuotedName("Username"), "'Username'");
    address.kind = DatabaseKind::Unknown;
    const DatabaseScope unknown(address);
    for (const DatabaseScope* scope : {&passedOver, &unknown}) {
        EXPECT_FALSE(scope->IsOpen());
        EXPECT_THROW(scope->Query("SELECT 1"), DatabaseError);
        EXPECT_THROW(scope->Execute("DELETE FROM t"), DatabaseError);
    }
}

TEST(ReadConnectionText, ReadsDialectsAndAddresses) {
    const std::tuple<std::string, std::string, int> cases[] = {
        {"db:3307", "db", 3307}, {"db:x", "db:x", 0},         {"::1", "::1", 0}, {"[::1]:5433", "::1", 5433},
        {"[::1]", "::1", 0},     {"db:70000", "db:70000", 0}, {"", "", 0}};
    for (const auto& [address, host, port] : cases) {
        const ConnectionParts parts = ReadConnectionText("DRIVER={PostgreSQL ANSI};SERVER=" + address +
                                                         ";DATABASE=TALLIX;UID=u;PWD=p=q;OPTION=165932");
        EXPECT_EQ(parts.server, Server::Postgres);
        EXPECT_EQ(parts.host, host);
        EXPECT_EQ(parts.port, port);
        EXPECT_EQ(parts.database + parts.user + parts.password, "TALLIXup=q");
    }
    EXPECT_EQ(ReadConnectionText("DRIVER={Other};SERVER=db").driver, "Other");
    for (const char* text : {"", "SERVER=db", "PROVIDER=Other;SERVER=db", "DRIVER={", "=;;="})
        EXPECT_THROW(ReadConnectionText(text), DatabaseError) << text;
}

// Cells of all lengths, with NULL and empty ones in between, long ones beyond a block.
std::optional<std::string> Cell(std::int64_t row, std::int64_t column) {
    const auto number = static_cast<std::size_t>(row * 7 + column);
    if (number % 11 == 3) return std::nullopt;
    if (number % 997 == 5) return std::string(700, 'x');
    if (number % 4001 == 9) return std::string(40000, 'y');
    return std::string(number % 13, static_cast<char>('a' + number % 26));
}

TEST(RowArena, GivesBackEveryCellAcrossBlocksInAnyOrder) {
    constexpr std::int64_t kRows = 3000;
    for (const std::size_t blockBytes : {64U, 500U, 5000U, 1U << 15}) {
        RowArena arena(5, blockBytes);
        for (std::int64_t cell = 0; cell < kRows * 5; ++cell) {
            const auto text = Cell(cell / 5, cell % 5);
            text ? arena.Append(*text) : arena.AppendNull();
            if (cell % 5 == 4) {
                ASSERT_EQ(arena.At(cell / 5, 4), text) << "between appends";
            }
        }
        arena.Finish();
        ASSERT_EQ(arena.Rows(), kRows);
        for (std::int64_t step = 0; step < kRows; ++step) {
            const std::int64_t row = step % 2 == 0 ? step : kRows - step;  // far jumps to and fro
            ASSERT_EQ(arena.At(row, step % 5), Cell(row, step % 5)) << blockBytes << " " << row;
        }
    }
}

TEST(RowArena, CostsTheTextAndTwoBytesACell) {
    for (const std::int64_t rows : {1, 50000}) {
        RowArena arena(16);
        for (std::int64_t cell = 0; cell < rows * 16; ++cell) arena.Append("12345");
        arena.Finish();
        EXPECT_LT(arena.Bytes(), rows * 16 * (5 + 2) * 102 / 100 + 160);
    }
}

}  // namespace
}  // namespace tallix::ado
