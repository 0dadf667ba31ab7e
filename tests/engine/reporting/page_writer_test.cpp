// Whole pages against the files in golden/, which hold UTF-8 and "\n" for the eye; the
// program writes Windows-1252 and CR LF.
#include <gmock/gmock.h>

#include "failures/errors.h"
#include "reporting/bar_graph.h"
#include "reporting/custom_reports.h"
#include "reporting/plot.h"
#include "reporting/report_run.h"
#include "support/places.h"
#include "support/test_application.h"
#include "text/code_page.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::ReadLines;
using test::TestApplication;

std::filesystem::path GoldenFile(const std::string& name) {
    return test::SourceFolder() / "tests/engine/reporting/golden" / name;
}

std::string Golden(const std::string& name, const std::filesystem::path& folder) {
    const std::string text = ReadBytes(GoldenFile(name));
    EXPECT_FALSE(text.empty()) << name;
    return ToAnsi(Replace(Replace(text, "{folder}", folder.string()), "\n", "\r\n"));
}

CustomReport Showing(std::initializer_list<const char*> keys, CustomReport report) {
    for (const char* key : keys) report.shown.at(CustomFieldOfKey(key)) = true;
    return report;
}

class PageTest : public ::testing::Test {
protected:
    PageTest() {
        test.Execute(
            "INSERT INTO tblsite(ID, Name, Addy1, Addy2, Addy3, Postcode) VALUES ('001', 'Head Office', "
            "'1 High Street', '', '', 'NT1 1AA')");
    }

    void Run(PageOutput output = PageOutput::Html) {
        const auto file = PresetReportFile(test.application.folder, "Golden");
        Make(PresetRun{.flags = flags, .reportFile = file, .inputs = {.site = "ALL"}, .output = output});
    }
    RunOutcome Make(const RunKind& kind) {
        NoProgress progress;
        return ReportRun(test.application, progress).Make({.reportName = "Golden", .kind = kind});
    }
    void ExpectFile(const std::filesystem::path& file, const std::string& golden) {
        EXPECT_EQ(ReadBytes(file), Golden(golden, test.application.folder)) << golden;
    }

    TestApplication test;
    ReportFlags flags;
};

TEST_F(PageTest, HasOneOfThreeShapes) {
    test.WriteReport("Golden", {{"Date", "True"}, {"DestNum", "True"}},
                     {{"Title", "Calls at"}, {"Cost", "True"}});
    test.InsertCall();
    test.InsertCall({{"Internal", "1"}, {"DestNum", "202"}});
    test.InsertCall({{"Date", "06/03/2021"}});
    test.settings.Write("rptTC", "002001118");
    test.settings.Write("rptTHC", "180003000");
    test.settings.Write("rptTDC", "254254170");
    test.settings.Write("rptTBC", "no colour");
    const std::tuple<std::string, std::string, std::string, PageOutput> cases[] = {
        {"plain.html", "0", "L", PageOutput::Html},
        {"coloured.html", "1", "middle", PageOutput::Html},
        {"comma.csv", "0", "R", PageOutput::CommaText},
        {"comma.csv", "1", "R", PageOutput::CommaText}};
    for (const auto& [golden, v1Reports, alignment, output] : cases) {
        test.settings.Write("V1Reports", v1Reports);
        test.settings.Write("ReportAlign", alignment);
        Run(output);
        ExpectFile(PageFile(test.application), golden);
    }
}

TEST_F(PageTest, ResolvesEveryColumnInItsOrder) {
    test.Execute("UPDATE tblsite SET Area = '01632', VM = '59999'");
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Ann Lee"}});
    test.Insert("tblareaproviders", {{"Code", "01632"}, {"Area", "Newtown"}});
    test.settings.Write("Providers", "1");
    test.settings.Write("AreaCode", "1");
    TestApplication::Row columns;
    for (const char* name : {"Date", "Time", "Extension", "Name", "Duration", "NumRings", "Forward",
                             "Account", "DestNum", "OrigNum", "Area", "Trunk", "Site"}) {
        columns[name] = "True";
    }
    test.WriteReport("Golden", columns, {{"Cost", "True"}});
    test.InsertCall();
    test.InsertCall({{"DestNum", "960123"}, {"Extension", "202"}, {"Forward", "1"}, {"Account", ""}});
    test.InsertCall({{"DestNum", "202"}, {"Internal", "1"}, {"Forward", "x"}});
    test.Execute("INSERT INTO tblcostcount(DataID, Cost) VALUES (1, '0.15')");
    Run(PageOutput::CommaText);
    ExpectFile(PageFile(test.application), "columns.csv");
}

