#include "windows/session/splash_window.h"

#include <gmock/gmock.h>

#include <QRegularExpression>
#include <algorithm>

#include "support/form_test.h"

namespace tallix {
namespace {

class SplashWindowTest : public test::FormTest {
protected:
    SplashWindowTest() { world.settings.Write("DBIP", "10.0.0.5"); }

    SplashWindow* LoadSplash(const std::string& commandLine) {
        forms.Register(kSplashForm, [this, commandLine] {
            return std::make_unique<SplashWindow>(forms, world.application, commandLine, Work(),
                                                  std::chrono::milliseconds(5));
        });
        return dynamic_cast<SplashWindow*>(forms.Load(kSplashForm));
    }

    UnattendedWork Work() {
        return {nullptr, [this] { visibleAtTheDump_ = IsVisible(kSplashForm); }};
    }

    std::ptrdiff_t VisibleTicks() const {
        const auto ticks = forms.Find(kSplashForm)->findChildren<QWidget*>(QRegularExpression("^Tick"));
        return std::count_if(ticks.begin(), ticks.end(),
                             [](const QWidget* tick) { return tick->isVisible(); });
    }

    bool visibleAtTheDump_ = true;
};

TEST_F(SplashWindowTest, ShowsItsStepsToAPersonAndMakesWayForTheLogin) {
    std::ptrdiff_t ticksAtTheLogin = 0;
    forms.Register(kLoginForm, [&] {
        ticksAtTheLogin = VisibleTicks();
        return std::make_unique<toolkit::Form>(forms, "Login");
    });
    SplashWindow* splash = LoadSplash("");
    QObject::connect(splash, &QObject::destroyed, [&] {
        EXPECT_TRUE(IsVisible(kLoginForm));
        forms.Unload(kLoginForm);
    });
    EXPECT_EQ(splash->findChild<QLabel*>("Version")->text(), "Version: 1.4.6");
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(VisibleTicks(), 0);

    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_EQ(ticksAtTheLogin, kStartupSteps);
}

TEST_F(SplashWindowTest, AnUnattendedRunIsNeverSeenAndEndsByItself) {
    LoadSplash("Backup");
    EXPECT_EQ(RunToTheEnd(), 0);
    EXPECT_FALSE(visibleAtTheDump_);
}

}  // namespace
}  // namespace tallix
