// The preset reports and the tables of codes as they are shipped.
#include <fmt/format.h>
#include <gmock/gmock.h>

#include <set>

#include "database/database_scope.h"
#include "database/prefix_table.h"
#include "reporting/catalogue.h"
#include "reporting/query_builder.h"
#include "support/places.h"
#include "support/test_application.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

using test::TestApplication;
using Row = TestApplication::Row;

const std::filesystem::path kData = test::SourceFolder() / "data";

std::vector<std::string> ReportNames() {
    return ListReports(PresetReportsFolder(kData));
}

struct CodeTable {
    std::string file, head, row;
    std::size_t firstPrefix;
    std::vector<std::string> numbers;  ///< with a blank and their names
};

const CodeTable kTables[] = {
    {"areaproviders.csv",
     "Code,Area",
     "0[12][0-9]{1,4},[^,\"]+",
     2,
     {"02079460018 London", "01539734567 Kendal", "01539456789 Hawkshead", "02890123456 Belfast",
      "01912345678 Tyneside", "01710123456 ", "07700900123 "}},
    {"commproviders.csv",
     "Code,Provider",
     "0[0-9]{2,5},[^,\"]+",
     1,
     {"01482123456 KCOM", "02079460018 BT", "07624123456 Manx Telecom", "07781123456 Sure",
      "08001111111 Freephone", "12125551234 ", "0033123456789 "}},
    {"intcodes.csv",
     "Code,Country",
     "[1-9][0-9]{1,6},[A-Z]{3}",
     1,
     {"33123456789 FRA", "12125551234 USA", "14165551234 CAN", "12425551234 BHS", "74951234567 RUS",
      "77271234567 KAZ", "441481123456 GGY", "441604123456 GBR", "390669812345 VAT", "390612345678 ITA",
      "87012345678 "}}};