TEST_F(PageTest, CoversShowWhatIsSwitchedOn) {
    for (const char* page : {"CCover", "BBacking"}) test.settings.Write(page, "1");
    test.settings.Write("CTitleText", "Quarter £");
    test.settings.Write("rptTC", "000128255");
    test.settings.Write("rptTBC", "016032048");
    for (const std::string kind : {"full", "bare"}) {
        for (const char* name : {"CTitle", "CArt", "CLogo", "CDate", "CTime", "BNote", "V1Reports"}) {
            test.settings.Write(name, kind == "full" ? "1" : "0");
        }
        Run();
        ExpectFile(test.application.tempFolder / "rptcov.tmp", kind + "_cover.html");
        ExpectFile(test.application.tempFolder / "rptbac.tmp", kind + "_back.html");
    }
}

// One report with every field and every filter. Calls name extensions by number: "0201 " is
// 201, and a word is nobody's number.
TEST_F(PageTest, OfACustomReportIsBareWhateverTheSettings) {
    test.Insert("tblextensions", {{"ExtensionNo", "201"}, {"Name", "Zoë Lee"}});
    test.settings.Write("V1Reports", "1");
    test.settings.Write("ReportAlign", "L");
    test.InsertCall();
    TestApplication::Row second = {{"Extension", "0201 "}, {"Date", "06/03/2021"}, {"Duration", "00:04:00"}};
    for (const char* column : {"Time", "NumRings", "OrigNum", "DestNum"}) second[column] = "";
    for (const char* column : {"Internal", "Speedcall", "Forward"}) second[column] = "1";
    second["Trunk"] = "0";
    test.InsertCall(second);
    test.InsertCall({{"Extension", "Front"}});
    test.InsertCall({{"Extension", "T001"}});
    test.InsertCall({{"Date", "04/03/2021"}});
    test.InsertCall({{"Duration", "00:01:00"}});
    test.InsertCall({{"Account", "8"}});
    CustomReport report = {.account = "7",
                           .duration = "00:02:00",
                           .durationTest = DurationTest::Greater,
                           .startDate = "04/03/2021",
                           .endDate = "07/03/2021"};
    report.shown.fill(true);
    for (const auto& [destination, golden] : {std::pair(Destination::OnScreen, "custom.html"),
                                              {Destination::InExternalApplication, "custom.csv"}}) {
        report.destination = destination;
        Make(CustomRun{report});
        ExpectFile(PageFile(test.application), golden);
    }
}

TEST_F(PageTest, AFilterOfACustomReportAppliesWhereItsFieldIsShown) {
    for (const char* day : {"01", "02", "03"}) {
        test.InsertCall({{"Account", ""},
                         {"Date", std::string(day) + "/03/2021"},
                         {"Duration", "00:0" + std::string(day + 1) + ":00"}});
    }
    test.InsertCall({{"Extension", "t9"}, {"Date", "never"}, {"Account", "7"}, {"Duration", ""}});
    struct Case {
        std::initializer_list<const char*> shown;
        CustomReport report;
        std::vector<std::string> rows;
    };
    const Case cases[] = {
        {{"Account"}, {.startDate = "01/03/2021"}, {"&nbsp;,", "&nbsp;,", "&nbsp;,", "7,"}},
        {{"Date"}, {.startDate = "01/03/2021"}, {"02/03/2021,", "03/03/2021,", "never,"}},
        {{"Date"}, {.startDate = "01/03/2021", .endDate = "03/03/2021"}, {"02/03/2021,", "never,"}},
        {{"Date"}, {.endDate = "x"}, {"01/03/2021,", "02/03/2021,", "03/03/2021,", "never,"}},
        {{"ExtName", "Date"}, {.endDate = "02/03/2021"}, {"&nbsp;,01/03/2021,"}},
        {{"Duration"}, {.duration = "00:02:00", .durationTest = DurationTest::Greater}, {"00:03:00,"}},
        {{"Duration"},
         {.duration = "00:02:00", .durationTest = DurationTest::Less},
         {"00:01:00,", "&nbsp;,"}},
        {{"Duration", "Account"}, {.account = "7", .duration = "1"}, {"7,"}},
        {{"Time"}, {.extension = "t9"}, {"10:15:00,"}},
    };
    for (const Case& c : cases) {
        CustomReport report = Showing(c.shown, c.report);
        report.destination = Destination::InExternalApplication;
        ASSERT_EQ(Make(CustomRun{report}), RunOutcome::Complete);
        const std::vector<std::string> page = ReadLines(PageFile(test.application));
        EXPECT_EQ(std::vector(page.begin() + 5, page.end() - 2), c.rows) << "case " << &c - cases;
    }
    EXPECT_EQ(Make(CustomRun{Showing({"Time"}, {.extension = "2\"0'1"})}), RunOutcome::NoData);
}

