// The windows that run a preset and a custom report and set up their covers.
#include <QCalendarWidget>
#include <QRegularExpression>

#include "reporting/report_run.h"
#include "support/form_test.h"
#include "toolkit/qt_events.h"
#include "windows/reporting/cover_backing_window.h"
#include "windows/reporting/custom_reports_window.h"
#include "windows/reporting/preset_reports_window.h"

namespace tallix {
namespace {

class TwoPrinters : public toolkit::Printers {
public:
    std::vector<std::string> Names() const override { return {"Front Desk", "Back Office"}; }
};

class ReportRunFormTest : public test::FormTest {
protected:
    ReportRunFormTest() {
        world.events.queue = &events_;
        AddEmptyForms({kMainForm, kReportOutputForm});
    }

    void Select(const QString& report) {
        auto& list = Labelled<QListView>("Available Reports");
        const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, report);
        list.setCurrentIndex(found.value(0));
    }

    toolkit::QtEvents events_;
    TwoPrinters printers_;
};

class PresetReportsWindowTest : public ReportRunFormTest {
protected:
    PresetReportsWindowTest() {
        UnderTest<PresetReportsWindow>(kPresetReportsForm, world.application, flags_, printers_);
        world.WriteReport("All Calls", {{"Date", "True"}}, {});
        world.WriteReport("Of Extension", {{"Date", "True"}}, {{"Extension", "True"}});
        world.WriteReport("Of Nobody", {{"Date", "True"}}, {{"Where", "WHERE Extension = '999'"}});
    }

    /// As the main menu does it.
    QWidget& Open() {
        forms.Show(kMainForm);
        forms.Show(kPresetReportsForm);
        forms.Hide(kMainForm);
        return *forms.Find(kPresetReportsForm);
    }

