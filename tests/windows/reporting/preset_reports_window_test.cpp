#include "windows/reporting/preset_reports_window.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QTest>
#include <QToolButton>
#include <filesystem>

#include "reporting/report_run.h"
#include "support/form_test.h"
#include "toolkit/qt_events.h"

namespace tallix {
namespace {

using ::testing::StartsWith;

class TwoPrinters : public toolkit::Printers {
public:
    std::vector<std::string> Names() const override { return {"Front Desk", "Back Office"}; }
};

class PresetReportsWindowTest : public test::FormTest {
protected:
    PresetReportsWindowTest() {
        world.events.queue = &events_;
        AddEmptyForms({kMainForm, kReportOutputForm});
        UnderTest<PresetReportsWindow>(kPresetReportsForm, world.application, flags_, printers_);
        world.WriteReport("All Calls", {{"Date", "True"}}, {});
        world.WriteReport("Of Extension", {{"Date", "True"}}, {{"Extension", "True"}});
        world.WriteReport("Of Nobody", {{"Date", "True"}}, {{"Where", "WHERE Extension = '999'"}});
    }

    // As the main menu does it.
    QWidget& Open() {
        forms.Show(kMainForm);
        forms.Show(kPresetReportsForm);
        forms.Hide(kMainForm);
        return *forms.Find(kPresetReportsForm);
    }

    void Select(const QString& report) {
        auto& list = Labelled<QListView>("Available Reports");
        const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, report);
        list.setCurrentIndex(found.value(0));
    }

