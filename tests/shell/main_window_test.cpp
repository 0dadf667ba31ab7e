#include "shell/main_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "foundation/access_log.h"
#include "foundation/form_names.h"
#include "shell/about_window.h"
#include "shell/statistics_window.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/forms.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindowTest : public test::WindowTest {
protected:
    MainWindowTest() {
        test_.settings.Write("NoUpdates", "1");
        test_.application.session.CurrentAccess = std::string(42, '1');
        forms.Register(kMainForm, [this] { return std::make_unique<MainWindow>(forms, test_.application); });
        forms.Register(kStatisticsForm,
                       [this] { return std::make_unique<StatisticsWindow>(forms, test_.application); });
        forms.Register(kAboutForm,
                       [this] { return std::make_unique<AboutWindow>(forms, test_.application); });
        for (const char* name : {kPresetReportsForm, kCoverPagesForm, kLoginForm}) {
            forms.Register(name, [this, name] { return std::make_unique<ui::Form>(forms, name); });
        }
    }

    QWidget* Menu(const char* form = kMainForm) {
        forms.Show(form);
        return forms.Find(form);
    }
    static QPushButton& Button(const QWidget* window, const QString& caption) {
        return test::Captioned<QPushButton>(*window, caption);
    }
    static std::vector<std::string> ShownEntries(const QWidget* window) {
        std::vector<std::string> labels;
        for (const auto* entry : window->findChildren<ui::EntryButton*>()) {
            if (entry->isVisible()) labels.push_back(entry->text().toStdString());
        }
        return labels;
    }
    /// The mouse comes to a widget of the window.
    static void Hover(QWidget* widget) { widget->setAttribute(Qt::WA_UnderMouse, true); }
    std::vector<std::string> Log() {
        std::vector<std::string> events;
        for (const AccessLogRow& row : ReadAccessLog(test_.application.session)) events.push_back(row[3]);
        return events;
    }

    test::TestApplication test_;
};

TEST_F(MainWindowTest, ShowsWhoIsConnectedAndTheEntriesThatTheRightsAllow) {
    test_.application.session.CurrentAccess = "101001" + std::string(36, '1');
    const QWidget* menu = Menu();
    EXPECT_EQ(menu->findChild<QLabel*>("Connected")->text().toStdString(),
              "Connected To: " + test_.application.session.DBIP + " As User: Ann");
    EXPECT_THAT(ShownEntries(menu), ElementsAre("Preset Reports", "Archive", "Options"));
    forms.Unload(kMainForm);

    test_.application.session.CurrentAccess = "000000";
    EXPECT_THAT(ShownEntries(Menu()), IsEmpty());
    EXPECT_TRUE(Button(Menu(), "Logout").isVisible() && Button(Menu(), "About Tallix Reports").isVisible());
}

TEST_F(MainWindowTest, AnEntryOpensItsWindowAndHidesTheMenuByMouseAndByKey) {
    QWidget* menu = Menu();
    Button(menu, "Export").click();
    EXPECT_TRUE(forms.Find(kCoverPagesForm)->isVisible());
    EXPECT_FALSE(menu->isVisible());
    menu->show();
    QTest::keyClick(&Button(menu, "Preset Reports"), Qt::Key_Return);
    EXPECT_TRUE(forms.Find(kPresetReportsForm)->isVisible());
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(forms.Find(kMainForm), menu);
}

TEST_F(MainWindowTest, AnEntryWhoseWindowIsNotThereLeavesTheMenu) {
    Button(Menu(), "Archive").click();
    EXPECT_TRUE(Menu()->isVisible());
}

TEST_F(MainWindowTest, OnlyExportKeepsItsLookUnderTheMouse) {
    for (auto* entry : Menu()->findChildren<ui::EntryButton*>()) {
        EXPECT_FALSE(entry->IsHighlighted());
        Hover(entry);
        EXPECT_EQ(entry->IsHighlighted(), entry->text() != "Export") << entry->text().toStdString();
    }
}

