// The splash ("Form5"): shows the start-up sequence and gives it its ticks.
#pragma once

#include <QLabel>
#include <QTimer>
#include <array>
#include <chrono>

#include "startup/startup_sequence.h"
#include "toolkit/artwork.h"
#include "toolkit/form.h"

namespace tallix {

/// The time of one step of the start-up sequence.
inline constexpr std::chrono::milliseconds kStepInterval{1000};

class SplashWindow : public toolkit::Form, private SplashView {
    Q_OBJECT
public:
    /// `application` must outlive the window. Each step takes `interval`.
    SplashWindow(toolkit::Forms& forms, Application& application, const std::string& commandLine,
                 UnattendedWork work, std::chrono::milliseconds interval = kStepInterval);

protected:
    void OnLoad() override;
    void OnUnload() override;
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowVersion(const std::string& text) override;
    void ShowSplash() override;
    void ShowStep(std::string_view caption, int tick) override;
    void UnloadSplash() override;
    void ShowSettingsRequired() override;
    void LoadLogin() override;
    void ShowLogin() override;

    QLayout* TitleRow();
    QLayout* TickRow();
    QLayout* TextRow();
    void Advance();

    StartupSequence sequence_;
    QTimer timer_;
    QLabel* caption_;
    QLabel* version_;
    std::array<toolkit::TickMark*, kStartupSteps> ticks_{};
};

}  // namespace tallix
