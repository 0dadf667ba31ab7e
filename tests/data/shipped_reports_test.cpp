// The preset reports as they are shipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "foundation/ado/recordset.h"
#include "foundation/database.h"
#include "foundation/text_conversion.h"
#include "reporting/catalogue.h"
#include "reporting/query_builder.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::TestApplication;

const std::filesystem::path kData = std::filesystem::path(TALLIX_SOURCE_DIR) / "data";

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
        for (std::size_t key = 0; key < kDataKeys; ++key) {
            const std::string_view data = NameOf(static_cast<DataKey>(key));
            EXPECT_NO_THROW(ToBoolean(report.Read("Data", data))) << data;
        }
        for (const char* key :
             {"Date", "Duration", "Extension", "Account", "Site", "Group", "Time", "Cost", "Hours"}) {
            EXPECT_NO_THROW(ToBoolean(report.Read("Options", key))) << key;
        }
        for (const char* key : {"Title", "Where", "Sum"}) EXPECT_TRUE(report.Find("Options", key)) << key;
        EXPECT_NO_THROW(ToInteger16(report.Read("Options", "Top")));
        EXPECT_EQ(report.Read("Options", "Where"), report.Find("Options", "Where")) << "is cut";
        const std::string text = ReadBytes(PresetReportFile(kData, name));
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r'));
    }
}

struct CallOf {
    const char* name;
    TestApplication::Row changes;
};

TestApplication::Row To(const std::string& number) {
    return {{"DestNum", number}, {"Account", ""}};
}

TestApplication::Row From(const std::string& number, const std::string& duration, const std::string& rings) {
    return {{"OrigNum", number}, {"DestNum", "201"}, {"Duration", duration},
            {"NumRings", rings}, {"Account", ""},    {"Forward", rings == "2" ? "1" : "0"}};
}

const CallOf kCalls[] = {
    {"national", {{"Account", "7"}}},
    {"local", To("628123")},
    {"long", {{"Duration", "00:30:01"}, {"Account", ""}}},
    {"mobile", To("07624123456")},
    {"pager", To("07699123456")},
    {"personal", To("07012345678")},
    {"freephone", To("08081234567")},
    {"helpline", To("116123")},
    {"business", To("08451234567")},
    {"premium", To("0871123456")},
    {"enquiries", To("118500")},
    {"abroad", To("33123456789")},
    {"abroad by 00", To("0033123456789")},
    {"emergency", To("999")},
    {"answered", From("01522537123", "00:01:00", "2")},
    {"withheld", From("", "00:01:00", "6")},
    {"missed", From("01522537123", "00:00:00", "9")},
    {"inside", {{"DestNum", "202"}, {"Internal", "1"}, {"Trunk", ""}, {"Account", ""}}},
    {"inside to",
     {{"Extension", "202"},
      {"OrigNum", "202"},
      {"DestNum", "201"},
      {"Internal", "1"},
      {"Trunk", ""},
      {"Account", ""}}},
    {"other extension", {{"Extension", "6001"}, {"OrigNum", "6001"}, {"Site", "003"}, {"Account", ""}}},
};

class CallsOfReports : public testing::Test {
protected:
    CallsOfReports() {
        for (const CallOf& call : kCalls) test_.InsertCall(call.changes);
        test_.Execute("INSERT INTO tblgroupnames (ID, Name) VALUES (1, 'Sales')");
        test_.Execute("INSERT INTO tblgroupmap (GroupID, Extension) VALUES ('1', '6001')");
        OpenDatabase(test_.application.session);
    }

    void Ask(const std::string& name, const RunInputs& inputs, QueryRules rules, ado::Recordset& calls) {
        const IniFile report = ReportNamed(name);
        flags_.Read(report);
        Session& session = test_.application.session;
        calls.Open(BuildQuery(session, {flags_, ReadReportOptions(report), inputs, rules}),
                   OpenConnection(session));
    }

