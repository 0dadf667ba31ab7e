// What a preset report asks of the person, of the server and of its tables of names.
#include "reporting/query_builder.h"

#include <gmock/gmock.h>

#include <sstream>

#include "database/database_scope.h"
#include "failures/errors.h"
#include "reporting/key_lookup.h"
#include "reporting/preset_request.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::TestApplication;
using testing::ElementsAre;

TEST(PresetRequestTest, ListsItsChoicesAndEnablesWhatSaysTrue) {
    TestApplication test;
    const auto file = test.WriteReport(
        "By Day", {{"Time", "True"}},
        {{"Date", "True"}, {"Duration", "tRUE"}, {"Extension", "-1"}, {"Site", ""}, {"Group", "Truer"}});
    test.WriteReport("All Calls", {}, {});
    for (const char* id : {"1", "12", "003"}) test.Insert("tblsite", {{"ID", id}});
    test.Insert("tblgroupnames", {{"Name", "Sales & \"Care\""}});
    const PresetChoices choices = ReadPresetChoices(test.application);
    EXPECT_THAT(choices.reports, ElementsAre("All Calls", "By Day"));
    EXPECT_THAT(choices.sites, ElementsAre("ALL", "001", "012", "003"));
    EXPECT_THAT(choices.groups, ElementsAre("ALL", "Sales & \"Care\""));
    test.application.session.database.server = "sqlite:/nowhere/at/all.db";
    EXPECT_THROW(ReadPresetChoices(test.application), DatabaseError);

    const EnabledInputs enabled(file.parent_path() / "std_BY day.srt");
    for (const Input input : {Input::Date, Input::Duration, Input::Extension, Input::Account, Input::Site,
                              Input::Group, Input::Time}) {
        EXPECT_EQ(enabled[input], input == Input::Date || input == Input::Duration)
            << static_cast<int>(input);
        EXPECT_FALSE(EnabledInputs(file.parent_path() / "gone.SRT")[input]);
    }
}

TEST(PresetRequestTest, ARefusalNamesTheFirstDemandThatIsNotMet) {
    // The inputs, which of them are demanded, and what is lacking.
    const std::tuple<std::string, std::string, bool, bool, std::string> cases[] = {
        {"", "", false, false, ""},
        {"abc", "x", false, false, ""},
        {"", "", true, true, "value for extension number"},
        {"20a", "", true, true, "numeric value for extension number"},
        {"201", "", true, true, "value for account code"},
        {"1e3", "7b", true, true, "numeric value for account code"},
        {"", "1.5", false, true, ""},
        {"1.5", "", true, false, ""},
    };
    ReportFlags flags;
    for (const auto& [extension, account, demandsExtension, demandsAccount, lacks] : cases) {
        const auto refusal =
            RefusalOf({flags, "x", {extension, account}, PageOutput::Html, demandsExtension, demandsAccount});
        ASSERT_EQ(refusal.has_value(), !lacks.empty()) << extension << ", " << account;
        if (!refusal) continue;
        EXPECT_EQ(refusal->text,
                  "You have not entered a " + lacks + ". This report requires this value to run!");
        EXPECT_EQ(refusal->title, "Tallix Reports");
        EXPECT_EQ(refusal->icon, MessageIcon::Exclamation);
    }
}

class QueryBuilderTest : public testing::Test {
protected:
    /// The statement of a report with the keys "A|B=value|...": columns, options, or the
    /// site or group that the user picked.
    std::string Build(const std::string& keys, const QueryRules& rules = kPresetQuery,
                      bool isMitel5000 = false) {
        TestApplication::Row data;
        TestApplication::Row options;
        RunInputs inputs = {.extension = "201", .account = "7", .site = "ALL", .group = "ALL"};
        std::istringstream pieces(keys);
        for (std::string piece; std::getline(pieces, piece, '|');) {
            const std::string key = piece.substr(0, piece.find('='));
            const std::string value = key == piece ? "True" : piece.substr(key.size() + 1);
            if (key == "Site" && value != "True") inputs.site = value;
            if (key == "Group" && value != "True") inputs.group = value;
            if (key == "DestNum" || key == "OrigNum" || key == "Sum") data[key] = "True";
            options[key] = key == "Where" || key == "Sum" ? value : "True";
        }
        const IniFile report(test_.WriteReport("Case", data, options));
        ReportFlags flags;
        flags.Read(report);
        return BuildQuery(DatabaseScope(test_.application.session.database),
                          {flags, ReadReportOptions(report), inputs, rules, isMitel5000});
    }

    TestApplication test_;
};

