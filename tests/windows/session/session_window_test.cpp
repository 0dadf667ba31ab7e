// The windows from the start of the program to its end.
#include <QRegularExpression>

#include "support/form_test.h"
#include "text/encryption_tools.h"
#include "windows/session/about_window.h"
#include "windows/session/access_logging_window.h"
#include "windows/session/login_window.h"
#include "windows/session/main_window.h"
#include "windows/session/settings_required_window.h"
#include "windows/session/splash_window.h"
#include "windows/session/statistics_window.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Row = std::vector<std::string>;

class SplashWindowTest : public test::FormTest {};

TEST_F(SplashWindowTest, ShowsItsStepsToAPersonAndMakesWayForTheLogin) {
    const auto visibleTicks = [this] {
        const auto ticks = forms.Find(kSplashForm)->findChildren<QWidget*>(QRegularExpression("^Tick"));
        return std::ranges::count_if(ticks, &QWidget::isVisible);
    };
    std::ptrdiff_t ticksAtTheLogin = 0;
    forms.Register(kLoginForm, [&] {
        ticksAtTheLogin = visibleTicks();
        return std::make_unique<toolkit::Form>(forms, "Login");
    });
    world.settings.Write("DBIP", "10.0.0.5");
    forms.Register(kSplashForm, [&] {
        return std::make_unique<SplashWindow>(forms, world.application, "", UnattendedWork(),
                                              std::chrono::milliseconds(5));
    });
    toolkit::Form* splash = forms.Load(kSplashForm);
    QObject::connect(splash, &QObject::destroyed, [&] {
        EXPECT_TRUE(IsVisible(kLoginForm));
        forms.Unload(kLoginForm);
    });
    EXPECT_EQ(splash->findChild<QLabel*>("Version")->text(), "Version: 1.4.6");
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(visibleTicks(), 0);
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(ticksAtTheLogin, kStartupSteps);
}

class SettingsRequiredWindowTest : public test::FormTest {
protected:
    SettingsRequiredWindowTest() {
        world.application.session.database.server.clear();
        UnderTest<SettingsRequiredWindow>(kSettingsRequiredForm, world.application);
        AddEmptyForms({kLoginForm});
    }

    QLineEdit& Field() { return *Window().findChild<QLineEdit*>(); }
    void Enter(const QString& address) {
        Field().setText(address);
        Click("TEST");
    }
    void ExpectResult(const QString& text, QRgb colour, bool canSave) {
        const auto* result = Window().findChild<QLabel*>("Result");
        EXPECT_EQ(result->text(), text);
        EXPECT_EQ(result->palette().color(QPalette::WindowText), QColor(colour));
        EXPECT_EQ(Button("Save Changes").isEnabled(), canSave);
    }
};

TEST_F(SettingsRequiredWindowTest, ATestDecidesWhetherTheAddressIsSavedForTheNextStart) {
    EXPECT_FALSE(Button("Save Changes").isEnabled());
    Enter("10.0.0.300");
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
    Enter("10.0.0.5");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClicks(&Field(), "x");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClick(&Field(), Qt::Key_Return);
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
    std::filesystem::remove_all(world.application.folder / "Company Docs");
    Enter("10.0.0.5");
    Click("Save Changes");
    EXPECT_EQ(world.settings.Read("DBIP"), "10.0.0.5");
    EXPECT_EQ(world.application.session.database.server, "");
    EXPECT_EQ(world.prompts.messages.size(), 1U) << "of the missing folder";
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    EXPECT_TRUE(IsVisible(kLoginForm));
}

TEST_F(SettingsRequiredWindowTest, ExitEndsTheProcessWithNothingSaved) {
    Enter("10.0.0.5");
    Later([&] { Click("Exit Application"); });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(world.settings.Read("DBIP"), "");
}

class LoginWindowTest : public test::FormTest {
protected:
    LoginWindowTest() {
        world.Insert("tblusers", {{"Username", EncipherForStorage("Ann")},
                                  {"Password", EncipherForStorage("S")},
                                  {"AccessType", EncipherForStorage(std::string(42, '1'))},
                                  {"GroupID", "0"}});
        AddEmptyForms({kMainForm});
        UnderTest<LoginWindow>(kLoginForm, world.application);
        forms.Show(kLoginForm);
    }

