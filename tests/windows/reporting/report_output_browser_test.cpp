// A report on its way to the screen and to a printer, through the real browser and the
// real print system.
#include "windows/reporting/report_output_window.h"

#include <signal.h>

#include <thread>

#include "reporting/report_run.h"
#include "settings/page_setup.h"
#include "support/form_test.h"
#include "support/print_server.h"
#include "support/run_program.h"
#include "windows/reporting/report_delivery.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr char kPrinter[] = "Front_Office";
constexpr char kFailed[] = "Report Failed to Load!";

/// Takes the answer of the print dialog from the test.
class ScriptedPrinters : public toolkit::Printers {
public:
    std::optional<PrintTicket> Ask(QWidget*) const override { return answer; }
    std::optional<PrintTicket> answer;
};

class ReportOutputTest : public test::FormTest {
protected:
    ReportOutputTest() {
        AddEmptyForms({kMainForm, kStatisticsForm, kPresetReportsForm});
        UnderTest<ReportOutputWindow>(kReportOutputForm, world.application, printers_);
        forms.Load(kMainForm);
        forms.Load(kPresetReportsForm);
    }
    ~ReportOutputTest() override {
        for (const QString& name : forms.Loaded()) forms.Unload(name);
        RunToTheEnd(std::chrono::milliseconds(100));
    }

    /// A page of the coloured layout with so many calls.
    void WritePage(int calls) {
        for (int call = 0; call < calls; ++call) world.InsertCall();
        for (const char* colour : {"rptTC", "rptTHC", "rptTDC", "rptTBC"}) {
            world.settings.Write(colour, "000128255");
        }
        world.settings.Write("V1Reports", "1");
        world.Execute("INSERT INTO tblsite(ID, Name) VALUES ('1', 'Caf\xC3\xA9')");
        const auto file = world.WriteReport("Calls", {{"Date", "True"}, {"DestNum", "True"}}, {});
        ReportFlags flags;
        NoProgress progress;
        ReportRun(world.application, progress)
            .Make({.reportName = "Calls", .kind = PresetRun{.flags = flags, .reportFile = file}});
    }

    void Deliver(const DestinationChoice& choice) {
        DeliverReport(forms, world.application, printers_, choice, kPresetReportsForm);
    }

    static bool WaitFor(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, kPatience);
    }

    bool Loads() {
        return WaitFor([this] { return !Window().findChild<QWidget*>("WaitingFrame")->isVisible(); });
    }
    bool Says(const QString& text) {
        return std::ranges::any_of(Window().findChildren<QLabel*>(), [&](const QLabel* label) {
            return label->isVisible() && label->text() == text;
        });
    }

    static constexpr int kPatience = 15000;
    static constexpr int kPause = 20;

    ScriptedPrinters printers_;
};

std::string TextOf(const std::filesystem::path& pdf) {
    return test::RunProgram("/usr/bin/pdftotext", {"-layout", pdf.string(), "-"}).out;
}

TEST_F(ReportOutputTest, ShowsTheReportPrintsItAndDeletesItWhenClosed) {
    const test::PrintServer server(kPrinter);
    WritePage(3);
    forms.Show(kMainForm);
    Deliver({});
    ASSERT_TRUE(IsVisible(kReportOutputForm) && !IsVisible(kMainForm));
    EXPECT_EQ(forms.Find(kPresetReportsForm), nullptr);
    EXPECT_TRUE(Says("Your report is being displayed"));
    EXPECT_TRUE(Loads());

    auto* view = Window().findChild<QWebEngineView*>();
    EXPECT_EQ(view->title(), "Tallix Reports - Calls");
    QString text;
    view->page()->toPlainText([&](const QString& shown) { text = shown; });
    EXPECT_TRUE(WaitFor([&] { return !text.isEmpty(); }));
    EXPECT_THAT(text.toStdString(), AllOf(HasSubstr("Caf\xC3\xA9"), HasSubstr("Total Number Of Records: 3")));

    Click("Print Report");
    printers_.answer = PrintTicket{.printer = kPrinter};
    Click("Print Report");
    EXPECT_TRUE(WaitFor([&] { return !server.Jobs().empty(); }));
    EXPECT_EQ(server.Jobs().size(), 1U) << "the first was answered with Cancel";
    EXPECT_THAT(TextOf(server.Jobs().front()), HasSubstr("Page 1 of 1\n"));
    EXPECT_THAT(Logged(), ElementsAre("Report Run - Calls", "Report Printed", "Report Printed"));

    Window().activateWindow();
    view->setFocus();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
    QTest::keyClick(Window().windowHandle(), Qt::Key_Escape);
    EXPECT_TRUE(WaitFor([&] { return !IsLoaded(); }));
    EXPECT_TRUE(IsVisible(kMainForm));
    EXPECT_FALSE(std::filesystem::exists(PageFile(world.application)));
}

