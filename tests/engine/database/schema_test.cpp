#include "database/schema.h"

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

#include "support/places.h"
#include "support/temp_folder.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

using Tables = std::map<std::string, std::set<std::string>>;

/// Tables and their columns as a schema file names them, in lower case.
Tables TablesOf(const std::string& file) {
    const std::string text =
        LowerCase(test::ReadBytes(std::filesystem::path(test::SourceFolder() / "data/schema") / file));
    static const std::regex kTable("create table (?:if not exists )?(\\w+) \\(");
    static const std::regex kColumn("\n  [\\[\"`]?(\\w+)");
    Tables tables;
    for (const std::string& statement : SchemaStatements(text)) {
        std::smatch table;
        if (!std::regex_search(statement, table, kTable)) continue;
        for (std::sregex_iterator column(statement.begin(), statement.end(), kColumn), end; column != end;
             ++column) {
            tables[table[1]].insert((*column)[1]);
        }
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
}  // namespace tallix