// A code that begins other codes is passed over by the search, so each digit that can
// follow it needs a code of its own.
TEST(CodeTables, LeadEveryNumberToOneRow) {
    for (const CodeTable& expected : kTables) {
        SCOPED_TRACE(expected.file);
        std::vector<std::pair<std::string, std::string>> rows;
        std::set<std::string> codes;
        for (const std::string& line : test::ReadLines(kData / "reference" / expected.file)) {
            EXPECT_THAT(line, testing::MatchesRegex(rows.empty() ? expected.head : expected.row));
            rows.emplace_back(line.substr(0, line.find(',')), line.substr(line.find(',') + 1));
            EXPECT_TRUE(codes.insert(rows.back().first).second) << line << " is there twice";
        }
        rows.erase(rows.begin());
        const PrefixTable table(rows);
        for (const auto& [code, name] : rows) {
            for (char digit = '0'; table.Find(code).rows != 1 && digit <= '9'; ++digit) {
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

// A key that a file omits keeps the value of the report that ran before.
TEST(ShippedReports, NameEveryKeyWithAValueThatConverts) {
    EXPECT_GE(ReportNames().size(), 24U);
    for (const std::string& name : ReportNames()) {
        SCOPED_TRACE(name);
        const IniFile report(PresetReportFile(kData, name));
        for (const char* key :
             {"Date", "Time", "Duration", "Extension", "Name", "NumRings", "OrigNum", "DestNum", "Internal",
              "Forward", "Trunk", "Account", "Area", "Site", "Sum"}) {
            EXPECT_NO_THROW(ToBoolean(report.Read("Data", key))) << key;
        }
        for (const char* key :
             {"Date", "Duration", "Extension", "Account", "Site", "Group", "Time", "Cost", "Hours"}) {
            EXPECT_NO_THROW(ToBoolean(report.Read("Options", key))) << key;
        }
        for (const char* key : {"Title", "Where", "Sum"}) EXPECT_TRUE(report.Find("Options", key)) << key;
        EXPECT_NO_THROW(ToInteger16(report.Read("Options", "Top")));
        EXPECT_EQ(report.Read("Options", "Where"), report.Find("Options", "Where")) << "is cut";
    }
}

constexpr const char* kDialled[] = {"local 628123",         "mobile 07624123456",         "pager 07699123456",
                                    "personal 07012345678", "freephone 08081234567",      "helpline 116123",
                                    "business 08451234567", "premium 0871123456",         "enquiries 118500",
                                    "abroad 33123456789",   "abroad by 00 0033123456789", "emergency 999"};

Row From(const std::string& number, const std::string& duration, const std::string& rings) {
    return {{"OrigNum", number},
            {"DestNum", "201"},
            {"Duration", duration},
            {"NumRings", rings},
            {"Forward", rings == "2" ? "1" : "0"}};
}

Row Inside(const std::string& from, const std::string& to) {
    return {{"Extension", from}, {"OrigNum", from}, {"DestNum", to}, {"Internal", "1"}, {"Trunk", ""}};
}

class CallsOfReports : public testing::Test {
protected:
    CallsOfReports() {
        for (const std::string call : kDialled) {
            const std::size_t blank = call.rfind(' ');
            Add(call.substr(0, blank), {{"DestNum", call.substr(blank + 1)}});
        }
        Add("national", {{"Account", "7"}});
        Add("long", {{"Duration", "00:30:01"}});
        Add("answered", From("01522537123", "00:01:00", "2"));
        Add("withheld", From("", "00:01:00", "6"));
        Add("missed", From("01522537123", "00:00:00", "9"));
        Add("inside", Inside("201", "202"));
        Add("inside to", Inside("202", "201"));
        Add("elsewhere", {{"Extension", "6001"}, {"OrigNum", "6001"}, {"Site", "003"}});
        test_.Execute("INSERT INTO tblgroupnames (ID, Name) VALUES (1, 'Sales')");
        test_.Execute("INSERT INTO tblgroupmap (GroupID, Extension) VALUES ('1', '6001')");
    }

    void Add(const std::string& name, Row call) {
        call.emplace("Account", "");
        test_.InsertCall(call);
        names_.push_back(name);
    }

    ado::Rows Ask(const std::string& name, const RunInputs& inputs, const QueryRules& rules = kPresetQuery) {
        const IniFile report(PresetReportFile(kData, name));
        flags_.Read(report);
        const DatabaseScope database(test_.application.session.database);
        return database.Query(BuildQuery(database, {flags_, ReadReportOptions(report), inputs, rules}));
    }

    // The names of the calls of a report in their order.
    std::string Calls(const std::string& name, const RunInputs& inputs) {
        std::set<std::string> names;
        for (const ado::Row call : Ask(name, inputs)) names.insert(names_[ToInteger32(call.Text("ID")) - 1]);
        return fmt::format("{}", fmt::join(names, ", "));
    }

    std::vector<std::string> names_;  ///< of the calls, by their keys from 1 on
    TestApplication test_;
    ReportFlags flags_;
};

const RunInputs kEverything = {.extension = "201", .account = "7", .site = "ALL", .group = "ALL"};
const RunInputs kOneOfAll = {.extension = "201", .account = "7", .site = "003", .group = "Sales"};

TEST_F(CallsOfReports, AreThoseThatTheirNamesPromise) {
    for (const std::string expected :
         {"Local Calls: local", "National Calls: elsewhere, long, national",
          "International Calls: abroad, abroad by 00", "Mobile Calls: mobile",
          "Premium Rate Calls: enquiries, premium", "Freephone Calls: freephone, helpline",
          "Non-Geographic Calls: business, personal", "Emergency Calls: emergency", "Long Calls: long",
          "Incoming Calls: answered, missed, withheld", "Missed Calls: missed",
          "Slow To Answer: missed, withheld", "Forwarded Calls: answered",
          "Internal Calls: inside, inside to", "Account Call Costs: national",
          "Calls To Extension: answered, inside to, missed, withheld",
          "Site Incoming Calls: answered, missed, withheld"}) {
        const std::string name = expected.substr(0, expected.find(':'));
        EXPECT_EQ(name + ": " + Calls(name, kEverything), expected);
    }
    for (const std::string name : {"Calls By Site", "Site Call Costs", "Calls By Group"}) {
        EXPECT_EQ(Calls(name, kOneOfAll), "elsewhere") << name;
    }
    EXPECT_THAT(Calls("Calls From Extension", kEverything),
                testing::AllOf(testing::HasSubstr("inside"), testing::Not(testing::HasSubstr("answered"))));
}

TEST_F(CallsOfReports, AreAskedForInStatementsThatTheServerTakes) {
    for (const std::string& name : ReportNames()) {
        for (const RunInputs& inputs : {kEverything, kOneOfAll}) {
            EXPECT_NO_THROW(Ask(name, inputs)) << name;
            if (name == "Calls By Extension In Date Order") continue;  // which is not for schedules
            EXPECT_NO_THROW(Ask(name, inputs, kUnattendedQuery)) << name;
        }
    }
}

TEST_F(CallsOfReports, AddUpTheStartedMinutesOfAnExtension) {
    const ado::Rows totals = Ask("Minutes By Extension", kEverything);
    ASSERT_EQ(totals.Count(), 3);
    EXPECT_EQ(totals.First().Text("Extension"), "201");
    EXPECT_EQ(totals.First().Text("sDuration"), "75");  // 14 of 3, one of 31, two of 1, one of none
}

}  // namespace
}  // namespace tallix
