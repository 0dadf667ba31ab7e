// The ways of a record set that no server has a part in, on the embedded engine.
#include "foundation/ado/recordset.h"

#include <gtest/gtest.h>

#include "foundation/errors.h"
#include "support/temp_folder.h"

namespace tallix::ado {
namespace {

constexpr const char* kKeyed = "select * from tblkeyed";

class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() {
        connection_.ConnectionString =
            "DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:" + folder_.Write("calls.db", "").string();
        connection_.Open();
        connection_.Execute(
            "CREATE TABLE tblkeyed (ID INTEGER PRIMARY KEY, Name TEXT UNIQUE, Rings TEXT DEFAULT '0')");
        for (const char* name : {"Ann", "Ben", "Cy"}) {
            connection_.Execute("INSERT INTO tblkeyed(Name) VALUES(\"" + std::string(name) + "\")");
        }
    }

    Recordset Open(std::string_view statement) {
        Recordset set;
        set.Open(statement, connection_);
        return set;
    }

    // The names and the rings of all rows, NULL as "-".
    std::string Stored() {
        std::string joined;
        Recordset set = Open(kKeyed);
        for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext()) {
            joined += std::string(set.Item("Name").value_or("-")) + "=" +
                      std::string(set.Item("Rings").value_or("-")) + ";";
        }
        return joined;
    }

    test::TempFolder folder_;
    Connection connection_;
};

TEST_F(RecordsetTest, WalksBothWaysAndKnowsItsEnds) {
    Recordset set = Open(kKeyed);
    const Column name = set.Find("NAME");
    EXPECT_EQ(set.Text(name), "Ann");
    for (int step = 0; step < 5; ++step) set.MoveNext();
    EXPECT_THROW(set.At(name), DatabaseError);
    set.MovePrevious();
    EXPECT_EQ(set.Text(name), "Cy");
    for (int step = 0; step < 5; ++step) set.MovePrevious();
    EXPECT_THROW(set.At(name), DatabaseError);
    set.MoveNext();
    EXPECT_EQ(set.Text(name), "Ann");

    Recordset none = Open("select * from tblkeyed where ID = 9");
    EXPECT_EQ(none.RecordCount(), 0);
    EXPECT_THROW(none.Item("Name"), DatabaseError);
}

TEST_F(RecordsetTest, AbsentColumnsAndClosedSetsFail) {
    Recordset set = Open(kKeyed);
    EXPECT_FALSE(set.Find("Nothing"));
    EXPECT_THROW(set.At(set.Find("Nothing")), DatabaseError);
    EXPECT_THROW(set.Item("Nothing"), DatabaseError);
    EXPECT_THROW(set.Collect("Nothing", "x"), DatabaseError);
    const Column name = set.Find("Name");
    set.Close();
    EXPECT_THROW(set.RecordCount(), DatabaseError);
    EXPECT_THROW(set.At(name), DatabaseError);
    EXPECT_THROW(set.AddNew(), DatabaseError);
    EXPECT_THROW(set.Update(), DatabaseError);
    EXPECT_THROW(set.Delete(), DatabaseError);
    set.MoveNext();
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
    EXPECT_EQ(Stored(), "Ann=0;Ben=0;Cy=0;Di=-;-=0;");
}

TEST_F(RecordsetTest, AChangedRowKeepsItsNewValuesInTheSet) {
    Recordset set = Open("select Name, Rings from tblkeyed");  // without the key
    set.MoveNext();
    set.Collect("Name", "B'en");
    set.Update();
    set.MoveNext();
    set.MovePrevious();
    EXPECT_EQ(set.Text("Name"), "B'en");
    set.Collect("Rings", "7");  // finds the row by what was stored
    set.Update();
    EXPECT_EQ(Stored(), "Ann=0;B'en=7;Cy=0;");
}

TEST_F(RecordsetTest, WhatWasSetIsDroppedByARefusalAndByAMove) {
    Recordset set = Open(kKeyed);
    set.Collect("Name", "Cy");
    EXPECT_THROW(set.Update(), DatabaseError);
    EXPECT_EQ(set.Text("Name"), "Ann");
    set.AddNew();
    set.Collect("Name", "Ben");
    EXPECT_THROW(set.Update(), DatabaseError);
    set.Collect("Rings", "5");
    set.MoveNext();
    set.Update();
    EXPECT_EQ(Stored(), "Ann=0;Ben=0;Cy=0;");
}

TEST_F(RecordsetTest, DeletesTheCurrentRowAndWalksOn) {
    Recordset set = Open(kKeyed);
    for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext()) {
        if (set.Text("Name") != "Ben") set.Delete();
    }
    EXPECT_EQ(Stored(), "Ben=0;");
}

TEST_F(RecordsetTest, ACloneHasAPlaceOfItsOwnAndOutlivesTheFirst) {
    Recordset set = Open(kKeyed);
    set.MoveNext();
    Recordset clone = set.Clone();
    EXPECT_EQ(clone.Text("Name"), "Ann");
    set.Close();
    connection_.Close();
    EXPECT_EQ(clone.RecordCount(), 3);
    EXPECT_EQ(clone.Text("Name"), "Ann");
    EXPECT_THROW(clone.Delete(), DatabaseError);
}

TEST_F(RecordsetTest, ResultsOfSeveralTablesCannotBeWritten) {
    Recordset set = Open("select a.Name from tblkeyed a join tblkeyed b on a.ID = b.ID");
    set.Collect("Name", "x");
    EXPECT_THROW(set.Update(), DatabaseError);
    EXPECT_THROW(set.Delete(), DatabaseError);
}

}  // namespace
}  // namespace tallix::ado