    ReportFlags flags_;
};

TEST_F(PresetReportsWindowTest, AReportEnablesTheInputsThatItAsksForAndKeepsWhatTheyHold) {
    world.Execute("INSERT INTO tblsite(ID) VALUES ('7')");
    world.application.session.CurrentAccess.Refuse(AccessRight::PresetReportDestination);
    Open();
    EXPECT_FALSE(Button("Run Report").isEnabled() || Captioned<QRadioButton>("To Printer").isVisible());
    EXPECT_EQ(Labelled<QComboBox>("Site:").currentText(), "ALL");
    EXPECT_EQ(Labelled<QComboBox>("Site:").itemText(1), "007");
    EXPECT_EQ(Labelled<QComboBox>("Time:").itemText(9 * 60 + 5), "09:05");
    const QStringList inputs = {
        "Date:", "Duration:", "Extension:", "Account Code:", "Site:", "Group:", "Time:"};
    for (const QString& input : inputs) {
        const QString key = input.section(QRegularExpression("[ :]"), 0, 0);
        world.WriteReport("All Calls", {}, {{key.toStdString(), "true"}});
        Select("Of Extension");
        Select("All Calls");
        Type("Extension:", "x");
        for (const QString& other : inputs) {
            EXPECT_EQ(Labelled<QWidget>(other).isEnabled(), input == other) << qPrintable(input + other);
            EXPECT_EQ(Captioned<QLabel>(other).isEnabled(), input == other) << qPrintable(input + other);
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
    for (const QString& input : inputs) EXPECT_FALSE(Labelled<QWidget>(input).isEnabled());
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
    EXPECT_EQ(calendar.selectedDate(), QDate(2021, 3, 9)) << "today";
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
            EXPECT_THAT(LastMessage().text, testing::StartsWith(c.message));
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
        for (QComboBox* list : window.findChildren<QComboBox*>()) list->setCurrentText(text);
        Click("Run Report");
        EXPECT_FALSE(IsLoaded());
    }
    EXPECT_TRUE(IsVisible(kReportOutputForm)) << "the calls are still there";
}

TEST_F(PresetReportsWindowTest, TheDestinationEnablesItsListAndAMissingPrinterKeepsTheWindow) {
    world.InsertCall();
    const QWidget& window = Open();
    const auto lists = window.findChildren<QComboBox*>();
    QComboBox* printerList = *std::ranges::find(lists, "To Printer", &QWidget::accessibleName);
    QComboBox* applicationList =
        *std::ranges::find(lists, "In External Application", &QWidget::accessibleName);
    EXPECT_FALSE(printerList->isEnabled() || applicationList->isEnabled());
    EXPECT_EQ(printerList->currentIndex(), -1);
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
    QTimer heart;
    heart.callOnTimeout([&] {
        ++beats;
        EXPECT_EQ(forms.Find(kPresetReportsForm), &window);
        EXPECT_TRUE(window.findChild<toolkit::ProgressPanel*>()->isVisible());
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
    EXPECT_TRUE(!IsLoaded() && failures.empty());
}

class CustomReportsWindowTest : public ReportRunFormTest {
protected:
    CustomReportsWindowTest() {
        world.application.session.ReportsLocation = world.application.folder.string();
        UnderTest<CustomReportsWindow>(kCustomReportsForm, world.application, printers_);
        forms.Show(kMainForm);
    }

    QListWidgetItem& Field(int place) {
        return *Labelled<QListWidget>("Select data you wish to show").item(place);
    }

    // The button comes to life with its box, and the day brings the box back.
    void PickAsEndDate(const QDate& day) {
        auto& box = Captioned<QCheckBox>("End Date");
        box.setChecked(true);
        auto& date = *Window().findChild<toolkit::DateInput*>("End Date");
        date.CalendarButton().click();
        box.setChecked(false);
        emit date.findChild<toolkit::CalendarPanel*>()->findChild<QCalendarWidget*>()->clicked(day);
        EXPECT_TRUE(box.isChecked());
    }
};

TEST_F(CustomReportsWindowTest, AReportIsMadeKeptAndRun) {
    world.InsertCall();
    Select("<Create New Report>");
    EXPECT_EQ(Labelled("Report Name:").text(), "New Report 1");
    Field(4).setCheckState(Qt::Checked);
    Type("Extension:", "201");
    Type("Report Name:", "Mine");
    PickAsEndDate(QDate(2099, 1, 2));
    Click("Save Report");
    EXPECT_EQ(LastMessage().text, "Report Saved!");
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 1) << "not listed anew";
    Click("Run Report");
    EXPECT_EQ(LastMessage().text, "No data matches your query!") << "of extension 0201";
    EXPECT_TRUE(!IsLoaded() && IsVisible(kMainForm));

    world.InsertCall({{"Extension", "0201"}});
    Select("Mine");
    EXPECT_FALSE(Labelled("Extension:").isEnabled());
    EXPECT_EQ(Field(4).checkState(), Qt::Checked);
    EXPECT_EQ(Field(5).checkState(), Qt::Unchecked);
    Click("Run Report");
    EXPECT_TRUE(IsVisible(kReportOutputForm));
}

TEST_F(CustomReportsWindowTest, RightsHideWhatIsNotGranted) {
    for (const AccessRight right : {AccessRight::CallCostMappings, AccessRight::DeleteCustomReport,
                                    AccessRight::SaveCustomReport, AccessRight::CustomReportDestination}) {
        world.application.session.CurrentAccess.Refuse(right);
    }
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 0);
    EXPECT_FALSE(Button("Save Report").isVisible() || Button("Delete Report").isVisible());
    EXPECT_FALSE(Labelled<QListWidget>("Select data you wish to show").isEnabled());
    EXPECT_FALSE(Captioned<QRadioButton>("On Screen").isVisible());
}

class CoverBackingWindowTest : public test::FormTest {
protected:
    CoverBackingWindowTest() {
        AddEmptyForms({kMainForm, kOptionsForm});
        UnderTest<CoverBackingWindow>(kCoverPagesForm, world.application);
    }
};

TEST_F(CoverBackingWindowTest, ShowsWhatIsStoredAndOffersATitleOnlyWhereOneIsWanted) {
    world.settings.Write("CTitleText", "Quarter");
    world.settings.Write("BNote", "1");
    EXPECT_TRUE(Captioned<QRadioButton>("Default Title").isChecked());
    EXPECT_TRUE(Captioned<QCheckBox>("Show Notes Section").isChecked());
    EXPECT_EQ(Labelled("Title:").text(), "Quarter");
    EXPECT_FALSE(Labelled("Title:").isEnabled());
    Captioned<QRadioButton>("Custom Title").click();
    EXPECT_TRUE(Labelled("Title:").isEnabled());
    Captioned<QRadioButton>("Default Title").click();
    EXPECT_FALSE(Labelled("Title:").isEnabled());
    forms.Unload(kCoverPagesForm);
    world.settings.Write("CTitle", "1");
    EXPECT_TRUE(Labelled("Title:").isEnabled());
}

TEST_F(CoverBackingWindowTest, SavesEachBoxUnderItsKeyAndLogsIt) {
    const std::vector<std::pair<const char*, const char*>> keys = {
        {"Enable Cover", "CCover"},     {"Enable Backing", "BBacking"},  {"Show Artwork", "CArt"},
        {"Show Company Logo", "CLogo"}, {"Show Date Printed", "CDate"},  {"Show Time Printed", "CTime"},
        {"Show Generated By", "BGen"},  {"Show Notes Section", "BNote"},
    };
    for (const auto& [caption, key] : keys) {
        Captioned<QCheckBox>(caption).click();
        Click("Save and Exit");
        for (const auto& [other, otherKey] : keys) {
            EXPECT_EQ(world.settings.Read(otherKey), std::string(key) == otherKey ? "1" : "0") << otherKey;
        }
        world.settings.Write(key, "0");
    }
    EXPECT_EQ(world.settings.Read("CTitle"), "0");
    EXPECT_EQ(world.settings.Read("CTitleText"), " ");

    EXPECT_EQ(Logged(), std::vector<std::string>(keys.size(), "Saved Report Covers"));
}

TEST_F(CoverBackingWindowTest, GoesBackToTheWindowThatOpenedIt) {
    Captioned<QCheckBox>("Enable Cover").click();
    QTest::keyClick(&Captioned<QCheckBox>("Enable Cover"), Qt::Key_Escape);
    EXPECT_TRUE(!IsLoaded() && IsVisible(kMainForm));
    EXPECT_NE(world.settings.Read("CCover"), "1");
    forms.Hide(kMainForm);

    forms.Load(kOptionsForm);
    Window().close();
    EXPECT_TRUE(IsVisible(kOptionsForm) && !IsVisible(kMainForm));
}

}  // namespace
}  // namespace tallix
