#include "reporting/query_builder.h"

#include <gtest/gtest.h>

#include <sstream>

#include "database/database_scope.h"
#include "support/test_application.h"

namespace tallix {
namespace {

const std::string kAllCalls = "SELECT * FROM tblphonedata";

class QueryBuilderTest : public testing::Test {
protected:
    QueryBuilderTest() {
        test_.Execute("INSERT INTO tblgroupnames(ID, Name) VALUES (4, 'Sales')");
        test_.Execute(
            "INSERT INTO tblgroupmap(GroupID, Extension) VALUES (4, '201'), (4, '305'), (5, '999')");
    }

    /// The statement of a report with the keys "A|B=value|...": columns, options, or the
    /// site or group that the user picked.
    std::string Build(const std::string& keys, const QueryRules& rules = kPresetQuery,
                      bool isMitel5000 = false) {
        test::TestApplication::Row data;
        test::TestApplication::Row options;
        RunInputs inputs = {.extension = "201", .account = "7", .site = "ALL", .group = "ALL"};
        std::istringstream pieces(keys);
        for (std::string piece; std::getline(pieces, piece, '|');) {
            const std::size_t equals = std::min(piece.find('='), piece.size());
            const std::string key = piece.substr(0, equals);
            const std::string value = equals < piece.size() ? piece.substr(equals + 1) : "True";
            if (key == "Site" && value != "True") inputs.site = value;
            if (key == "Group" && value != "True") inputs.group = value;
            if (key == "DestNum" || key == "OrigNum" || key == "Sum") data[key] = "True";
            options[key] = key == "Where" || key == "Sum" ? value : "True";
        }
        const IniFile report(test_.WriteReport("Case", data, options));
        ReportFlags flags;
        flags.Read(report);
        return BuildQuery(DatabaseScope(test_.application.session.database),
                          {.flags = flags,
                           .options = ReadReportOptions(report),
                           .inputs = inputs,
                           .rules = rules,
                           .isMitel5000 = isMitel5000});
    }

    test::TestApplication test_;
};

TEST_F(QueryBuilderTest, ComposesTheStatementOfAPreset) {
    const std::pair<const char*, std::string> cases[] = {
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
    };
    for (const auto& [keys, rest] : cases) EXPECT_EQ(Build(keys), kAllCalls + rest) << keys;
    EXPECT_EQ(Build("Sum=destnumc|Where=GROUP BY DestNum"),
              "SELECT DestNum, COUNT(DestNum) FROM tblphonedata GROUP BY DestNum");
    test_.application.session.database.kind = DatabaseKind::SqlServer;
    EXPECT_EQ(Build(R"(Where=WHERE Trunk = "T1")"), kAllCalls + " WHERE Trunk = 'T1'");
}

TEST_F(QueryBuilderTest, FindsTheExtensionInTheNumberColumnOfAMitel5000) {
    const std::pair<const char*, std::string> cases[] = {
        {"DestNum|Extension", R"( WHERE OrigNum = "201" OR OrigNum = "201 ")"},
        {"OrigNum|Extension", R"( WHERE DestNum = "201")"},
        {"Extension|Where=WHERE Internal = 0",
         R"( WHERE Internal = 0 AND (OrigNum = "201" OR OrigNum = "201 "))"},
    };
    for (const auto& [keys, rest] : cases) EXPECT_EQ(Build(keys, kPresetQuery, true), kAllCalls + rest);
    EXPECT_EQ(Build("DestNum|Extension", kUnattendedQuery, true), kAllCalls + R"( WHERE Extension = "201")");
}

TEST_F(QueryBuilderTest, SchedulesApplyNoGroupsAndNoAccountAfterAClause) {
    const std::pair<const char*, std::string> cases[] = {
        {"Extension|Where=WHERE Internal = 0", R"( WHERE Internal = 0 AND Extension = "201")"},
        {"Site=002|Where=WHERE Internal = 0", R"( WHERE (Internal = 0) AND Site = "002")"},
        {"Account|Where=WHERE Internal = 0", " WHERE Internal = 0"},
        {"Group=Sales", ""},
    };
    for (const auto& [keys, rest] : cases) EXPECT_EQ(Build(keys, kUnattendedQuery), kAllCalls + rest);
}

}  // namespace
}  // namespace tallix