    toolkit::QtEvents events_;
    ReportFlags flags_;
    TwoPrinters printers_;
};

TEST_F(PresetReportsWindowTest, OpensWithItsListsAndWithNothingToRun) {
    world.Execute("INSERT INTO tblsite(ID) VALUES ('7')");
    Open();
    EXPECT_EQ(Labelled<QListView>("Available Reports").model()->rowCount(), 3);
    EXPECT_FALSE(Button("Run Report").isEnabled());
    const auto& sites = Labelled<QComboBox>("Site:");
    EXPECT_EQ(sites.currentText(), "ALL");
    EXPECT_EQ(sites.itemText(1), "007");
    const auto& times = Labelled<QComboBox>("Time:");
    EXPECT_EQ(times.count(), 1440);
    EXPECT_EQ(times.itemText(9 * 60 + 5), "09:05");
    EXPECT_EQ(times.currentText(), "");
    EXPECT_TRUE(Captioned<QRadioButton>("To Printer").isVisible());
    EXPECT_FALSE(Captioned<QCheckBox>("GRAPH").isVisible());

    forms.Unload(kPresetReportsForm);
    world.application.session.CurrentAccess.Refuse(AccessRight::PresetReportDestination);
    Open();
    EXPECT_FALSE(Captioned<QRadioButton>("To Printer").isVisible());
}

TEST_F(PresetReportsWindowTest, AReportEnablesTheInputsThatItAsksForAndKeepsWhatTheyHold) {
    Open();
    const std::vector<std::pair<std::string, const char*>> inputs = {
        {"Date", "Date:"},           {"Duration", "Duration:"},
        {"Extension", "Extension:"}, {"Account", "Account Code:"},
        {"Site", "Site:"},           {"Group", "Group:"},
        {"Time", "Time:"},
    };
    for (const auto& [key, caption] : inputs) {
        world.WriteReport("All Calls", {}, {{key, "true"}});
        Select("Of Extension");
        Select("All Calls");
        Type("Extension:", "x");
        for (const auto& [otherKey, other] : inputs) {
            EXPECT_EQ(Labelled<QWidget>(other).isEnabled(), key == otherKey) << key << ", " << other;
            EXPECT_EQ(Captioned<QLabel>(other).isEnabled(), key == otherKey) << key << ", " << other;
        }
        EXPECT_EQ(Captioned<QRadioButton>("Less Than").isEnabled(), key == "Duration");
        EXPECT_EQ(Button("...").isEnabled(), key == "Date");
    }
    EXPECT_TRUE(Button("Run Report").isEnabled());
    world.WriteReport("All Calls", {}, {{"Group", "true"}});
    auto& reports = Labelled<QListView>("Available Reports");
    QTest::mouseClick(reports.viewport(), Qt::LeftButton, {},
                      reports.visualRect(reports.currentIndex()).center());
    EXPECT_TRUE(Labelled<QWidget>("Group:").isEnabled()) << "read again at a second click";
    std::filesystem::remove(PresetReportFile(world.application.folder, "Of Extension"));
    Select("Of Extension");
    for (const auto& [key, caption] : inputs) EXPECT_FALSE(Labelled<QWidget>(caption).isEnabled()) << key;
    EXPECT_EQ(Labelled("Extension:").text(), "x");
}

TEST_F(PresetReportsWindowTest, ADateIsTypedOrPicked) {
    world.WriteReport("All Calls", {}, {{"Date", "True"}});
    QWidget& window = Open();
    Select("All Calls");
    auto& box = Captioned<QCheckBox>("Start Date");
    QLineEdit& field = window.findChild<toolkit::DateInput*>("Start Date")->Field();
    QTest::keyClicks(&field, "1");
    EXPECT_TRUE(box.isChecked());
    field.clear();
    EXPECT_FALSE(box.isChecked());

    Click("...");
    auto& panel = *window.findChild<toolkit::CalendarPanel*>();
    auto& calendar = *panel.findChild<QCalendarWidget*>();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(calendar.selectedDate(), QDate(2021, 3, 9)) << "today";
    for (QToolButton* month : panel.findChildren<QToolButton*>()) {
        if (month->toolTip() == "Go back one month") month->click();
    }
    EXPECT_EQ(calendar.monthShown(), 2);
    emit calendar.clicked(QDate(2021, 2, 5));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(field.text(), "05/02/2021");
    EXPECT_TRUE(box.isChecked());

    box.setChecked(false);
    Click("...");
    emit calendar.clicked(QDate(2021, 2, 5));
    EXPECT_TRUE(box.isChecked()) << "the day that the field held before";
}

TEST_F(PresetReportsWindowTest, EveryRunEndsAtTheMainMenuOrAtTheReport) {
    struct Case {
        const char* report;
        const char* extension;
        const char* message;  ///< its opening; null for a report
        bool leavesPage;
        bool vanishes = false;  ///< the report's file, between its choice and the run
    };
    const Case cases[] = {{"All Calls", "x", nullptr, true},
                          {"Of Extension", "", "You have not entered a value for extension", false},
                          {"Of Nobody", "", "The report does not contain any data.\nIf you", true},
                          {"Of Extension", "2\"0'1", "You have not entered a numeric", false},
                          {"All Calls", "2\"0'1", nullptr, true, true}};
    world.InsertCall();
    for (const Case& c : cases) {
        world.prompts.messages.clear();
        Open();
        Select(c.report);
        Type("Extension:", c.extension);
        if (c.vanishes) std::filesystem::remove(PresetReportFile(world.application.folder, c.report));
        Click("Run Report");
        EXPECT_FALSE(IsLoaded()) << c.extension;
        EXPECT_EQ(IsVisible(kReportOutputForm), c.message == nullptr) << c.extension;
        EXPECT_EQ(IsVisible(kMainForm), c.message != nullptr) << c.extension;
        EXPECT_EQ(std::filesystem::exists(PageFile(world.application)), c.leavesPage) << c.extension;
        ASSERT_EQ(world.prompts.messages.size(), c.message ? 1U : 0U) << c.extension;
        if (c.message) {
            EXPECT_THAT(world.prompts.messages[0].text, StartsWith(c.message));
        }
        forms.Unload(kReportOutputForm);
    }
}

TEST_F(PresetReportsWindowTest, QuotesInEveryFieldHarmNothing) {
    world.InsertCall();
    world.WriteReport("Of Quotes", {{"Date", "True"}},
                      {{"Date", "True"}, {"Duration", "True"}, {"Group", "True"}, {"Time", "True"}});
    const QString text = "'\"; DELETE FROM tblphonedata; --\"";
    for (const char* report : {"Of Quotes", "All Calls"}) {
        const QWidget& window = Open();
        Select(report);
        for (QLineEdit* field : window.findChildren<QLineEdit*>()) field->setText(text);
        for (QComboBox* list : window.findChildren<QComboBox*>()) {
            if (list->isEditable()) list->setCurrentText(text);
        }
        Click("Run Report");
        EXPECT_FALSE(IsLoaded());
    }
    EXPECT_TRUE(IsVisible(kReportOutputForm)) << "the calls are still there";
}

TEST_F(PresetReportsWindowTest, TheDestinationEnablesItsListAndAMissingPrinterKeepsTheWindow) {
    world.InsertCall();
    const QWidget& window = Open();
    QComboBox* printerList = nullptr;
    QComboBox* applicationList = nullptr;
    for (QComboBox* list : window.findChildren<QComboBox*>()) {
        if (list->accessibleName() == "To Printer") printerList = list;
        if (list->accessibleName() == "In External Application") applicationList = list;
    }
    ASSERT_TRUE(printerList && applicationList);
    EXPECT_FALSE(printerList->isEnabled() || applicationList->isEnabled());
    EXPECT_EQ(printerList->count(), 2);
    EXPECT_EQ(printerList->currentIndex(), -1);
    EXPECT_EQ(applicationList->currentIndex(), -1);
    Captioned<QRadioButton>("In External Application").click();
    EXPECT_TRUE(!printerList->isEnabled() && applicationList->isEnabled());
    Captioned<QRadioButton>("To Printer").click();
    EXPECT_TRUE(printerList->isEnabled() && !applicationList->isEnabled());

    printerList->addItem("Gone");
    printerList->setCurrentText("Gone");
    Select("All Calls");
    Click("Run Report");
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.findChild<toolkit::ProgressPanel*>()->isVisible());
    Click("Cancel");
    EXPECT_TRUE(IsVisible(kMainForm));
}

TEST_F(PresetReportsWindowTest, AnswersDuringARunAndIsNotDisturbedByIt) {
    world.InsertCall();
    for (int doubling = 0; doubling < 19; ++doubling) {
        world.Execute(
            "INSERT INTO tblphonedata(Date, Time, DestNum) SELECT Date, Time, DestNum FROM tblphonedata");
    }
    QWidget& window = Open();
    Select("All Calls");
    int beats = 0;
    bool sawRecords = false;
    QTimer heart;
    heart.callOnTimeout([&] {
        ++beats;
        EXPECT_EQ(forms.Find(kPresetReportsForm), &window);
        EXPECT_TRUE(window.findChild<toolkit::ProgressPanel*>()->isVisible());
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            sawRecords = sawRecords || label->text().endsWith(" Of 524288");
        }
        Click("Run Report");
        Click("Cancel");
        window.close();
        EXPECT_TRUE(window.isVisible());
    });
    Later([&] {
        heart.start(1);
        Click("Run Report");
        heart.stop();
        EXPECT_TRUE(IsVisible(kReportOutputForm));
        QCoreApplication::exit(0);
    });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_GE(beats, 2);
    EXPECT_TRUE(sawRecords);
    EXPECT_FALSE(IsLoaded());
    EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace tallix
