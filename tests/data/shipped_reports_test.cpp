// The preset reports as they are shipped.
#include <fmt/format.h>
#include <gmock/gmock.h>

#include <set>

#include "database/database_scope.h"
#include "reporting/catalogue.h"
#include "reporting/query_builder.h"
#include "support/places.h"
#include "support/test_application.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

using test::TestApplication;

const std::filesystem::path kData = test::SourceFolder() / "data";

const std::vector<std::string>& ReportNames() {
    static const std::vector<std::string> names = ListReports(PresetReportsFolder(kData));
    return names;
}

IniFile ReportNamed(const std::string& name) {
    return IniFile(PresetReportFile(kData, name));
}

// A key that a file omits keeps the value of the report that ran before.
TEST(ShippedReports, NameEveryKeyWithAValueThatConverts) {
    EXPECT_GE(ReportNames().size(), 24U);
    for (const std::string& name : ReportNames()) {
        SCOPED_TRACE(name);
        const IniFile report = ReportNamed(name);
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

using Row = TestApplication::Row;

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

    ado::Rows Ask(const std::string& name, const RunInputs& inputs, const QueryRules& rules) {
        const IniFile report = ReportNamed(name);
        flags_.Read(report);
        const DatabaseScope database(test_.application.session.database);
        return database.Query(BuildQuery(database, {flags_, ReadReportOptions(report), inputs, rules}));
    }

    // The report and the names of its calls in their order, "Report: one, two".
    std::string Calls(const std::string& name, const RunInputs& inputs) {
        std::set<std::string> names;
        for (const ado::Row call : Ask(name, inputs, kPresetQuery)) {
            names.insert(names_[ToInteger32(call.Text("ID")) - 1]);
        }
        return fmt::format("{}: {}", name, fmt::join(names, ", "));
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
        EXPECT_EQ(Calls(expected.substr(0, expected.find(':')), kEverything), expected);
    }
    for (const std::string name : {"Calls By Site", "Site Call Costs", "Calls By Group"}) {
        EXPECT_EQ(Calls(name, kOneOfAll), name + ": elsewhere");
    }
    const std::string from = Calls("Calls From Extension", kEverything);
    EXPECT_THAT(from,
                testing::AllOf(testing::HasSubstr("inside"), testing::Not(testing::HasSubstr("answered"))));
}

TEST_F(CallsOfReports, AreAskedForInStatementsThatTheServerTakes) {
    for (const std::string& name : ReportNames()) {
        for (const RunInputs& inputs : {kEverything, kOneOfAll}) {
            EXPECT_NO_THROW(Ask(name, inputs, kPresetQuery)) << name;
            if (name == "Calls By Extension In Date Order") continue;  // which is not for schedules
            EXPECT_NO_THROW(Ask(name, inputs, kUnattendedQuery)) << name;
        }
    }
}

TEST_F(CallsOfReports, AddUpTheStartedMinutesOfAnExtension) {
    const ado::Rows totals = Ask("Minutes By Extension", kEverything, kPresetQuery);
    ASSERT_EQ(totals.Count(), 3);
    EXPECT_EQ(totals.First().Text("Extension"), "201");
    EXPECT_EQ(totals.First().Text("sDuration"), "75");  // 14 of 3, one of 31, two of 1, one of none
}

}  // namespace
}  // namespace tallix
