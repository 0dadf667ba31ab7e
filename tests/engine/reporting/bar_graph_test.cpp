#include "reporting/bar_graph.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "database/database_scope.h"
#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::TestApplication;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::size_t Count(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

constexpr std::string_view kGap =
    "<Table Height=1 Cellpadding=0 CellSpacing=0 border=0 Width=6 Align=Left><tr><td></td></tr></Table>";

class BarGraphTest : public ::testing::Test {
protected:
    TestApplication test;
    DatabaseScope database{test.application.session.database};
};

TEST_F(BarGraphTest, DrawsABarForEachValueAndAGapForEachMissingOne) {
    const ado::Rows rows = database.Query(
        "SELECT 'Mon' AS Day, 40 AS a, '12.5' AS b, NULL AS c, 'x' AS d, 0 AS e, 100 AS f, "
        "1 AS g, 2 AS h, 3 AS i, 99 AS more");
    const std::string graph = BuildBarGraph(rows, 0, {200, 6});
    EXPECT_THAT(graph,
                StartsWith("<Table border=1 bordercolor=black CellPadding=0 CellSpacing=0 height=200>"
                           "<tr><td vAlign=Center><Table width=100% border=0 CellPadding=0 CellSpacing=0 "
                           "height=6><tr><td bgColor=Magenta style=\"color:white;font-size:8pt\"> a </td>"));
    EXPECT_THAT(graph,
                HasSubstr("<Table Height=200 Cellpadding=0 CellSpacing=0 border=0 Width=6 Align=Left><tr>"
                          "<td height=60%></td></tr><tr><td bgColor=Magenta height=40%></td></tr></Table>"));
    EXPECT_THAT(graph, HasSubstr("<td height=87.5%></td></tr><tr><td bgColor=LightGreen height=12.5%>"));
    EXPECT_THAT(graph, HasSubstr("WRITING-MODE: tb-rl\"> Mon</DIV></td></tr></table>\r\n"));
    EXPECT_EQ(Count(graph, kGap), 2U + 9 * 9)
        << "two of the first record, and nine records that are not there";
    EXPECT_EQ(Count(graph, "bgColor=Navy"), 2U) << "legend and bar";
}

TEST_F(BarGraphTest, GroupsAfterTheLastRecordAreEmpty) {
    test.InsertCall();
    const std::string graph = BuildBarGraph(database.Query("SELECT * FROM tblphonedata"), 1, {200, 6});
    EXPECT_EQ(Count(graph, "font-size:8pt"), 9U);
    EXPECT_EQ(Count(graph, kGap), 90U);
    EXPECT_EQ(Count(graph, "<DIV"), 10U);

    EXPECT_THROW(BuildBarGraph(database.Query("SELECT Date, Time FROM tblphonedata"), 0, {200, 6}),
                 DatabaseError);
}

}  // namespace
}  // namespace tallix