    QLineEdit* UserName() { return &Tipped("Enter a username"); }
    QLineEdit* Password() { return &Tipped("Enter a password"); }
    bool CanLogIn() { return Button("Login To Reports").isEnabled(); }
    QWidget* Progress() { return Window().findChild<QWidget*>("Progress"); }
    QString Said() {
        const auto* message = Window().findChild<QLabel*>("Message");
        return message->isVisible() ? message->text() : "";
    }
    void LogIn(const QString& userName, const QString& password) {
        UserName()->setText(userName);
        Password()->setText(password);
        QTest::keyClick(Password(), Qt::Key_Return);
    }
};

TEST_F(LoginWindowTest, TheButtonLagsOneKeyAndGoesByTheFieldTypedInLast) {
    EXPECT_FALSE(CanLogIn());
    QTest::keyClicks(UserName(), "a");
    EXPECT_FALSE(CanLogIn());
    QTest::keyClicks(UserName(), "n");
    EXPECT_TRUE(CanLogIn());
    QTest::keyClicks(Password(), "S");
    EXPECT_FALSE(CanLogIn()) << "the password was empty before the key";
    QTest::keyClick(UserName(), Qt::Key_Tab);
    EXPECT_FALSE(CanLogIn());
    UserName()->clear();
    QTest::keyClick(Password(), Qt::Key_Backspace);
    EXPECT_TRUE(CanLogIn());
}

TEST_F(LoginWindowTest, EnterInThePasswordLogsInThoughTheButtonIsDisabled) {
    QTest::keyClicks(UserName(), "ann");
    QTest::keyClick(UserName(), Qt::Key_Return);
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    QTest::keyClicks(Password(), "S");
    ASSERT_FALSE(CanLogIn());
    QTest::keyClick(Password(), Qt::Key_Return);
    EXPECT_THAT(forms.Loaded(), ElementsAre(kMainForm));
    EXPECT_TRUE(IsVisible(kMainForm));
}

