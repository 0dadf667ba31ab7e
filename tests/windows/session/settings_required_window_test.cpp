#include "windows/session/settings_required_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "support/form_test.h"

namespace tallix {
namespace {

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

TEST_F(SettingsRequiredWindowTest, ATestDecidesWhetherTheAddressCanBeSaved) {
    EXPECT_FALSE(Button("Save Changes").isEnabled());
    Enter("10.0.0.300");
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
    Enter("10.0.0.5");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClicks(&Field(), "x");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClick(&Field(), Qt::Key_Return);
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
}

TEST_F(SettingsRequiredWindowTest, SavingIsForTheNextStartAndLeadsToTheLogin) {
    Enter("10.0.0.5");
    Click("Save Changes");
    EXPECT_EQ(world.settings.Read("DBIP"), "10.0.0.5");
    EXPECT_EQ(world.application.session.database.server, "");
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty());
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kLoginForm));
    EXPECT_TRUE(IsVisible(kLoginForm));
}

TEST_F(SettingsRequiredWindowTest, EachMissingFolderHasItsMessageBeforeTheLogin) {
    std::filesystem::remove_all(world.application.folder / "Reports");
    std::filesystem::remove_all(world.application.folder / "Company Docs");
    Enter("10.0.0.5");
    Later([&] { Click("Save Changes"); });
    Later([&] { forms.Unload(kLoginForm); });
    EXPECT_EQ(RunToTheEnd(), 0);
    ASSERT_EQ(world.prompts.messages.size(), 2);
    EXPECT_EQ(world.prompts.messages[1].icon, MessageIcon::Critical);
}

TEST_F(SettingsRequiredWindowTest, ExitEndsTheProcessWithNothingSaved) {
    Enter("10.0.0.5");
    Later([&] { Click("Exit Application"); });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(world.settings.Read("DBIP"), "");
}

}  // namespace
}  // namespace tallix
