// The tables of areas, providers and countries as they are shipped.
#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "database/prefix_table.h"
#include "support/places.h"
#include "support/temp_folder.h"

namespace tallix {
namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

Rows ReadTable(const std::string& name, const std::string& head) {
    std::istringstream text(test::ReadBytes(test::SourceFolder() / "data" / "reference" / name));
    std::string line;
    std::getline(text, line);
    EXPECT_EQ(line, head);
    Rows rows;
    while (std::getline(text, line)) {
        const std::size_t comma = line.find(',');
        rows.emplace_back(line.substr(0, comma), line.substr(std::min(comma, line.size() - 1) + 1));
    }
    return rows;
}

struct CodeTable {
    const char* file;
    const char* head;
    std::size_t firstPrefix;
    const char* code;
    const char* name;
    std::vector<std::string> numbers;  ///< with a blank and their names, none for no match
};

const CodeTable kTables[] = {
    {"areaproviders.csv",
     "Code,Area",
     2,
     "0[12][0-9]{1,4}",
     "[^,\"]+",
     {"02079460018 London", "01539734567 Kendal", "01539456789 Hawkshead", "02890123456 Belfast",
      "01912345678 Tyneside", "01710123456 ", "07700900123 "}},
    {"commproviders.csv",
     "Code,Provider",
     1,
     "0[0-9]{2,5}",
     "[^,\"]+",
     {"01482123456 KCOM", "02079460018 BT", "07624123456 Manx Telecom", "07781123456 Sure",
      "08001111111 Freephone", "12125551234 ", "0033123456789 "}},
    {"intcodes.csv",
     "Code,Country",
     1,
     "[1-9][0-9]{1,6}",
     "[A-Z]{3}",
     {"33123456789 FRA", "12125551234 USA", "14165551234 CAN", "12425551234 BHS", "74951234567 RUS",
      "77271234567 KAZ", "441481123456 GGY", "441604123456 GBR", "390669812345 VAT", "390612345678 ITA",
      "87012345678 "}}};

// A code that begins other codes is passed over by the search, so each digit that can
// follow it needs a code of its own.
TEST(CodeTables, LeadEveryNumberToOneRow) {
    for (const CodeTable& expected : kTables) {
        SCOPED_TRACE(expected.file);
        const Rows rows = ReadTable(expected.file, expected.head);
        const PrefixTable table(rows);
        std::set<std::string> codes;
        for (const auto& [code, name] : rows) {
            EXPECT_THAT(code, testing::MatchesRegex(expected.code));
            EXPECT_THAT(name, testing::MatchesRegex(expected.name)) << code;
            EXPECT_TRUE(codes.insert(code).second) << code << " is there twice";
            if (table.Find(code).rows == 1) continue;
            for (char digit = '0'; digit <= '9'; ++digit) {
                EXPECT_GT(table.Find(code + digit).rows, 0U) << code << " hides " << code << digit;
            }
        }
        for (const std::string& line : expected.numbers) {
            const std::string number = line.substr(0, line.find(' '));
            const auto row = table.Narrow(number, {expected.firstPrefix, number.size()});
            EXPECT_EQ(number + " " + std::string(row ? table.Value(*row) : ""), line);
        }
    }
}

}  // namespace
}  // namespace tallix