    // The calls by their names, in no order.
    std::set<std::string> Calls(const std::string& name, const RunInputs& inputs) {
        ado::Recordset calls;
        Ask(name, inputs, QueryRules::Preset, calls);
        std::set<std::string> names;
        for (std::int64_t i = 1; i <= calls.RecordCount(); ++i, calls.MoveNext()) {
            names.insert(kCalls[ToInteger32(calls.Text("ID")) - 1].name);
        }
        return names;
    }

    TestApplication test_;
    ReportFlags flags_;
};

RunInputs Inputs(const std::string& site, const std::string& group) {
    RunInputs inputs;
    inputs.extension = "201";
    inputs.account = "7";
    inputs.site = site;
    inputs.group = group;
    return inputs;
}

const RunInputs kEverything = Inputs("ALL", "ALL");
const RunInputs kOneOfAll = Inputs("003", "Sales");

TEST_F(CallsOfReports, AreThoseThatTheirNamesPromise) {
    struct Case {
        const char* report;
        std::set<std::string> calls;
        RunInputs inputs = kEverything;
    };
    const Case cases[] = {
        {"Local Calls", {"local"}},
        {"National Calls", {"national", "long", "other extension"}},
        {"International Calls", {"abroad", "abroad by 00"}},
        {"Mobile Calls", {"mobile"}},
        {"Premium Rate Calls", {"premium", "enquiries"}},
        {"Freephone Calls", {"freephone", "helpline"}},
        {"Non-Geographic Calls", {"business", "personal"}},
        {"Emergency Calls", {"emergency"}},
        {"Long Calls", {"long"}},
        {"Incoming Calls", {"answered", "withheld", "missed"}},
        {"Missed Calls", {"missed"}},
        {"Slow To Answer", {"withheld", "missed"}},
        {"Forwarded Calls", {"answered"}},
        {"Internal Calls", {"inside", "inside to"}},
        {"Account Call Costs", {"national"}},
        {"Calls To Extension", {"answered", "withheld", "missed", "inside to"}},
        {"Calls By Site", {"other extension"}, kOneOfAll},
        {"Site Call Costs", {"other extension"}, kOneOfAll},
        {"Site Incoming Calls", {"answered", "withheld", "missed"}},
        {"Calls By Group", {"other extension"}, kOneOfAll},
    };
    for (const Case& one : cases) EXPECT_EQ(Calls(one.report, one.inputs), one.calls) << one.report;
    EXPECT_EQ(Calls("Outgoing Calls", kEverything).size(), std::size(kCalls) - 5);
    EXPECT_EQ(Calls("Calls From Extension", kEverything).count("answered"), 0U);
    EXPECT_EQ(Calls("Calls From Extension", kEverything).count("inside"), 1U);
}

TEST_F(CallsOfReports, AreAskedForInStatementsThatTheServerTakes) {
    const std::string notForSchedules = "Calls By Extension In Date Order";
    for (const std::string& name : ReportNames()) {
        for (const RunInputs& inputs : {kEverything, kOneOfAll}) {
            ado::Recordset calls;
            EXPECT_NO_THROW(Ask(name, inputs, QueryRules::Preset, calls)) << name;
            if (name == notForSchedules) {
                EXPECT_THROW(Ask(name, inputs, QueryRules::Unattended, calls), std::exception);
            } else {
                EXPECT_NO_THROW(Ask(name, inputs, QueryRules::Unattended, calls)) << name;
            }
        }
    }
}

TEST_F(CallsOfReports, AddUpTheStartedMinutesOfAnExtension) {
    ado::Recordset totals;
    Ask("Minutes By Extension", kEverything, QueryRules::Preset, totals);
    ASSERT_EQ(totals.RecordCount(), 3);
    EXPECT_EQ(totals.Text("Extension"), "201");
    EXPECT_EQ(totals.Text("sDuration"), "75");  // 14 of 3, one of 31, two of 1, one of none
}

}  // namespace
}  // namespace tallix
