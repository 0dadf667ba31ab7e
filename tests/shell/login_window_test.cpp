#include "shell/login_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "foundation/encryption_tools.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/forms.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Looks at the window whenever the login lets events run.
class Glances : public EventQueue {
public:
    void Serve() override {
        if (look) look();
    }
    std::function<void()> look;
};

class LoginWindowTest : public test::WindowTest {
protected:
    LoginWindowTest() {
        test_.Insert("tblusers", {{"Username", EncipherForStorage("Ann")},
                                  {"Password", EncipherForStorage("S")},
                                  {"AccessType", EncipherForStorage(std::string(42, '1'))},
                                  {"GroupID", "0"}});
        application_.session = std::move(test_.application.session);
        forms.Register(kMainForm, [this] { return std::make_unique<ui::Form>(forms, "Main"); });
        forms.Register(kLoginForm, [this] { return std::make_unique<LoginWindow>(forms, application_); });
        forms.Show(kLoginForm);
    }

    QWidget* Window() { return forms.Find(kLoginForm); }
    QLineEdit* Field(const QString& tip) {
        for (auto* field : Window()->findChildren<QLineEdit*>()) {
            if (field->toolTip() == tip) return field;
        }
        return nullptr;
    }
    QLineEdit* UserName() { return Field("Enter a username"); }
    QLineEdit* Password() { return Field("Enter a password"); }
    QPushButton& Button(const QString& caption) { return test::Captioned<QPushButton>(*Window(), caption); }
    bool CanLogIn() { return Button("Login To Reports").isEnabled(); }
    QWidget* Progress() { return Window()->findChild<QWidget*>("Progress"); }
    std::string Said() {
        const auto* message = Window()->findChild<QLabel*>("Message");
        return message->isVisible() ? message->text().toStdString() : "";
    }

    static void Enter(QWidget* field) { QTest::keyClick(field, Qt::Key_Return); }
    void LogIn(const QString& userName, const QString& password) {
        UserName()->setText(userName);
        Password()->setText(password);
        Enter(Password());
    }

    test::TestApplication test_;
    Glances glances_;
    Application application_{test_.application.folder,
                             test_.application.tempFolder,
                             test_.application.version,
                             test_.settings,
                             test_.prompts,
                             test_.clock,
                             glances_};
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
    EXPECT_TRUE(forms.Find(kMainForm)->isVisible());
    EXPECT_FALSE(application_.session.DBConn);
}

TEST_F(LoginWindowTest, ARefusalAsksAgainAndDoesNotTellWhy) {
    Window()->activateWindow();
    for (const auto& [name, password] : {std::pair("ann", "wrong"), {"nobody", "S"}}) {
        LogIn(name, password);
        EXPECT_EQ(Said(), "Your access details were incorrect!");
        EXPECT_EQ(Password()->text(), "");
        EXPECT_EQ(UserName()->text(), name);
        EXPECT_EQ(Window()->focusWidget(), Password());
        EXPECT_TRUE(CanLogIn() && Button("Exit Application").isEnabled() && UserName()->isEnabled());
        EXPECT_FALSE(Progress()->isVisible());
    }
    EXPECT_THAT(test_.prompts.messages, IsEmpty());
    LogIn("ann", "s");
    ASSERT_EQ(test_.prompts.messages.size(), 1U);
    EXPECT_EQ(test_.prompts.messages[0].title, "Incorrect Login");
    EXPECT_EQ(test_.prompts.messages[0].icon, MessageIcon::Critical);
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

TEST_F(LoginWindowTest, GuardedWordsAreHeldBackAndNotCounted) {
    for (int i = 0; i < kLoginAttempts; ++i) LogIn("ann", "myUpdate1");
    EXPECT_EQ(Said(), "No database or database server not found!");
    EXPECT_EQ(Password()->text(), "");
    EXPECT_THAT(test_.prompts.messages, IsEmpty());
}

TEST_F(LoginWindowTest, ShowsThatItIsBusyAndCannotBeClosedMeanwhile) {
    int glances = 0;
    glances_.look = [&] {
        if (++glances > 1) return;
        EXPECT_TRUE(Progress()->isVisible());
        EXPECT_EQ(Progress()->findChild<QProgressBar*>()->maximum(), 31);
        EXPECT_FALSE(CanLogIn() || UserName()->isEnabled() || Password()->isEnabled());
        EXPECT_FALSE(Button("Exit Application").isEnabled());
        EXPECT_FALSE(Window()->close());
    };
    LogIn("ann", "wrong");
    EXPECT_GT(glances, 1);
    EXPECT_THAT(forms.Loaded(), ElementsAre(kLoginForm));
}

TEST_F(LoginWindowTest, ExitLeavesNothingLoaded) {
    forms.Load(kMainForm);
    Button("Exit Application").click();
    EXPECT_THAT(forms.Loaded(), IsEmpty());
}

}  // namespace
}  // namespace tallix
