#include "shell/settings_required_window.h"

#include <gmock/gmock.h>

#include <QTest>

#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

class SettingsRequiredWindowTest : public test::WindowTest {
protected:
    SettingsRequiredWindowTest() {
        test_.application.session.DBIP.clear();
        forms.Register(kSettingsRequiredForm,
                       [this] { return std::make_unique<SettingsRequiredWindow>(forms, test_.application); });
        forms.Register(kLoginForm, [this] { return std::make_unique<ui::Form>(forms, "Login"); });
        forms.Show(kSettingsRequiredForm);
        window_ = forms.Find(kSettingsRequiredForm);
        field_ = window_->findChild<QLineEdit*>();
    }

    QPushButton& Button(const QString& caption) const {
        return test::Captioned<QPushButton>(*window_, caption);
    }

    void Test(const QString& address) const {
        field_->setText(address);
        Button("TEST").click();
    }

    void ExpectResult(const QString& text, QRgb colour, bool canSave) const {
        const auto* result = window_->findChild<QLabel*>("Result");
        EXPECT_EQ(result->text(), text);
        EXPECT_EQ(result->palette().color(QPalette::WindowText), QColor(colour));
        EXPECT_EQ(Button("Save Changes").isEnabled(), canSave);
    }

    test::TestApplication test_;
    ui::Form* window_ = nullptr;
    QLineEdit* field_ = nullptr;
};

TEST_F(SettingsRequiredWindowTest, ATestDecidesWhetherTheAddressCanBeSaved) {
    EXPECT_EQ(window_->windowTitle(), "Tallix Reports Tool - Settings Required");
    EXPECT_FALSE(Button("Save Changes").isEnabled());
    Test("10.0.0.300");
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
    Test("10.0.0.5");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClicks(field_, "x");
    ExpectResult("PASSED!", qRgb(0, 255, 0), true);
    QTest::keyClick(field_, Qt::Key_Return);
    ExpectResult("FAILED!", qRgb(255, 0, 0), false);
}

TEST_F(SettingsRequiredWindowTest, SavingIsForTheNextStartAndLeadsToTheLogin) {
    Test("10.0.0.5");
    Button("Save Changes").click();
    EXPECT_EQ(test_.settings.Read("DBIP"), "10.0.0.5");
    EXPECT_EQ(test_.application.session.DBIP, "");
    EXPECT_THAT(test_.prompts.messages, testing::IsEmpty());
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kLoginForm));
    EXPECT_TRUE(forms.Find(kLoginForm)->isVisible());
}

TEST_F(SettingsRequiredWindowTest, EachMissingFolderHasItsMessageBeforeTheLogin) {
    std::filesystem::remove_all(test_.application.folder / "Reports");
    std::filesystem::remove_all(test_.application.folder / "Company Docs");
    Test("10.0.0.5");
    Later([&] { Button("Save Changes").click(); });
    Later([&] { forms.Unload(kLoginForm); });
    EXPECT_EQ(RunToTheEnd(), 0);
    ASSERT_EQ(test_.prompts.messages.size(), 2);
    EXPECT_EQ(test_.prompts.messages[1].icon, MessageIcon::Critical);
}

TEST_F(SettingsRequiredWindowTest, ExitEndsTheProcessWithNothingSaved) {
    Test("10.0.0.5");
    Later([&] { Button("Exit Application").click(); });
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(test_.settings.Read("DBIP"), "");
}

}  // namespace
}  // namespace tallix
