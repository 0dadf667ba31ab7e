#include "reporting/preset_reports_window.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QTest>
#include <QToolButton>
#include <filesystem>

#include "foundation/form_names.h"
#include "reporting/report_run.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/qt_events.h"

namespace tallix {
namespace {

using test::TestApplication;
using ::testing::StartsWith;

class TwoPrinters : public ui::Printers {
public:
    std::vector<std::string> Names() const override { return {"Front Desk", "Back Office"}; }
};

class PresetReportsWindowTest : public test::WindowTest {
protected:
    PresetReportsWindowTest() {
        application.session.DBType = world.application.session.DBType;
        application.session.DBIP = world.application.session.DBIP;
        application.session.CurrentAccess = std::string(42, '1');
        for (const char* name : {kMainForm, kReportOutputForm}) {
            forms.Register(name, [this, name] { return std::make_unique<ui::Form>(forms, name); });
        }
        forms.Register(kPresetReportsForm, [this] {
            return std::make_unique<PresetReportsWindow>(forms, application, flags, printers);
        });
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

    template <typename Widget>
    Widget& Captioned(const QString& caption) {
        return test::Captioned<Widget>(*forms.Find(kPresetReportsForm), caption);
    }

    QWidget& Labelled(const QString& caption) { return *Captioned<QLabel>(caption).buddy(); }

    void Select(const QString& report) {
        auto& list = dynamic_cast<QListView&>(Labelled("Available Reports"));
        const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, report);
        list.setCurrentIndex(found.value(0));
    }

    void Type(const QString& label, const QString& text) {
        dynamic_cast<QLineEdit&>(Labelled(label)).setText(text);
    }

    bool IsVisible(const char* form) const { return forms.Find(form) && forms.Find(form)->isVisible(); }

    TestApplication world;
    ui::QtEvents events;
    Application application{world.application.folder,
                            world.application.tempFolder,
                            world.application.version,
                            world.settings,
                            world.prompts,
                            world.clock,
                            events};
    ReportFlags flags;
    TwoPrinters printers;
};

TEST_F(PresetReportsWindowTest, OpensWithItsListsAndWithNothingToRun) {
    world.Execute("INSERT INTO tblsite(ID) VALUES ('7')");
    Open();
    EXPECT_EQ(dynamic_cast<QListView&>(Labelled("Available Reports")).model()->rowCount(), 3);
    EXPECT_FALSE(Captioned<QPushButton>("Run Report").isEnabled());
    const auto& sites = dynamic_cast<QComboBox&>(Labelled("Site:"));
    EXPECT_EQ(sites.currentText(), "ALL");
    EXPECT_EQ(sites.itemText(1), "007");
    const auto& times = dynamic_cast<QComboBox&>(Labelled("Time:"));
    EXPECT_EQ(times.count(), 1440);
    EXPECT_EQ(times.itemText(9 * 60 + 5), "09:05");
    EXPECT_EQ(times.currentText(), "");
    EXPECT_TRUE(Captioned<QRadioButton>("To Printer").isVisible());
    EXPECT_FALSE(Captioned<QCheckBox>("GRAPH").isVisible());

    forms.Unload(kPresetReportsForm);
    application.session.CurrentAccess[36] = '0';
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
            EXPECT_EQ(Labelled(other).isEnabled(), key == otherKey) << key << ", " << other;
            EXPECT_EQ(Captioned<QLabel>(other).isEnabled(), key == otherKey) << key << ", " << other;
        }
        EXPECT_EQ(Captioned<QRadioButton>("Less Than").isEnabled(), key == "Duration");
        EXPECT_EQ(Captioned<QPushButton>("...").isEnabled(), key == "Date");
    }
    EXPECT_TRUE(Captioned<QPushButton>("Run Report").isEnabled());
    world.WriteReport("All Calls", {}, {{"Group", "true"}});
    auto& reports = dynamic_cast<QListView&>(Labelled("Available Reports"));
    QTest::mouseClick(reports.viewport(), Qt::LeftButton, {},
                      reports.visualRect(reports.currentIndex()).center());
    EXPECT_TRUE(Labelled("Group:").isEnabled()) << "read again at a second click";
    std::filesystem::remove(PresetReportFile(application.folder, "Of Extension"));
    Select("Of Extension");
    for (const auto& [key, caption] : inputs) EXPECT_FALSE(Labelled(caption).isEnabled()) << key;
    EXPECT_EQ(dynamic_cast<QLineEdit&>(Labelled("Extension:")).text(), "x");
}