TEST_F(PageTest, AFileKeepsACustomReportAndStaysInItsFolder) {
    const std::string location = test.Folder().string();
    const auto folder = CustomReportsFolder(location);
    std::filesystem::create_directories(folder / "CST_");
    const CustomReport report =
        Showing({"Time", "Account"}, {.account = "12 \"34\"",
                                      .durationTest = DurationTest::Less,
                                      .endDate = "02/03/2021",
                                      .destination = Destination::InExternalApplication,
                                      .application = "Microsoft Notepad"});
    WriteCustomReport(location, "Café", report);
    EXPECT_EQ(ReadLines(folder / "CST_Café.SRT"), ReadLines(GoldenFile("custom.srt")));
    CustomReport read;
    ReadCustomReport(location, "Café", read);
    WriteCustomReport(location, "Copy", read);
    EXPECT_EQ(ReadBytes(folder / "CST_Copy.SRT"), ReadBytes(folder / "CST_Café.SRT"));

    const auto filesBefore = ListReports(folder).size();
    for (const char* name : {"/../../x", "\\..\\x", "a/b", "a\nb"}) WriteCustomReport(location, name, report);
    EXPECT_EQ(ListReports(folder).size(), filesBefore);
    EXPECT_FALSE(std::filesystem::exists(test.Folder() / "x.SRT"));
}

TEST_F(PageTest, RepeatsTheHeadsForEachPrintedSheet) {
    constexpr int kRows = 140;
    std::string calls = "INSERT INTO tblphonedata(Site, DestNum) VALUES ('001', '1')";
    for (int i = 1; i < kRows; ++i) calls += ", ('001', '1')";
    test.Execute(calls);
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"0", "True", ""},
        {"1", "True",
         R"(<TR align="center" bgcolor="#010203"><TD><font color="white"><B>Date:</B></FONT></TD>)"
         R"(<TD><font color="white"><B>Site:</B></FONT></TD>)"},
        {"1", "False", R"(<TD><font color="white"><B>Site:</B></FONT></TD>)"}};
    test.settings.Write("rptTHC", "001002003");
    for (const auto& [v1Reports, date, repeated] : cases) {
        test.settings.Write("V1Reports", v1Reports);
        test.WriteReport("Golden", {{"Site", "True"}, {"Date", date}}, {});
        Run();
        int rows = 0;
        std::vector<int> sheets;
        for (const std::string& line : ReadLines(PageFile(test.application))) {
            if (line.starts_with("</TABLE>") && rows > 0) break;
            if (line.starts_with("<TR align=\"Center\"")) ++rows;
            if (line == repeated && rows > 0) sheets.push_back(rows);
        }
        EXPECT_EQ(rows, kRows);
        EXPECT_EQ(sheets, (std::vector<int>{62, 137})) << v1Reports << date;
    }
}

TEST_F(PageTest, AChartHasABarForEachValueAndAGapForEachMissingOne) {
    const DatabaseScope database(test.application.session.database);
    const ado::Rows rows = database.Query(
        "SELECT 'Mon' AS Day, 40 AS a, '12.5' AS b, NULL AS c, 'x' AS d, 0 AS e, 100 AS f, "
        "1 AS g, 2 AS h, 3 AS i, 99 AS more");
    EXPECT_EQ(BuildBarGraph(rows, 0, {200, 6}), Golden("graph.html", ""));
    EXPECT_EQ(BuildBarGraph(rows, 1, {200, 6}), Golden("empty_graph.html", ""));
    EXPECT_THROW(BuildBarGraph(database.Query("SELECT 'Mon' AS Day, 1 AS a"), 0, {200, 6}), DatabaseError);
}

TEST(PlotTest, JoinsThreePointsAndMoreAndRefusesUnevenArrays) {
    const std::vector<double> x = {-100, 0, 50, 100};
    const std::vector<double> y = {0, 40, -40, 10};
    EXPECT_EQ(Plot(x, y).size(), 3U);
    EXPECT_TRUE(Plot(x, y)[1].from.y == 40 && Plot(x, y)[1].to.x == 50);
    EXPECT_TRUE(Plot(std::span(x).first(2), std::span(y).first(2)).empty());
    EXPECT_THAT([&] { Plot(x, std::span(y).first(3)); },
                testing::Throws<PlotError>(testing::Property(&PlotError::Number, 1000)));
}

}  // namespace
}  // namespace tallix
