#include "reporting/query_builder.h"

#include <gtest/gtest.h>

#include "foundation/database.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::TestApplication;

struct Case {
    const char* name;
    TestApplication::Row data;
    TestApplication::Row options;
    RunInputs inputs;
    std::string statement;
    QueryRules rules = QueryRules::Preset;
    bool isMitel5000 = false;
    std::string dbType = "1";
};

const RunInputs kEntered = {.extension = "201", .account = "7", .site = "ALL", .group = "ALL"};

RunInputs At(const std::string& site) {
    RunInputs inputs = kEntered;
    inputs.site = site;
    return inputs;
}

RunInputs InGroup(const std::string& group) {
    RunInputs inputs = kEntered;
    inputs.group = group;
    return inputs;
}

const std::string kAllCalls = "SELECT * FROM tblphonedata";

const Case kCases[] = {
    {"calls from an extension",
     {{"DestNum", "True"}, {"OrigNum", "True"}},
     {{"Extension", "True"}},
     kEntered,
     kAllCalls + R"( WHERE Extension = "201" OR Extension = "201 ")"},
    {"calls from an extension where it stands in the calling number",
     {{"DestNum", "True"}},
     {{"Extension", "True"}},
     kEntered,
     kAllCalls + R"( WHERE OrigNum = "201" OR OrigNum = "201 ")",
     QueryRules::Preset,
     true},
    {"calls to an extension",
     {{"OrigNum", "True"}},
     {{"Extension", "True"}},
     kEntered,
     kAllCalls + R"( WHERE DestNum = "201")",
     QueryRules::Preset,
     true},
    {"an extension without a number column filters nothing",
     {},
     {{"Extension", "True"}},
     kEntered,
     kAllCalls},
    {"account", {}, {{"Account", "True"}, {"Site", "True"}}, kEntered, kAllCalls + R"( WHERE Account = "7")"},
    {"all sites", {}, {{"Site", "True"}}, At("all"), kAllCalls + " ORDER BY Date, Time, Site"},
    {"one site", {}, {{"Site", "True"}}, At("002"), kAllCalls + R"( WHERE Site = "002")"},
    {"all groups", {}, {{"Group", "True"}}, kEntered, kAllCalls + " "},
    {"a group",
     {},
     {{"Group", "True"}},
     InGroup("Sales"),
     kAllCalls + " WHERE (Extension=201 OR Extension=305) "},
    {"a group without members",
     {},
     {{"Group", "True"}},
     InGroup("Nobody"),
     kAllCalls + " WHERE (Extension=) "},
    {"an order behind an extension",
     {},
     {{"Extension", "True"}, {"Where", "order by Date"}},
     kEntered,
     kAllCalls + R"( WHERE (Extension = "201" OR Extension = "201 ") order by Date)"},
    {"a clause before an extension",
     {},
     {{"Extension", "True"}, {"Where", "WHERE Internal = 0"}},
     kEntered,
     kAllCalls + R"( WHERE Internal = 0 AND (OrigNum = "201" OR OrigNum = "201 "))",
     QueryRules::Preset,
     true},
    {"a clause and all sites",
     {},
     {{"Site", "True"}, {"Where", "WHERE Internal = 0"}},
     kEntered,
     kAllCalls + " WHERE (Internal = 0) ORDER BY Date, Time, Site"},
    {"a clause behind one site",
     {},
     {{"Site", "True"}, {"Where", "WHERE Internal = 0"}},
     At("002"),
     kAllCalls + R"( WHERE Site = "002" WHERE Internal = 0)"},
    {"an order behind an account",
     {},
     {{"Account", "True"}, {"Where", "ORDER BY Date"}},
     kEntered,
     kAllCalls + R"( WHERE Account = "7" ORDER BY Date)"},
    {"a clause before an account",
     {},
     {{"Account", "True"}, {"Where", "WHERE Internal = 0"}},
     kEntered,
     kAllCalls + R"( WHERE Internal = 0 AND Account = "7")"},
    {"a clause behind a group",
     {},
     {{"Group", "True"}, {"Where", "AND Internal = 0"}},
     InGroup("Sales"),
     kAllCalls + " WHERE (Extension=201 OR Extension=305) AND Internal = 0"},
    {"a clause alone, quotes turned for one server",
     {},
     {{"Where", R"(WHERE Trunk = "T1")"}},
     kEntered,
     kAllCalls + " WHERE Trunk = 'T1'",
     QueryRules::Preset,
     false,
     "2"},
    {"a count of numbers",
     {{"Sum", "True"}},
     {{"Sum", "destnumc"}, {"Where", "GROUP BY DestNum"}},
     kEntered,
     "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum"},
    {"a sum of durations reads whole calls", {{"Sum", "True"}}, {{"Sum", "Duration"}}, kEntered, kAllCalls},
    {"scheduled: an extension has one form",
     {{"DestNum", "True"}},
     {{"Extension", "True"}},
     kEntered,
     kAllCalls + R"( WHERE Extension = "201")",
     QueryRules::Unattended,
     true},
    {"scheduled: a clause before an extension",
     {},
     {{"Extension", "True"}, {"Where", "WHERE Internal = 0"}},
     kEntered,
     kAllCalls + R"( WHERE Internal = 0 AND Extension = "201")",
     QueryRules::Unattended},
    {"scheduled: a clause and one site",
     {},
     {{"Site", "True"}, {"Where", "WHERE Internal = 0"}},
     At("002"),
     kAllCalls + R"( WHERE (Internal = 0) AND Site = "002")",
     QueryRules::Unattended},
    {"scheduled: an account behind a clause is not applied",
     {},
     {{"Account", "True"}, {"Where", "WHERE Internal = 0"}},
     kEntered,
     kAllCalls + " WHERE Internal = 0",
     QueryRules::Unattended},
    {"scheduled: groups are not applied",
     {},
     {{"Group", "True"}},
     InGroup("Sales"),
     kAllCalls,
     QueryRules::Unattended},
};

TEST(QueryBuilder, ComposesTheStatementThatTheKeysSelect) {
    TestApplication test;
    test.Execute("INSERT INTO tblgroupnames(ID, Name) VALUES (4, 'Sales')");
    test.Execute("INSERT INTO tblgroupmap(GroupID, Extension) VALUES (4, '201')");
    test.Execute("INSERT INTO tblgroupmap(GroupID, Extension) VALUES (4, '305')");
    test.Execute("INSERT INTO tblgroupmap(GroupID, Extension) VALUES (5, '999')");
    Session& session = test.application.session;
    OpenDatabase(session);
    for (const Case& c : kCases) {
        const IniFile report(test.WriteReport("Case", c.data, c.options));
        ReportFlags flags;
        flags.Read(report);
        session.DBType = c.dbType;
        session.StrQuote = StringQuote(c.dbType);
        EXPECT_EQ(BuildQuery(session, {.flags = flags,
                                       .options = ReadReportOptions(report),
                                       .inputs = c.inputs,
                                       .rules = c.rules,
                                       .isMitel5000 = c.isMitel5000}),
                  c.statement)
            << c.name;
    }
}

}  // namespace
}  // namespace tallix
