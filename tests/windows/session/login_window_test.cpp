#include "windows/session/login_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "support/form_test.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
    std::string Said() {
        const auto* message = Window().findChild<QLabel*>("Message");
        return message->isVisible() ? message->text().toStdString() : "";
    }

    static void Enter(QWidget* field) { QTest::keyClick(field, Qt::Key_Return); }
    void LogIn(const QString& userName, const QString& password) {
        UserName()->setText(userName);
        Password()->setText(password);
        Enter(Password());
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
    Enter(UserName());
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
    QTest::keyClicks(Password(), "S");
    ASSERT_FALSE(CanLogIn());
    Enter(Password());
    EXPECT_THAT(forms.Loaded(), ElementsAre(kMainForm));
    EXPECT_TRUE(IsVisible(kMainForm));
}

TEST_F(LoginWindowTest, ARefusalAsksAgainAndDoesNotTellWhyAndGuardedWordsAreNotCounted) {
    Window().activateWindow();
    for (int i = 0; i < kLoginAttempts; ++i) LogIn("ann", "myUpdate1");
    EXPECT_EQ(Said(), "No database or database server not found!");
    EXPECT_EQ(Password()->text(), "");
    for (const auto& [name, password] : {std::pair("ann", "wrong"), {"nobody", "S"}}) {
        LogIn(name, password);
        EXPECT_EQ(Said(), "Your access details were incorrect!");
        EXPECT_EQ(Password()->text(), "");
        EXPECT_EQ(UserName()->text(), name);
        EXPECT_EQ(Window().focusWidget(), Password());
        EXPECT_TRUE(CanLogIn() && Button("Exit Application").isEnabled() && UserName()->isEnabled());
        EXPECT_FALSE(Progress()->isVisible());
    }
    EXPECT_THAT(world.prompts.messages, IsEmpty());
    LogIn("ann", "s");
    ASSERT_EQ(world.prompts.messages.size(), 1U);
    EXPECT_EQ(world.prompts.messages[0].title, "Incorrect Login");
    EXPECT_EQ(world.prompts.messages[0].icon, MessageIcon::Critical);
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

TEST_F(LoginWindowTest, ShowsThatItIsBusyAndCannotBeClosedMeanwhile) {
    int glances = 0;
    world.events.onServe = [&] {
        if (++glances > 1) return;
        EXPECT_TRUE(Progress()->isVisible());
        EXPECT_FALSE(CanLogIn() || UserName()->isEnabled() || Password()->isEnabled());
        EXPECT_FALSE(Button("Exit Application").isEnabled());
        EXPECT_FALSE(Window().close());
    };
    LogIn("ann", "wrong");
    EXPECT_GT(glances, 1);
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
}

TEST_F(LoginWindowTest, ExitLeavesNothingLoaded) {
    forms.Load(kMainForm);
    Click("Exit Application");
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

}  // namespace
}  // namespace tallix
