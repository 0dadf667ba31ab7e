#include "reporting/report_run.h"

#include <gmock/gmock.h>

#include "reporting/destinations.h"
#include "reporting/external_applications.h"
#include "session/access_log.h"
#include "support/test_application.h"
#include "text/code_page.h"

namespace tallix {
namespace {

using test::ReadLines;
using test::TestApplication;
using ::testing::ElementsAre;

// Runs reports of one application as comma text and gives back their data lines.
class ReportRunTest : public ::testing::Test {
protected:
    RunOutcome Run(const std::string& name, const RunInputs& inputs = {}) {
        return Make(name, PresetRun{flags, File(name), inputs, PageOutput::CommaText});
    }
    RunOutcome RunScheduled(const std::string& name, const RunInputs& inputs = {}) {
        return Make(name, UnattendedRun{.flags = flags, .reportFile = File(name), .inputs = inputs});
    }
    RunOutcome Make(const std::string& name, const RunKind& kind) {
        NoProgress progress;
        return ReportRun(test.application, progress).Make({.reportName = name, .kind = kind});
    }
    std::filesystem::path File(const std::string& name) const {
        return PresetReportFile(test.application.folder, name);
    }

    std::vector<std::string> Lines() const {
        std::vector<std::string> lines = ReadLines(PageFile(test.application));
        for (std::string& line : lines) line = FromAnsi(line);
        return lines;
    }

    // The lines between the heads and the total.
    std::vector<std::string> Rows() const {
        std::vector<std::string> lines = Lines();
        if (lines.size() < 7) return {};
        return {lines.begin() + 5, lines.end() - 2};
    }

    std::size_t LoggedRuns() {
        return std::ranges::count_if(ReadAccessLog(test.application.session), [](const AccessLogRow& row) {
            return (row[2] + row[3]).starts_with("AnnReport Run - ");
        });
    }