TEST_F(LoginWindowTest, ARefusalAsksAgainWithoutAReasonAndGuardedWordsAreNotCounted) {
    Window().activateWindow();
    for (int i = 0; i < kLoginAttempts; ++i) LogIn("ann", "myUpdate1");
    EXPECT_EQ(Said(), "No database or database server not found!");
    EXPECT_EQ(Password()->text(), "");
    for (const auto& [name, password] : {std::pair("ann", "wrong"), {"nobody", "S"}}) {
        LogIn(name, password);
        EXPECT_EQ(Said(), "Your access details were incorrect!");
        EXPECT_EQ(UserName()->text() + Password()->text(), name);
        EXPECT_EQ(Window().focusWidget(), Password());
        EXPECT_TRUE(CanLogIn() && Button("Exit Application").isEnabled() && UserName()->isEnabled());
        EXPECT_FALSE(Progress()->isVisible());
    }
    EXPECT_THAT(world.prompts.messages, IsEmpty());
    LogIn("ann", "s");
    EXPECT_EQ(LastMessage().title, "Incorrect Login");
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

TEST_F(LoginWindowTest, ShowsThatItIsBusyAndCannotBeClosedMeanwhile) {
    int glances = 0;
    world.events.onServe = [&] {
        if (++glances > 1) return;
        EXPECT_TRUE(Progress()->isVisible());
        EXPECT_FALSE(CanLogIn() || UserName()->isEnabled() || Password()->isEnabled());
        EXPECT_FALSE(Button("Exit Application").isEnabled() || Window().close());
    };
    LogIn("ann", "wrong");
    EXPECT_GT(glances, 1);
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    world.events.onServe = {};
    forms.Load(kMainForm);
    Click("Exit Application");
    EXPECT_THAT(forms.Loaded(), IsEmpty()) << "the main menu goes, too";
}

class MainWindowTest : public test::FormTest {
protected:
    MainWindowTest() {
        world.settings.Write("NoUpdates", "1");
        UnderTest<AboutWindow>(kAboutForm, world.application);
        UnderTest<StatisticsWindow>(kStatisticsForm, world.application);
        UnderTest<MainWindow>(kMainForm, world.application);
        AddEmptyForms({kPresetReportsForm, kCoverPagesForm, kLoginForm});
    }
};

TEST_F(MainWindowTest, ShowsWhoIsConnectedAndTheEntriesThatTheRightsAllow) {
    world.application.session.CurrentAccess = AccessRights::FromText("101001" + std::string(36, '1'));
    EXPECT_EQ(Window().findChild<QLabel*>("Connected")->text().toStdString(),
              "Connected To: " + world.application.session.database.server + " As User: Ann");
    Row entries;
    for (const auto* entry : Window().findChildren<toolkit::EntryButton*>()) {
        if (entry->isVisible()) entries.push_back(entry->text().toStdString());
    }
    EXPECT_THAT(entries, ElementsAre("Preset Reports", "Archive", "Options"));
}

TEST_F(MainWindowTest, AnEntryOpensItsWindowAndHidesTheMenuByMouseAndByKey) {
    QWidget& menu = Window();
    Click("Export");
    EXPECT_TRUE(IsVisible(kCoverPagesForm));
    menu.show();
    QTest::keyClick(&Button("Preset Reports"), Qt::Key_Return);
    EXPECT_TRUE(IsVisible(kPresetReportsForm));
    EXPECT_FALSE(menu.isVisible());
    menu.show();
    Click("Archive");
    EXPECT_TRUE(menu.isVisible()) << "that form is not registered";
}

TEST_F(MainWindowTest, EntriesHaveTheirPicturesAndOnlyExportKeepsItsLookUnderTheMouse) {
    for (auto* entry : Window().findChildren<toolkit::EntryButton*>()) {
        EXPECT_FALSE(entry->IsHighlighted());
        entry->setAttribute(Qt::WA_UnderMouse);
        EXPECT_EQ(entry->IsHighlighted(), entry->text() != "Export") << entry->text().toStdString();
    }
    for (const MenuEntry& entry : kMenuEntries) {
        const QString name = ":/icons/" + QString::fromUtf8(entry.picture.data());
        EXPECT_TRUE(QSvgRenderer(name + ".svg").isValid()) << entry.picture;
        EXPECT_TRUE(QSvgRenderer(name + "_hover.svg").isValid()) << entry.picture;
    }
}

TEST_F(MainWindowTest, AboutReturnsToTheMenuOfTheSession) {
    for (const bool statistics : {false, true}) {
        const char* form = statistics ? kStatisticsForm : kMainForm;
        world.application.session.UseStatsMain = statistics;
        UnderTest(form);
        Click("About Tallix Reports");
        EXPECT_TRUE(IsVisible(kAboutForm) && !IsVisible(form));
        forms.Find(kAboutForm)->close();
        EXPECT_TRUE(IsVisible(form) && forms.Find(kAboutForm) == nullptr);
    }
}

TEST_F(MainWindowTest, LogoutNotesItAndLeavesAFreshLoginAlone) {
    forms.Load(kPresetReportsForm);
    forms.Load(kAboutForm);
    const QWidget* oldLogin = forms.Load(kLoginForm);
    Click("Logout");
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    EXPECT_TRUE(IsVisible(kLoginForm) && forms.Find(kLoginForm) != oldLogin);
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

    Row stops;
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

class AccessLoggingWindowTest : public test::FormTest {
protected:
    AccessLoggingWindowTest() {
        UnderTest<AccessLoggingWindow>(kAccessLoggingForm, world.application);
        AddEmptyForms({kOptionsForm});
    }
};

TEST_F(AccessLoggingWindowTest, ExportsTheLogAndKeepsClearedRowsUntilItIsOpenedAgain) {
    const Row shown = {"08/03/2021", "09:00", "Bob", "Report Run - Calls"};
    world.Insert("tbllogging",
                 {{"Date", shown[0]}, {"Time", shown[1]}, {"User", shown[2]}, {"Data", shown[3]}});
    Click("Export Log");
    EXPECT_THAT(test::ReadLines(world.application.folder / "AccessLog.txt"),
                ElementsAre("08/03/2021,09:00,Bob,Report Run - Calls"));
    Click("Clear Log");
    EXPECT_THAT(Rows(), ElementsAre(shown));
    EXPECT_THAT(world.prompts.messages, IsEmpty()) << "clearing is not asked about";
    Click("Exit Logging Screen");
    EXPECT_THAT(forms.Loaded(), ElementsAre(kOptionsForm));
    EXPECT_TRUE(IsVisible(kOptionsForm));
    EXPECT_THAT(Rows(), ElementsAre(Row{"09/03/2021", "14:05", "Ann", "Access Log Cleared!"}));
}

}  // namespace
}  // namespace tallix
