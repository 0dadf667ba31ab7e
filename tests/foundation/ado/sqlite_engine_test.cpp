#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "foundation/ado/recordset.h"
#include "foundation/ado/row_batch.h"
#include "foundation/errors.h"
#include "support/temp_folder.h"

namespace tallix::ado {
namespace {

std::unique_ptr<Connection> Connect(const std::filesystem::path& file) {
    auto connection = std::make_unique<Connection>();
    connection->ConnectionString = "DRIVER={PostgreSQL ANSI};SERVER=sqlite:" + file.string();
    connection->Open();
    return connection;
}

TEST(SqliteEngine, RefusesFilesThatAreNoDatabase) {
    const test::TempFolder folder;
    const auto missing = folder.Path() / "missing.db";
    for (const auto& file :
         {missing, folder.Path(), folder.Write("text.db", "This is no database, but a text.\n")}) {
        try {
            Connect(file);
            ADD_FAILURE() << "opened " << file;
        } catch (const DatabaseError& failure) {
            EXPECT_THAT(failure.what(), testing::HasSubstr(file.string()));
        }
    }
    EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST(SqliteEngine, KeepsNulBytesAndNumbers) {
    const test::TempFolder folder;
    const auto connection = Connect(folder.Write("calls.db", ""));
    connection->Execute("CREATE TABLE t (Data TEXT, Number REAL)");
    const std::string_view data("a\0b'", 4);
    RowBatch batch(*connection, "t", {"Data", "Number"});
    batch.Add({data, "1.5"});
    batch.Flush();
    Recordset set;
    set.Open("SELECT Data, Number, 7 FROM t", *connection);
    EXPECT_EQ(set.Item("Data"), data);
    EXPECT_EQ(set.Item("Number"), "1.5");
    EXPECT_EQ(set.Item("7"), "7");
}

TEST(SqliteEngine, RunsOneStatementAtATime) {
    const test::TempFolder folder;
    const auto connection = Connect(folder.Write("calls.db", ""));
    connection->Execute("CREATE TABLE t (a TEXT); -- no more");
    EXPECT_THROW(connection->Execute("INSERT INTO t(a) VALUES('x'); DELETE FROM t"), DatabaseError);
    EXPECT_EQ(connection->Execute("DELETE FROM t"), 0);
    EXPECT_THROW(connection->Execute("SELECT * FROM t WHERE a = \"nothing\" AND `nothing` = a"),
                 DatabaseError);
}

TEST(SqliteEngine, AReaderDoesNotWaitForAWriter) {
    const test::TempFolder folder;
    const auto file = folder.Write("calls.db", "");
    const auto writer = Connect(file);
    const auto reader = Connect(file);
    writer->Execute("CREATE TABLE t (a TEXT)");
    writer->Execute("BEGIN IMMEDIATE");
    writer->Execute("INSERT INTO t(a) VALUES('x')");
    EXPECT_EQ(reader->Fetch("SELECT * FROM t").rows.Rows(), 0);
    writer->Execute("COMMIT");
    EXPECT_EQ(reader->Fetch("SELECT * FROM t").rows.Rows(), 1);
}

}  // namespace
}  // namespace tallix::ado
