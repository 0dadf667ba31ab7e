#include "reporting/custom_reports.h"

#include <gmock/gmock.h>

#include <fstream>

#include "reporting/report_run.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class CustomReportsTest : public testing::Test {
protected:
    CustomReport Showing(std::initializer_list<const char*> keys) {
        CustomReport report;
        for (const char* key : keys) report.shown.at(CustomFieldOfKey(key)) = true;
        return report;
    }

    RunOutcome Run(const CustomReport& report) {
        NoProgress progress;
        return ReportRun(test_.application, progress).Make({.reportName = "Mine", .kind = CustomRun{report}});
    }

    std::vector<std::string> Page() { return test::ReadLines(PageFile(test_.application)); }

    test::TestApplication test_;
};

TEST_F(CustomReportsTest, AFilterAppliesWhereItsFieldIsShown) {
    for (const char* day : {"01", "02", "03"}) {
        test_.InsertCall({{"Account", ""},
                          {"Date", std::string(day) + "/03/2021"},
                          {"Duration", "00:0" + std::string(day + 1) + ":00"}});
    }
    test_.InsertCall({{"Extension", "t9"}, {"Date", "never"}, {"Account", "7"}, {"Duration", ""}});
    struct Case {
        std::initializer_list<const char*> shown;
        void (*fill)(CustomReport&);
        std::vector<std::string> rows;
    };
    const Case cases[] = {
        {{"Account"},
         [](CustomReport& r) { r.startDate = "01/03/2021"; },
         {"&nbsp;", "&nbsp;", "&nbsp;", "7"}},
        {{"Date"},
         [](CustomReport& r) { r.startDate = "01/03/2021"; },
         {"02/03/2021", "03/03/2021", "never"}},
        {{"Date"},
         [](CustomReport& r) { r.startDate = "01/03/2021", r.endDate = "03/03/2021"; },
         {"02/03/2021", "never"}},
        {{"Date"},
         [](CustomReport& r) { r.endDate = "x"; },
         {"01/03/2021", "02/03/2021", "03/03/2021", "never"}},
        {{"ExtName", "Date"}, [](CustomReport& r) { r.endDate = "02/03/2021"; }, {"&nbsp;,01/03/2021"}},
        {{"Duration"},
         [](CustomReport& r) { r.duration = "00:02:00", r.durationTest = DurationTest::Greater; },
         {"00:03:00"}},
        {{"Duration"},
         [](CustomReport& r) { r.duration = "00:02:00", r.durationTest = DurationTest::Less; },
         {"00:01:00", "&nbsp;"}},
        {{"Duration", "Account"}, [](CustomReport& r) { r.duration = "1", r.account = "7"; }, {"7"}},
        {{"Time"}, [](CustomReport& r) { r.extension = "t9"; }, {"10:15:00"}},
    };
    for (const Case& c : cases) {
        CustomReport report = Showing(c.shown);
        report.destination = Destination::InExternalApplication;
        c.fill(report);
        ASSERT_EQ(Run(report), RunOutcome::Complete);
        std::vector<std::string> page = Page();
        const std::vector<std::string> rows(page.begin() + 5, page.end() - 2);
        std::vector<std::string> expected;
        for (const std::string& row : c.rows) expected.push_back(row + ",");
        EXPECT_EQ(rows, expected) << "case " << &c - cases;
    }
    CustomReport report = Showing({"Time"});
    report.extension = "2\"0'1";
    EXPECT_EQ(Run(report), RunOutcome::NoData);
}

TEST_F(CustomReportsTest, AFileKeepsAReportAndStaysInItsFolder) {
    const std::string location = test_.Folder().string();
    const auto folder = CustomReportsFolder(location);
    std::filesystem::create_directories(folder / "CST_");
    CustomReport report = Showing({"Time", "Account"});
    report.account = "12 \"34\"";
    report.durationTest = DurationTest::Less;
    report.endDate = "02/03/2021";
    report.destination = Destination::InExternalApplication;
    report.application = "Microsoft Notepad";
    WriteCustomReport(location, "Café", report);
    EXPECT_THAT(
        test::ReadLines(folder / "CST_Café.SRT"),
        ElementsAre("Tallix Reports Tool - Custom Report - V1.0", "", "[Data]", "ExtName=False", "Date=False",
                    "Time=True", "Duration=False", "Ext=False", "NoR=False", "OrigNum=False", "DestNum=False",
                    "Internal=False", "Speedcall=False", "Forward=False", "Trunk=False", "Account=True", "",
                    "[Options]", "Account=12 \"34\"", "Duration=", "Greater=False", "Less=True",
                    "SDate=", "EDate=02/03/2021", "Extension=", "", "[Destination]", "Screen=False",
                    "Printer=False", "Application=True", "AppName=Microsoft Notepad"));
    CustomReport read;
    ReadCustomReport(location, "Café", read);
    EXPECT_EQ(read.shown, report.shown);
    EXPECT_EQ(read.account + read.endDate + read.application,
              report.account + report.endDate + report.application);
    EXPECT_TRUE(read.durationTest == DurationTest::Less &&
                read.destination == Destination::InExternalApplication);

    const auto filesBefore = ListReports(folder).size();
    for (const char* name : {"/../../x", "\\..\\x", "a/b", "a\nb"}) WriteCustomReport(location, name, report);
    EXPECT_EQ(ListReports(folder).size(), filesBefore);
    EXPECT_FALSE(std::filesystem::exists(test_.Folder() / "x.SRT"));
}

}  // namespace
}  // namespace tallix
