// The ways of a record set that no server has a part in, and those of the embedded engine.
#include "database/recordset.h"

#include <gtest/gtest.h>

#include "database/row_batch.h"
#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix::ado {
namespace {

constexpr const char* kKeyed = "select * from tblkeyed";

void Connect(Connection& connection, const std::filesystem::path& file) {
    connection.ConnectionString = "DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:" + file.string();
    connection.Open();
}

class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() {
        Connect(connection_, folder_.Write("calls.db", ""));
        connection_.Execute(
            "CREATE TABLE tblkeyed (ID INTEGER PRIMARY KEY, Name TEXT UNIQUE, Rings TEXT DEFAULT '0')");
        connection_.Execute("INSERT INTO tblkeyed(Name) VALUES('Ann'), ('Ben'), ('Cy')");
    }

    Recordset Open(std::string_view statement) {
        Recordset set;
        set.Open(statement, connection_);
        return set;
    }

    std::string Stored() {
        return test::AllRows(connection_, "select Name, Rings from tblkeyed order by ID");
    }

    test::TempFolder folder_;
    Connection connection_;
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
    set.Close();
    EXPECT_THROW(set.RecordCount(), DatabaseError);
    EXPECT_THROW(set.At(name), DatabaseError);
    EXPECT_THROW(set.AddNew(), DatabaseError);
    EXPECT_THROW(set.Delete(), DatabaseError);
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
    for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext()) {
        if (set.Text("Name") != "Ben") set.Delete();
    }
    EXPECT_EQ(Stored(), "Ben|0|\n");
}

TEST_F(RecordsetTest, ACloneHasAPlaceOfItsOwnAndOutlivesTheFirst) {
    Recordset set = Open(kKeyed);
    set.MoveNext();
    Recordset clone = set.Clone();
    set.Close();
    connection_.Close();
    EXPECT_EQ(clone.RecordCount(), 3);
    EXPECT_EQ(clone.Text("Name"), "Ann");
    EXPECT_THROW(clone.Delete(), DatabaseError);
}

TEST_F(RecordsetTest, EmbeddedFilesMustBeDatabases) {
    for (const auto& file :
         {folder_.Path() / "missing.db", folder_.Path(), folder_.Write("text.db", "A text.\n")}) {
        Connection other;
        EXPECT_THROW(Connect(other, file), DatabaseError) << file;
    }
    EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "missing.db"));
}

TEST_F(RecordsetTest, TheEmbeddedEngineKeepsNulBytesAndRunsOneStatementAtATime) {
    const std::string_view data("a\0b'", 4);
    RowBatch batch(connection_, "tblkeyed", {"Name"});
    batch.Add({data});
    batch.Flush();
    EXPECT_EQ(Open("SELECT Name FROM tblkeyed WHERE ID = 4").Item("Name"), data);
    EXPECT_THROW(connection_.Execute("DELETE FROM tblkeyed; DELETE FROM tblkeyed"), DatabaseError);
    EXPECT_THROW(connection_.Execute("SELECT * FROM tblkeyed WHERE `nothing` = Name"), DatabaseError);
    EXPECT_EQ(connection_.Execute("DELETE FROM tblkeyed; -- no more"), 4);
}

TEST_F(RecordsetTest, AReaderDoesNotWaitForAWriter) {
    Connection writer;
    Connect(writer, folder_.Path() / "calls.db");
    writer.Execute("BEGIN IMMEDIATE");
    writer.Execute("DELETE FROM tblkeyed");
    EXPECT_EQ(Open(kKeyed).RecordCount(), 3);
    writer.Execute("COMMIT");
    EXPECT_EQ(Open(kKeyed).RecordCount(), 0);
}

}  // namespace
}  // namespace tallix::ado