    TestApplication test;
    ReportFlags flags;
};

TEST_F(ReportRunTest, NamesNumbersAndCountries) {
    test.Insert("tblsite", {{"ID", "001"}, {"Area", "0163"}, {"VM", "59999"}});
    test.Insert("tbladdressbook", {{"Name", "Dr Patel"}, {"Number", "07700900123"}});
    test.Execute(
        "INSERT INTO tblcommproviders(Code, Provider) VALUES ('0163', 'Home'), ('077', 'Alpha'), ('078', "
        "'Beta'), "
        "('09', 'Tied'), ('09', 'Tied too')");
    test.Execute("INSERT INTO tblintcodes(Code, Country) VALUES ('33', 'FRA'), ('353', 'IRL')");
    test.settings.Write("Providers", "2");
    test.WriteReport("Numbers", {{"DestNum", "True"}, {"Area", "True"}}, {});
    const std::vector<std::string> rows = {"07700900123,Dr Patel,",  // the address book ends the row
                                           "07700900999,Alpha,GBR,",  "07800900999,Beta,GBR,",
                                           "960123,Home,GBR,",  // the site's own
                                           "59999,Voicemail,GBR,",
                                           "0912345,&nbsp;,GBR,",  // no prefix distinguishes the two rows
                                           "33123456789,&nbsp;,FRA,", "353123456,&nbsp;,IRL,",
                                           "3,&nbsp;,GBR,",  // too short for either search
                                           "88812345,&nbsp;,&nbsp;,", "O'Hara12,&nbsp;,&nbsp;,"};
    for (const std::string& row : rows) test.InsertCall({{"DestNum", row.substr(0, row.find(','))}});
    Run("Numbers");
    EXPECT_EQ(Rows(), rows);
}

TEST_F(ReportRunTest, PricesEachCallWhereStoredCostsAreOff) {
    test.Insert("tblcosts", {{"Number", "Default"}, {"Cost", "2.00"}, {"CostID", "21"}});
    test.Insert("tblcosts", {{"Number", "0770"}, {"Cost", "10.00"}, {"CostID", "99"}});
    test.settings.Write("CostCompute", "0");
    test.WriteReport("Costs", {{"DestNum", "True"}}, {{"Cost", "True"}});
    test.InsertCall();
    test.InsertCall({{"DestNum", "07700900123"}, {"Duration", "00:12:00"}});
    test.InsertCall({{"Duration", "00:00:00"}});

    Run("Costs");
    EXPECT_THAT(Rows(), ElementsAre("01632960123,£0.06,", "07700900123,£1.20,", "01632960123,£0.00,"));
    EXPECT_EQ(Lines().back(), "Total Number Of Records: 3  |  Total Cost £1.26");
}

TEST_F(ReportRunTest, KeepsRecordsByTheirFilters) {
    test.WriteReport("Filtered", {{"Date", "True"}, {"Time", "True"}}, {});
    for (const auto& [date, time] : {std::pair("01/02/2021", "08:29:59"),
                                     {"01/02/2021", "09:00:00"},
                                     {"02/02/2021", "09:00:01"},
                                     {"03/02/2021", "17:00:00"},
                                     {"no date", "no time"}}) {
        test.InsertCall({{"Date", date}, {"Time", time}});
    }
    test.InsertCall({{"Date", "02/02/2021"}, {"DestNum", "  "}});
    struct Case {
        const char* name;
        RunInputs inputs;
        std::vector<std::string> kept;
        bool scheduled = false;
    };
    const std::string first = "01/02/2021,08:29:59,", second = "01/02/2021,09:00:00,",
                      third = "02/02/2021,09:00:01,", fourth = "03/02/2021,17:00:00,",
                      odd = "no date,no time,", blank = "02/02/2021,10:15:00,";
    const Case cases[] = {
        {"no filter drops blank numbers alone", {}, {first, second, third, fourth, odd}},
        {"both days count", {.startDate = "01/02/2021", .endDate = "2/2/2021"}, {first, second, third}},
        {"a start alone; a call without a date goes with the one before",
         {.startDate = "02/02/2021"},
         {third, fourth, odd}},
        {"a start after the end", {.startDate = "03/02/2021", .endDate = "01/02/2021"}, {}},
        {"both times are exclusive", {.timeFrom = "09:00", .timeTo = "17:00"}, {third, odd}},
        {"one time alone does not filter", {.timeFrom = "09:00"}, {first, second, third, fourth, odd}},
        {"a schedule keeps blank numbers", {}, {first, second, third, fourth, odd, blank}, true},
        {"a schedule with both times", {.timeFrom = "09:00", .timeTo = "17:00"}, {third, odd, blank}, true},
        {"a schedule with an end alone", {.timeTo = "09:00"}, {first, odd}, true},
        {"a schedule with a start alone keeps only what is not a time", {.timeFrom = "09:00"}, {odd}, true},
    };
    for (const Case& c : cases) {
        const RunOutcome outcome =
            c.scheduled ? RunScheduled("Filtered", c.inputs) : Run("Filtered", c.inputs);
        ASSERT_EQ(outcome, RunOutcome::Complete) << c.name;
        EXPECT_EQ(Rows(), c.kept) << c.name;
    }
}

TEST_F(ReportRunTest, KeepsCallsBeforeOpeningAlone) {
    test.WriteReport("Early", {{"Time", "True"}}, {{"Hours", "True"}});
    for (const char* time : {"07:59:59", "08:30:00", "12:00:00", "19:00:00"})
        test.InsertCall({{"Time", time}});
    Run("Early");
    EXPECT_THAT(Rows(), ElementsAre()) << "no opening time";
    test.settings.Write("TimeOpen", "08:30");
    test.settings.Write("TimeClosed", "17:30");
    Run("Early");
    EXPECT_THAT(Rows(), ElementsAre("07:59:59,"));
}

TEST_F(ReportRunTest, BoundsTheRecordsLookedAt) {
    const TestApplication::Row count = {{"DestNum", "True"}, {"Sum", "True"}, {"Duration", "True"}};
    TestApplication::Row options = {{"Sum", "DestNumC"},
                                    {"Top", "2"},
                                    {"Where", "GROUP BY DestNum ORDER BY COUNT(DestNum) DESC, DestNum"}};
    test.WriteReport("Top", count, options);
    for (const char* number :
         {"2001", "2001", "2001", "01632960001", "01632960001", "01632960002", "01632960003"}) {
        test.InsertCall({{"DestNum", number}});
    }
    Run("Top");
    EXPECT_THAT(Rows(), ElementsAre("&nbsp;,01632960001,", "&nbsp;,01632960002,"))
        << "internal numbers take no place";
    RunScheduled("Top");
    EXPECT_EQ(Rows().size(), 3u) << "schedules take all";

    options["Top"] = "99999";
    test.WriteReport("Top", count, options);
    Run("Top");
    EXPECT_EQ(Rows().size(), 3u) << "a bound beyond 16 bits is ignored";
}

TEST_F(ReportRunTest, EndsWithoutDataWhereTheServerHasNoneOrRefuses) {
    test.WriteReport("Broken", {{"Date", "True"}}, {{"Where", "WHERE WHERE"}, {"Cost", "True"}});
    test.WriteReport("Empty", {{"Date", "True"}}, {});
    for (const char* name : {"Empty", "Broken", "Missing"}) {
        EXPECT_EQ(Run(name), RunOutcome::NoData) << name;
        EXPECT_EQ(Lines()[0], std::string("Tallix Reports - ") + name);
        EXPECT_EQ(RunScheduled(name), RunOutcome::Complete) << name;
    }
    RunScheduled("Broken");
    EXPECT_THAT(Lines(), ElementsAre("Tallix Reports - Broken", "Generated On: 09/03/2021 At 14:05:30",
                                     "Created By Tallix Reports V1.4.6", "", "Date:,Cost:,", "",
                                     "Total Number Of Records: 0  |  Total Cost £0.00"));

    test.application.session.database.server = "sqlite:/nowhere/at/all.db";
    EXPECT_EQ(Run("Broken"), RunOutcome::NoData);
}

TEST_F(ReportRunTest, SurvivesNullsQuotesAndStrangeText) {
    TestApplication::Row columns;
    for (const char* name : {"Date", "Time", "Extension", "Name", "Duration", "Forward", "DestNum", "Area"})
        columns[name] = "True";
    test.WriteReport("Odd", columns, {{"Cost", "True"}});
    test.settings.Write("CostCompute", "0");
    test.Insert("tblphonedata", {{"DestNum", "0163 \"29\" '6'"},
                                 {"Internal", "0"},
                                 {"Extension", "2\"0'1"},
                                 {"Duration", "a:b:c"},
                                 {"Forward", "ja"}});
    test.Insert("tblphonedata", {{"DestNum", "Žluťoučký 猫"}, {"Internal", "0"}, {"Date", "<TD>x</TD>"}});
    ASSERT_EQ(Run("Odd"), RunOutcome::Complete);
    EXPECT_THAT(Rows(), ElementsAre("&nbsp;,&nbsp;,2\"0'1,&nbsp;,a:b:c,No,0163 \"29\" '6',&nbsp;,£0.00,",
                                    "x,,&nbsp;,&nbsp;,&nbsp;,&nbsp;,No,Žlu?ou?ký ?,&nbsp;,£0.00,"));
}

TEST_F(ReportRunTest, WritesCoversAndAChartAndLogsTheRunOfAPersonAlone) {
    test.InsertCall();
    test.WriteReport("All", {{"Date", "True"}}, {});
    test.settings.Write("CCover", "1");
    const auto expectPages = [&](bool cover, bool back) {
        EXPECT_EQ(std::filesystem::exists(test.application.tempFolder / "rptcov.tmp"), cover);
        EXPECT_EQ(std::filesystem::exists(test.application.tempFolder / "rptbac.tmp"), back);
    };
    const PresetRun charted = {.flags = flags, .reportFile = File("All"), .drawsGraph = true};
    EXPECT_EQ(Make("All", charted), RunOutcome::Complete);
    expectPages(true, false);
    EXPECT_EQ(Lines().at(Lines().size() - 4), "</td></tr></table>");
    EXPECT_EQ(LoggedRuns(), 1U);

    test.settings.Write("CCover", "");
    test.settings.Write("BBacking", "1");
    RunScheduled("All");
    expectPages(true, false);  // a schedule leaves the covers of a person alone
    Run("All");
    expectPages(false, true);
    EXPECT_EQ(LoggedRuns(), 2U);
}

TEST_F(ReportRunTest, ARefusedRunLeavesItsSwitchesToTheNextAndNoFiles) {
    test.InsertCall();
    test.WriteReport("First", {{"Site", "True"}, {"Time", "True"}}, {});
    test.WriteReport("Second", {{"Site", "-"}, {"Time", "nonsense"}, {"Date", "-1"}}, {});
    Run("Second");
    EXPECT_THAT(Rows(), ElementsAre("05/03/2021,"));
    const PresetRun first = {.flags = flags, .reportFile = File("First"), .demandsExtension = true};
    EXPECT_EQ(Make("First", first), RunOutcome::Refused);
    EXPECT_TRUE(std::filesystem::is_empty(test.application.tempFolder));
    Run("Second");
    EXPECT_THAT(Rows(), ElementsAre("05/03/2021,10:15:00,001,"));
    EXPECT_EQ(LoggedRuns(), 2U);
}

TEST_F(ReportRunTest, WritesTheTitleLineOfWhatWasAsked) {
    test.InsertCall();
    const std::tuple<std::string, std::string, RunInputs, std::string> cases[] = {
        {"True", "False", {.account = "7", .site = "ALL"}, "Of 7"},
        {"True", "False", {.extension = "201", .site = "ALL"}, "Of ALL"},
        {"True", "True", {.extension = "201", .account = "7"}, "Of 201"},
        {"False", "False", {.site = "002"}, "Of 002"}};
    for (const auto& [account, extension, inputs, title] : cases) {
        test.WriteReport("Titled", {}, {{"Title", "Of"}, {"Account", account}, {"Extension", extension}});
        Run("Titled", inputs);
        EXPECT_EQ(Lines()[4], title);
    }
}

class RecordedWindows : public DeliveryWindows {
public:
    void LoadReportOutput() override { calls.emplace_back("load"); }
    void ShowReportOutput() override { calls.emplace_back("show"); }
    void UnloadReportOutput() override { calls.emplace_back("unload"); }
    void PrintReportOutput() override { calls.emplace_back("print"); }
    void UnloadRequest() override { calls.emplace_back("unload request"); }
    void HideMain() override { calls.emplace_back("hide main"); }
    std::vector<std::string> Printers() override { return {"A", "B", "A"}; }
    void SetCurrentPrinter(const std::string& name) override { calls.push_back("current " + name); }