TEST_F(QueryBuilderTest, ComposesTheStatementByTheRulesOfTheRun) {
    struct Case {
        const char* keys;
        std::string rest;  ///< after the table
        const QueryRules& rules = kPresetQuery;
        bool isMitel5000 = false;
    };
    const Case cases[] = {
        {"DestNum|OrigNum|Extension", R"( WHERE Extension = "201" OR Extension = "201 ")"},
        {"Extension", ""},  // without a number column
        {"Account|Site", R"( WHERE Account = "7")"},
        {"Site=all", " ORDER BY Date, Time, Site"},
        {"Site=002", R"( WHERE Site = "002")"},
        {"Group", " "},
        {"Group=Sales", " WHERE (Extension=201 OR Extension=305) "},
        {"Group=Nobody", " WHERE (Extension=) "},
        {"Extension|Where=order by Date",
         R"( WHERE (Extension = "201" OR Extension = "201 ") order by Date)"},
        {"Site|Where=WHERE Internal = 0", " WHERE (Internal = 0) ORDER BY Date, Time, Site"},
        {"Site=002|Where=WHERE Internal = 0", R"( WHERE Site = "002" WHERE Internal = 0)"},
        {"Account|Where=ORDER BY Date", R"( WHERE Account = "7" ORDER BY Date)"},
        {"Account|Where=WHERE Internal = 0", R"( WHERE Internal = 0 AND Account = "7")"},
        {"Group=Sales|Where=AND Internal = 0", " WHERE (Extension=201 OR Extension=305) AND Internal = 0"},
        {"Sum=Duration", ""},  // reads whole calls
        // A Mitel 5000 has the extension in a number column.
        {"DestNum|Extension", R"( WHERE OrigNum = "201" OR OrigNum = "201 ")", kPresetQuery, true},
        {"OrigNum|Extension", R"( WHERE DestNum = "201")", kPresetQuery, true},
        {"Extension|Where=WHERE Internal = 0",
         R"( WHERE Internal = 0 AND (OrigNum = "201" OR OrigNum = "201 "))", kPresetQuery, true},
        {"DestNum|Extension", R"( WHERE Extension = "201")", kUnattendedQuery, true},
        // Schedules apply no groups, and no account after a clause.
        {"Extension|Where=WHERE Internal = 0", R"( WHERE Internal = 0 AND Extension = "201")",
         kUnattendedQuery},
        {"Site=002|Where=WHERE Internal = 0", R"( WHERE (Internal = 0) AND Site = "002")", kUnattendedQuery},
        {"Account|Where=WHERE Internal = 0", " WHERE Internal = 0", kUnattendedQuery},
        {"Group=Sales", "", kUnattendedQuery},
    };
    test_.Execute("INSERT INTO tblgroupnames(ID, Name) VALUES (4, 'Sales')");
    test_.Execute("INSERT INTO tblgroupmap(GroupID, Extension) VALUES (4, '201'), (4, '305'), (5, '999')");
    const std::string all = "SELECT * FROM tblphonedata";
    for (const Case& c : cases) EXPECT_EQ(Build(c.keys, c.rules, c.isMitel5000), all + c.rest) << c.keys;
    EXPECT_EQ(Build("Sum=destnumc|Where=GROUP BY DestNum"),
              "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum");
    test_.application.session.database.kind = DatabaseKind::SqlServer;
    EXPECT_EQ(Build(R"(Where=WHERE Trunk = "T1")"), all + " WHERE Trunk = 'T1'");
}

TEST(KeyLookup, ABareKeyIsComparedAsANumberByTheServerAndInMemory) {
    TestApplication test;
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann"}});
    test.Insert("tblextensions", {{"ExtensionNo", "Reception"}, {"Name", "Ben"}});
    const DatabaseScope database(test.application.session.database);
    const KeyLookupNames names = {"tblextensions",
                                  "SELECT * FROM tblextensions WHERE ExtensionNo = ", "ExtensionNo", "Name"};
    KeyLookupNames bare = names;
    bare.form = KeyForm::Bare;
    KeyLookup quotedNames(database, test.events, names);
    KeyLookup bareNames(database, test.events, bare);
    const auto askMany = [](KeyLookup& lookup) {
        for (int key = 1000; key < 1100; ++key) EXPECT_FALSE(lookup.Find(std::to_string(key)));
        for (const char* key : {"201", "0201", "201 ", "2.01e2"}) EXPECT_EQ(lookup.Find(key), "Ann") << key;
    };
    askMany(bareNames);
    for (const char* key : {"Reception", "", "ExtensionNo", "1 OR 1=1", "+"}) {
        EXPECT_FALSE(bareNames.Find(key)) << key;
    }
    EXPECT_FALSE(quotedNames.Find("0201"));
    EXPECT_EQ(quotedNames.Find("Reception"), "Ben");

    database.Execute("UPDATE tblextensions SET ExtensionNo = \"0201\" WHERE Name = \"Ben\"");
    KeyLookup inMemory(database, test.events, bare);
    askMany(inMemory);
    database.Execute("DELETE FROM tblextensions");
    EXPECT_EQ(inMemory.Find("000201"), "Ann") << "the server is not asked again";
    EXPECT_FALSE(inMemory.Find("0000000201")) << "too long for memory, so the server is asked";
}

}  // namespace
}  // namespace tallix