TEST_F(ReportOutputTest, PrintsEachPageWithItsNumberThoughTheLastWindowIsGone) {
    const test::PrintServer server(kPrinter);
    WritePage(150);
    WritePageSetup(world.settings, {"mine", "&bmine too"});
    Deliver({.destination = Destination::ToPrinter, .printer = "Back_Office"});
    EXPECT_NE(forms.Find(kPresetReportsForm), nullptr) << "the printer is not there";
    EXPECT_FALSE(SpoolDocument({.printer = "Back_Office"}, "%PDF-1.4"));
    Later([&] {
        Deliver({.destination = Destination::ToPrinter, .printer = kPrinter});
        EXPECT_FALSE(IsLoaded());
        EXPECT_FALSE(std::filesystem::exists(PageFile(world.application)));
        forms.Unload(kMainForm);
    });
    EXPECT_EQ(RunToTheEnd(), 0);
    for (int waited = 0; server.Jobs().empty() && waited < kPatience; waited += kPause) {
        std::this_thread::sleep_for(std::chrono::milliseconds(kPause));  // of the spooler alone
    }
    ASSERT_EQ(server.Jobs().size(), 1U);
    EXPECT_THAT(TextOf(server.Jobs().front()), AllOf(HasSubstr("Caf\xC3\xA9"), HasSubstr("Page 1 of 3\n"),
                                                     HasSubstr("Page 3 of 3\n"), Not(HasSubstr("mine"))));
    const PageSetup kept = ReadPageSetup(world.settings);
    EXPECT_EQ(kept.header + "|" + kept.footer, "mine|&bmine too");
    EXPECT_THAT(Logged(), ElementsAre("Report Run - Calls"));
}

TEST_F(ReportOutputTest, ADatabaseThatIsGoneIsPassedOverAndOnlyTheRightOffersToPrint) {
    world.application.session.UseStatsMain = true;
    forms.Show(kStatisticsForm);
    Deliver({});
    EXPECT_FALSE(IsVisible(kStatisticsForm));
    world.application.session.database.server = "sqlite:/nowhere/at/all.db";
    Click("Print Report");
    Click("Close");
    EXPECT_TRUE(IsVisible(kStatisticsForm) && !IsVisible(kMainForm));
    world.application.session.CurrentAccess.Refuse(AccessRight::PrintReport);
    Deliver({});
    EXPECT_FALSE(Button("Print Report").isVisible() || Button("Export As PDF").isVisible());
}

TEST_F(ReportOutputTest, ALoadThatReplacesAnotherFindsTheReportAlthoughItIsDeleted) {
    WritePage(2);
    auto* output = dynamic_cast<ReportOutputWindow*>(forms.Load(kReportOutputForm));
    for (int load = 0; load < 5; ++load) {
        output->Navigate();
        QTest::qWait(load * kPause / 2);  // the request of some loads is under way by then
    }
    output->Navigate();
    std::filesystem::remove(PageFile(world.application));
    forms.Show(kReportOutputForm);
    EXPECT_TRUE(Loads());
    EXPECT_EQ(output->findChild<QWebEngineView*>()->title(), "Tallix Reports - Calls");
}

TEST_F(ReportOutputTest, AReportThatIsGoneAndADeadRendererSaySoAndLeaveTheProgramAlive) {
    Deliver({});
    EXPECT_TRUE(WaitFor([&] { return Says(kFailed); }));
    Click("Close");

    WritePage(1);
    Deliver({});
    EXPECT_TRUE(Loads());
    const auto renderer = Window().findChild<QWebEngineView*>()->page()->renderProcessPid();
    ASSERT_GT(renderer, 0);
    kill(static_cast<pid_t>(renderer), SIGKILL);
    EXPECT_TRUE(WaitFor([&] { return Says(kFailed); }));
    EXPECT_TRUE(IsVisible(kReportOutputForm));
}

}  // namespace
}  // namespace tallix
