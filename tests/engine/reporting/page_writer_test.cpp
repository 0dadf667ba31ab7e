// Whole pages against the files in golden/, which hold UTF-8 and "\n" for the eye; the
// program writes Windows-1252 and CR LF.
#include <gtest/gtest.h>

#include "reporting/custom_reports.h"
#include "reporting/report_run.h"
#include "support/places.h"
#include "support/test_application.h"
#include "text/code_page.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::ReadLines;
using test::TestApplication;

std::string Golden(const std::string& name, const std::filesystem::path& folder) {
    const std::filesystem::path file =
        test::SourceFolder() / "tests" / "engine" / "reporting" / "golden" / name;
    EXPECT_TRUE(std::filesystem::exists(file)) << file;
    const std::string text = Replace(ReadBytes(file), "{folder}", folder.string());
    return ToAnsi(Replace(text, "\n", "\r\n"));
}

class PageTest : public ::testing::Test {
protected:
    PageTest() {
        test.Execute(
            "INSERT INTO tblsite(ID, Name, Addy1, Addy2, Addy3, Postcode) VALUES ('001', 'Head Office', "
            "'1 High Street', '', '', 'NT1 1AA')");
    }

    void Run(const RunInputs& inputs, PageOutput output) {
        const auto file = PresetReportFile(test.application.folder, "Golden");
        Make(PresetRun{.flags = flags, .reportFile = file, .inputs = inputs, .output = output});
    }
    void Make(const RunKind& kind) {
        NoProgress progress;
        ReportRun(test.application, progress).Make({.reportName = "Golden", .kind = kind});
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
    for (const auto& [name, value] : {std::pair("rptTC", "002001118"),
                                      {"rptTHC", "180003000"},
                                      {"rptTDC", "254254170"},
                                      {"rptTBC", "no colour"}}) {
        test.settings.Write(name, value);
    }
    struct Case {
        const char* golden;
        const char* v1Reports;
        const char* alignment;
        PageOutput output;
    };
    const Case cases[] = {{"plain.html", "0", "L", PageOutput::Html},
                          {"coloured.html", "1", "middle", PageOutput::Html},
                          {"comma.csv", "0", "R", PageOutput::CommaText},
                          {"comma.csv", "1", "R", PageOutput::CommaText}};
    for (const Case& c : cases) {
        test.settings.Write("V1Reports", c.v1Reports);
        test.settings.Write("ReportAlign", c.alignment);
        Run({.site = "ALL"}, c.output);
        EXPECT_EQ(ReadBytes(PageFile(test.application)), Golden(c.golden, test.application.folder))
            << c.golden << " with V1Reports " << c.v1Reports;
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
        EXPECT_EQ(ReadBytes(PageFile(test.application)), Golden(golden, test.application.folder));
    }
}

TEST_F(PageTest, RepeatsTheHeadsForEachPrintedSheet) {
    constexpr int kRows = 140;
    std::string calls = "INSERT INTO tblphonedata(Site, DestNum) VALUES ('001', '1')";
    for (int i = 1; i < kRows; ++i) calls += ", ('001', '1')";
    test.Execute(calls);
    struct Case {
        const char* v1Reports;
        const char* date;
        std::string repeated;
    };
    const Case cases[] = {
        {"0", "True", ""},
        {"1", "True",
         R"(<TR align="center" bgcolor="#010203"><TD><font color="white"><B>Date:</B></FONT></TD>)"
         R"(<TD><font color="white"><B>Site:</B></FONT></TD>)"},
        {"1", "False", R"(<TD><font color="white"><B>Site:</B></FONT></TD>)"}};
    test.settings.Write("rptTHC", "001002003");
    for (const Case& c : cases) {
        test.settings.Write("V1Reports", c.v1Reports);
        test.WriteReport("Golden", {{"Site", "True"}, {"Date", c.date}}, {});
        Run({}, PageOutput::Html);
        int rows = 0;
        std::vector<int> sheets;
        for (const std::string& line : ReadLines(PageFile(test.application))) {
            if (line.starts_with("</TABLE>") && rows > 0) break;
            if (line.starts_with("<TR align=\"Center\"")) ++rows;
            if (line == c.repeated && rows > 0) sheets.push_back(rows);
        }
        EXPECT_EQ(rows, kRows);
        EXPECT_EQ(sheets, (std::vector<int>{62, 137})) << c.v1Reports << c.date;
    }
}

}  // namespace
}  // namespace tallix
