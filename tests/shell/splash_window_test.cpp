#include "shell/splash_window.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QRegularExpression>
#include <algorithm>
#include <filesystem>

#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/window_test.h"
#include "ui/form_names.h"

namespace tallix {
namespace {

class SplashWindowTest : public test::WindowTest {
protected:
    SplashWindowTest() {
        std::filesystem::create_directories(root_ / "Reports" / "Standard");
        std::filesystem::create_directories(root_ / "Company Docs");
        settings_.Write("DBIP", "10.0.0.5");
    }

    SplashWindow* LoadSplash(const std::string& commandLine) {
        forms.Register(ui::kSplashForm, [this, commandLine] {
            return std::make_unique<SplashWindow>(forms, application_, commandLine, Work(), kQuickStep);
        });
        return dynamic_cast<SplashWindow*>(forms.Load(ui::kSplashForm));
    }

    UnattendedWork Work() {
        return {nullptr, [this] {
                    const auto* splash = forms.Find(ui::kSplashForm);
                    atTheDump_ = splash->findChild<QLabel*>("StepCaption")->text().toStdString();
                    visibleAtTheDump_ = splash->isVisible();
                }};
    }

    std::ptrdiff_t VisibleTicks() const {
        const auto ticks = forms.Find(ui::kSplashForm)->findChildren<QWidget*>(QRegularExpression("^Tick"));
        return std::count_if(ticks.begin(), ticks.end(),
                             [](const QWidget* tick) { return tick->isVisible(); });
    }

    static constexpr std::chrono::milliseconds kQuickStep{5};

    test::TempFolder folder_;
    const std::filesystem::path root_ = folder_.Path();
    test::ScriptedPrompts prompts_;
    test::FixedClock clock_;
    NoEvents events_;
    SettingsStore settings_{root_, root_, prompts_};
    Application application_{root_, root_, Version{1, 2, 3}, settings_, prompts_, clock_, events_};
    std::string atTheDump_;
    bool visibleAtTheDump_ = true;
};

TEST_F(SplashWindowTest, ShowsItsStepsToAPersonAndMakesWayForTheLogin) {
    std::ptrdiff_t ticksAtTheLogin = 0;
    forms.Register(ui::kLoginForm, [&] {
        ticksAtTheLogin = VisibleTicks();
        return std::make_unique<ui::Form>(forms, "Login");
    });
    SplashWindow* splash = LoadSplash("");
    QObject::connect(splash, &QObject::destroyed, [&] {
        EXPECT_TRUE(forms.Find(ui::kLoginForm)->isVisible());
        forms.Unload(ui::kLoginForm);
    });
    EXPECT_EQ(splash->windowTitle(), "Tallix Reports Tool");
    EXPECT_EQ(splash->findChild<QLabel*>("Version")->text(), "Version: 1.2.3");
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(VisibleTicks(), 0);

    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(ticksAtTheLogin, kStartupSteps);
}

TEST_F(SplashWindowTest, AnUnattendedRunIsNeverSeenAndEndsByItself) {
    LoadSplash("Backup");
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(atTheDump_, "Loading UI...");
    EXPECT_FALSE(visibleAtTheDump_);
}

}  // namespace
}  // namespace tallix
