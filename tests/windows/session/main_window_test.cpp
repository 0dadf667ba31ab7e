#include "windows/session/main_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "support/form_test.h"
#include "windows/session/about_window.h"
#include "windows/session/statistics_window.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MainWindowTest : public test::FormTest {
protected:
    MainWindowTest() {
        world.settings.Write("NoUpdates", "1");
        UnderTest<AboutWindow>(kAboutForm, world.application);
        UnderTest<StatisticsWindow>(kStatisticsForm, world.application);
        UnderTest<MainWindow>(kMainForm, world.application);
        AddEmptyForms({kPresetReportsForm, kCoverPagesForm, kLoginForm});
    }

    std::vector<std::string> ShownEntries() {
        std::vector<std::string> labels;
        for (const auto* entry : Window().findChildren<toolkit::EntryButton*>()) {
            if (entry->isVisible()) labels.push_back(entry->text().toStdString());
        }
        return labels;
    }
};

TEST_F(MainWindowTest, ShowsWhoIsConnectedAndTheEntriesThatTheRightsAllow) {
    world.application.session.CurrentAccess = AccessRights::FromText("101001" + std::string(36, '1'));
    EXPECT_EQ(Window().findChild<QLabel*>("Connected")->text().toStdString(),
              "Connected To: " + world.application.session.database.server + " As User: Ann");
    EXPECT_THAT(ShownEntries(), ElementsAre("Preset Reports", "Archive", "Options"));
    forms.Unload(kMainForm);

    world.application.session.CurrentAccess = {};
    EXPECT_THAT(ShownEntries(), IsEmpty());
    EXPECT_TRUE(Button("Logout").isVisible() && Button("About Tallix Reports").isVisible());
}

TEST_F(MainWindowTest, AnEntryOpensItsWindowAndHidesTheMenuByMouseAndByKey) {
    QWidget& menu = Window();
    Click("Export");
    EXPECT_TRUE(IsVisible(kCoverPagesForm));
    EXPECT_FALSE(menu.isVisible());
    menu.show();
    QTest::keyClick(&Button("Preset Reports"), Qt::Key_Return);
    EXPECT_TRUE(IsVisible(kPresetReportsForm));
    EXPECT_FALSE(menu.isVisible());
    EXPECT_EQ(forms.Find(kMainForm), &menu);
    menu.show();
    Click("Archive");
    EXPECT_TRUE(menu.isVisible()) << "that form is not registered";
}

TEST_F(MainWindowTest, EntriesHaveTheirPicturesAndOnlyExportKeepsItsLookUnderTheMouse) {
    for (auto* entry : Window().findChildren<toolkit::EntryButton*>()) {
        EXPECT_FALSE(entry->IsHighlighted());
        entry->setAttribute(Qt::WA_UnderMouse, true);
        EXPECT_EQ(entry->IsHighlighted(), entry->text() != "Export") << entry->text().toStdString();
    }
    for (const MenuEntry& entry : kMenuEntries) {
        const QString name = ":/icons/" + QString::fromUtf8(entry.picture.data());
        EXPECT_TRUE(QSvgRenderer(name + ".svg").isValid()) << entry.picture;
        EXPECT_TRUE(QSvgRenderer(name + "_hover.svg").isValid()) << entry.picture;
    }
}

TEST_F(MainWindowTest, AboutShowsTheVersionAndReturnsByTheSessionsMenu) {
    for (const bool statistics : {false, true}) {
        const char* form = statistics ? kStatisticsForm : kMainForm;
        world.application.session.UseStatsMain = statistics;
        UnderTest(form);
        Click("About Tallix Reports");
        QWidget* about = forms.Find(kAboutForm);
        EXPECT_EQ(about->findChild<QLabel*>("Version")->text(), "Version: 1.4.6");
        EXPECT_FALSE(IsVisible(form));
        about->close();
        EXPECT_TRUE(IsVisible(form));
        EXPECT_EQ(forms.Find(kAboutForm), nullptr);
    }
}

TEST_F(MainWindowTest, LogoutNotesItAndLeavesAFreshLoginAlone) {
    forms.Load(kPresetReportsForm);
    forms.Load(kAboutForm);
    const QWidget* oldLogin = forms.Load(kLoginForm);
    Click("Logout");
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    EXPECT_NE(forms.Find(kLoginForm), oldLogin);
    EXPECT_TRUE(IsVisible(kLoginForm));
    EXPECT_THAT(Logged(), ElementsAre("Logged Out"));
}

TEST_F(MainWindowTest, ExitWorksWithTheDatabaseGoneAndTidiesUp) {
    const std::filesystem::path leftover = world.application.folder / "Temp2.dat";
    std::ofstream(leftover) << "x";
    world.application.session.database.server = "sqlite:/nowhere/at/all.db";
    Click("Exit Reports");
    EXPECT_FALSE(std::filesystem::exists(leftover));
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

TEST_F(MainWindowTest, TheUpdateNoticeComesOnceAndIsNoLinkWithoutANewerVersion) {
    const auto* notice = Window().findChild<QPushButton*>("UpdateNotice");
    EXPECT_EQ(notice->text(), "");
    EXPECT_EQ(notice->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !notice->text().isEmpty(); }));
    EXPECT_EQ(notice->text(), "Updates have been disabled by your administrator");
    EXPECT_EQ(notice->palette().buttonText().color(), QColor(0, 0, 230));
}

TEST_F(MainWindowTest, TheStatisticsMenuCountsTheCallsAndLeavesWithoutAWord) {
    for (int call = 0; call < 3; ++call) world.InsertCall();
    UnderTest(kStatisticsForm);
    Click("Refresh Stats");
    EXPECT_EQ(Window().findChild<QLabel*>("TotalCalls")->text(), "3");
    EXPECT_TRUE(Window().findChild<QWidget*>("PleaseWait")->isVisible());

    std::vector<std::string> stops;
    const QWidget* stop = &Button("Options");
    while (stops.size() < 6) {
        stop = stop->nextInFocusChain();
        if (!(stop->focusPolicy() & Qt::TabFocus)) continue;
        const auto* button = qobject_cast<const QPushButton*>(stop);
        stops.push_back((button ? button->text() : stop->accessibleName()).toStdString());
    }
    EXPECT_THAT(stops, ElementsAre("Calls by Extension", "Calls", "Refresh Stats", "About Tallix Reports",
                                   "Logout", "Exit Reports"));
    Click("Exit Reports");
    EXPECT_THAT(forms.Loaded(), IsEmpty());
    EXPECT_THAT(Logged(), IsEmpty());
}

}  // namespace
}  // namespace tallix