TEST_F(MainWindowTest, PicturesComeWithTheProgramPlainAndColoured) {
    for (const MenuEntry& entry : kMenuEntries) {
        const QString name = ":/icons/" + QString::fromUtf8(entry.picture.data());
        EXPECT_TRUE(QSvgRenderer(name + ".svg").isValid()) << entry.picture;
        EXPECT_TRUE(QSvgRenderer(name + "_hover.svg").isValid()) << entry.picture;
    }
}

TEST_F(MainWindowTest, AboutShowsTheVersionAndReturnsByTheSessionsMenu) {
    for (const bool statistics : {false, true}) {
        const char* form = statistics ? kStatisticsForm : kMainForm;
        test_.application.session.UseStatsMain = statistics;
        Button(Menu(form), "About Tallix Reports").click();
        QWidget* about = forms.Find(kAboutForm);
        EXPECT_EQ(about->findChild<QLabel*>("Version")->text(), "Version: 1.4.6");
        EXPECT_FALSE(forms.Find(form)->isVisible());
        about->close();
        EXPECT_TRUE(forms.Find(form)->isVisible());
        EXPECT_EQ(forms.Find(kAboutForm), nullptr);
    }
}

TEST_F(MainWindowTest, LogoutNotesItAndLeavesAFreshLoginAlone) {
    forms.Load(kPresetReportsForm);
    forms.Load(kAboutForm);
    const QWidget* oldLogin = forms.Load(kLoginForm);
    Button(Menu(), "Logout").click();
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    EXPECT_NE(forms.Find(kLoginForm), oldLogin);
    EXPECT_TRUE(forms.Find(kLoginForm)->isVisible());
    EXPECT_THAT(Log(), ElementsAre("Logged Out"));
}

TEST_F(MainWindowTest, ExitWorksWithTheDatabaseGoneAndTidiesUp) {
    const std::filesystem::path leftover = test_.application.folder / "Temp2.dat";
    std::ofstream(leftover) << "x";
    test_.application.session.DBIP = "sqlite:/nowhere/at/all.db";
    Button(Menu(), "Exit Reports").click();
    EXPECT_FALSE(std::filesystem::exists(leftover));
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

TEST_F(MainWindowTest, TheUpdateNoticeComesOnceAndIsNoLinkWithoutANewerVersion) {
    const auto* notice = Menu()->findChild<QPushButton*>("UpdateNotice");
    EXPECT_EQ(notice->text(), "");
    EXPECT_EQ(notice->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notice->text().isEmpty(); }));
    EXPECT_EQ(notice->text(), "Updates have been disabled by your administrator");
    EXPECT_EQ(notice->palette().buttonText().color(), QColor(0, 0, 230));
}

TEST_F(MainWindowTest, TheStatisticsMenuCountsTheCallsAndLeavesWithoutAWord) {
    for (int call = 0; call < 3; ++call) test_.InsertCall();
    QWidget* menu = Menu(kStatisticsForm);
    Button(menu, "Refresh Stats").click();
    EXPECT_EQ(menu->findChild<QLabel*>("TotalCalls")->text(), "3");
    EXPECT_TRUE(menu->findChild<QWidget*>("PleaseWait")->isVisible());
    EXPECT_TRUE(test_.application.session.DBConn);

    std::vector<std::string> stops;
    const QWidget* stop = &Button(menu, "Options");
    while (stops.size() < 6) {
        stop = stop->nextInFocusChain();
        if (!(stop->focusPolicy() & Qt::TabFocus)) continue;
        const auto* button = qobject_cast<const QPushButton*>(stop);
        stops.push_back((button ? button->text() : stop->accessibleName()).toStdString());
    }
    EXPECT_THAT(stops, ElementsAre("Calls by Extension", "Calls", "Refresh Stats", "About Tallix Reports",
                                   "Logout", "Exit Reports"));
    Button(menu, "Exit Reports").click();
    EXPECT_THAT(forms.Loaded(), IsEmpty());
    EXPECT_THAT(Log(), IsEmpty());
}

}  // namespace
}  // namespace tallix