    std::vector<std::string> calls;
};

class DestinationsTest : public testing::Test {
protected:
    void Store(const std::string& key, const std::string& name, const std::string& value) {
        test_.settings.fWriteValue("HKLM", key, name, "S", value);
    }
    void StoreEveryFolder() {
        for (const std::string version : {"9.0", "11.0", "12.0", "14.0"}) {
            Store("Software\\Microsoft\\Office\\" + version + "\\Excel\\Installroot", "Path",
                  "C:\\Office" + version);
        }
        const std::string notera = "Software\\Quillmere Software\\Notera\\";
        Store(notera + "Settings", "Install Folder", "C:\\Listed");
        Store(notera + "Setting", "Install Folder", "C:\\Notera");
        Store("Software\\OpenOffice.org\\OpenOffice.org\\3.0", "Path", "C:\\OO3\\soffice.exe");
        Store("Software\\OpenOffice.org\\UNO", "OepnOffice.org 2.0", "C:\\Listed");
    }

    test::TestApplication test_;
    RecordedWindows windows_;
};

TEST_F(DestinationsTest, TheListShowsWhatTheSettingsNameAndEachEntryHasItsCommandOrNone) {
    EXPECT_THAT(ExternalApplications(test_.settings), ElementsAre("Microsoft Notepad"));
    StoreEveryFolder();
    setenv("SystemRoot", "C:\\Windows", 1);
    const std::string file = " \"" + test_.application.tempFolder.string() + "\\rpt.csv\"";
    const std::pair<const char*, std::string> listed[] = {
        {"Microsoft Excel 2010", ""},
        {"Microsoft Excel 2007", "C:\\Office12.0\\Excel.exe" + file},
        {"Microsoft Excel 2003", "C:\\Office11.0\\Excel.exe" + file},
        {"Microsoft Excel 2000", "C:\\Office9.0\\Excel.exe" + file},
        {"QS Notera V3", ""},
        {"OpenOffice.org 3.0 Calc", "C:\\OO3\\scalc.exe" + file},
        {"OpenOffice.org 2.0 Calc", "\\scalc.exe" + file},
        {"Microsoft Notepad", "C:\\Windows\\SYSTEM32\\notepad.exe" + file},
    };
    std::vector<std::string> entries;
    for (const auto& [entry, command] : listed) {
        entries.emplace_back(entry);
        EXPECT_EQ(ExternalCommand(test_.application, entry), command) << entry;
    }
    EXPECT_EQ(ExternalApplications(test_.settings), entries);
    EXPECT_EQ(ExternalCommand(test_.application, "notera v3"), "C:\\Notera\\Notera.exe" + file);
    EXPECT_EQ(ExternalCommand(test_.application, ""), "");
    unsetenv("SystemRoot");
    Store("Software\\OpenOffice.org\\OpenOffice.org\\3.0", "Path", "short");
    EXPECT_EQ(ExternalCommand(test_.application, "OpenOffice.org 3.0 Calc"), "");
}

TEST_F(DestinationsTest, EachDestinationHasItsSteps) {
    DeliverReport(test_.application, windows_, {});
    EXPECT_THAT(windows_.calls, ElementsAre("load", "show", "unload request", "hide main"));
    windows_.calls.clear();
    DeliverReport(test_.application, windows_, {.destination = Destination::ToPrinter, .printer = "A"});
    EXPECT_THAT(windows_.calls, ElementsAre("current A", "load", "print", "unload", "unload request",
                                            "current A", "load", "print", "unload", "unload request"));
    windows_.calls.clear();
    DeliverReport(test_.application, windows_, {.destination = Destination::ToPrinter, .printer = "C"});
    EXPECT_THAT(windows_.calls, ElementsAre());
}

TEST_F(DestinationsTest, AnApplicationGetsTheRenamedFileUnlessTheOldOneIsHeld) {
    const DestinationChoice choice = {.destination = Destination::InExternalApplication,
                                      .application = "Microsoft Excel 2010"};
    std::ofstream(PageFile(test_.application)) << "first";
    DeliverReport(test_.application, windows_, choice);
    EXPECT_EQ(test::ReadBytes(CommaTextFile(test_.application)), "first");
    EXPECT_FALSE(std::filesystem::exists(PageFile(test_.application)));
    EXPECT_THAT(windows_.calls, ElementsAre("unload request"));

    std::ofstream(PageFile(test_.application)) << "second";
    DeliverReport(test_.application, windows_, choice);
    EXPECT_EQ(test::ReadBytes(CommaTextFile(test_.application)), "first");
}

}  // namespace
}  // namespace tallix