TEST_F(PresetReportsWindowTest, ADateIsTypedOrPicked) {
    world.WriteReport("All Calls", {}, {{"Date", "True"}});
    QWidget& window = Open();
    Select("All Calls");
    auto& box = Captioned<QCheckBox>("Start Date");
    auto& field = dynamic_cast<QLineEdit&>(*box.nextInFocusChain());
    QTest::keyClicks(&field, "1");
    EXPECT_TRUE(box.isChecked());
    field.clear();
    EXPECT_FALSE(box.isChecked());

    Captioned<QPushButton>("...").click();
    auto& panel = *window.findChild<ui::CalendarPanel*>();
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
    Captioned<QPushButton>("...").click();
    emit calendar.clicked(QDate(2021, 2, 5));
    EXPECT_TRUE(box.isChecked()) << "the day that the field held before";
}

TEST_F(PresetReportsWindowTest, EveryRunEndsAtTheMainMenuOrAtTheReport) {
    struct Case {
        const char* report;
        const char* extension;
        const char* message;  ///< the opening of what the person is told; null for a report
        bool leavesPage;
        bool vanishes = false;  ///< the report's file, between its choice and the run
    };
    const Case cases[] = {{"All Calls", "x", nullptr, true},
                          {"Of Extension", "", "You have not entered a value for extension", false},
                          {"Of Extension", "20x", "You have not entered a numeric value", false},
                          {"Of Nobody", "", "The report does not contain any data.\nIf you", true},
                          {"Of Extension", "2\"0'1", "You have not entered a numeric", false},
                          {"All Calls", "2\"0'1", nullptr, true, true}};
    world.InsertCall();
    for (const Case& c : cases) {
        world.prompts.messages.clear();
        Open();
        Select(c.report);
        Type("Extension:", c.extension);
        if (c.vanishes) std::filesystem::remove(PresetReportFile(application.folder, c.report));
        Captioned<QPushButton>("Run Report").click();
        EXPECT_EQ(forms.Find(kPresetReportsForm), nullptr) << c.extension;
        EXPECT_EQ(IsVisible(kReportOutputForm), c.message == nullptr) << c.extension;
        EXPECT_EQ(IsVisible(kMainForm), c.message != nullptr) << c.extension;
        EXPECT_EQ(std::filesystem::exists(PageFile(application)), c.leavesPage) << c.extension;
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
        Captioned<QPushButton>("Run Report").click();
        EXPECT_EQ(forms.Find(kPresetReportsForm), nullptr);
    }
    EXPECT_TRUE(IsVisible(kReportOutputForm)) << "the calls are still there";
}

TEST_F(PresetReportsWindowTest, TheDestinationEnablesItsListAndAPrinterThatIsGoneKeepsTheWindow) {
    world.InsertCall();
    const QWidget& window = Open();
    QComboBox* printerList = nullptr;
    QComboBox* applicationList = nullptr;
    for (QComboBox* list : window.findChildren<QComboBox*>()) {
        if (list->accessibleName() == "To Printer") printerList = list;
        if (list->accessibleName() == "In External Application") applicationList = list;
    }
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
    Captioned<QPushButton>("Run Report").click();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.findChild<ui::ProgressPanel*>()->isVisible());
    Captioned<QPushButton>("Cancel").click();
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
        EXPECT_TRUE(window.findChild<ui::ProgressPanel*>()->isVisible());
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            sawRecords = sawRecords || label->text().endsWith(" Of 524288");
        }
        Captioned<QPushButton>("Run Report").click();
        Captioned<QPushButton>("Cancel").click();
        window.close();
        EXPECT_TRUE(window.isVisible());
    });
    Later([&] {
        heart.start(1);
        Captioned<QPushButton>("Run Report").click();
        heart.stop();
        EXPECT_TRUE(IsVisible(kReportOutputForm));
        QCoreApplication::exit(0);
    });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_GE(beats, 2);
    EXPECT_TRUE(sawRecords);
    EXPECT_EQ(forms.Find(kPresetReportsForm), nullptr);
    EXPECT_TRUE(failures.empty());
}

}  // namespace
}  // namespace tallix
