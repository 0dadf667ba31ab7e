#include "shell/splash_window.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QRegularExpression>
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

TEST_F(SplashWindowTest, ShowsItsStepsToAPersonAndEnds) {
    const SplashWindow* splash = LoadSplash("");
    EXPECT_EQ(splash->windowTitle(), "Tallix Reports Tool");
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(splash->findChild<QLabel*>("Version")->text(), "Version: 1.2.3");
    const QList<QWidget*> ticks = splash->findChildren<QWidget*>(QRegularExpression("^Tick"));
    ASSERT_EQ(ticks.size(), kStartupSteps);
    int most = 0;
    QTimer look;
    look.callOnTimeout([&] {
        const auto shown =
            std::count_if(ticks.begin(), ticks.end(), [](auto* tick) { return tick->isVisible(); });
        EXPECT_LE(shown - most, 1) << "ticks appear one by one";
        most = static_cast<int>(shown);
    });
    EXPECT_TRUE(std::none_of(ticks.begin(), ticks.end(), [](auto* tick) { return tick->isVisible(); }));
    QObject::connect(splash, &QObject::destroyed, &look, &QTimer::stop);
    look.start(1);

    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_GE(most, 3);
}

TEST_F(SplashWindowTest, AnUnattendedRunIsNeverSeenAndEndsByItself) {
    LoadSplash("Backup");
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(atTheDump_, "Loading UI...");
    EXPECT_FALSE(visibleAtTheDump_);
}

}  // namespace
}  // namespace tallix
