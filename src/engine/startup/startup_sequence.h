// The entry of every run: reads the preferences into the session, checks the
// installation one step a tick, and decides from the command line whether a person,
// a scheduled report or the unattended dump comes next.
//
// The sequence owns no window and no timer. Whoever shows it calls Load once and then
// Tick at an even pace until HasEnded.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "scheduling/scheduled_report.h"
#include "session/application.h"
#include "startup/command_line.h"

namespace tallix {

/// The window that shows the sequence, and the windows that it hands over to.
class SplashView {
public:
    virtual ~SplashView() = default;

    virtual void ShowVersion(const std::string& text) = 0;

    /// Called in interactive runs alone; the splash of any other run stays hidden.
    virtual void ShowSplash() = 0;

    /// One step has begun. `tick` is the zero-based image that appears with it.
    virtual void ShowStep(std::string_view caption, int tick) = 0;

    /// Takes the splash away. The process ends once no window is left.
    virtual void UnloadSplash() = 0;

    virtual void ShowSettingsRequired() = 0;
    virtual void LoadLogin() = 0;
    virtual void ShowLogin() = 0;
};

/// The work of runs with nobody at the screen. Each routine returns when it is done.
struct UnattendedWork {
    std::function<void(const ScheduledReport&)> runReport;
    std::function<void()> dump;
};

/// The number of steps with a caption and an image.
inline constexpr int kStartupSteps = 5;

class StartupSequence {
public:
    /// `application` and `view` must outlive the sequence.
    StartupSequence(Application& application, std::string commandLine, SplashView& view, UnattendedWork work);

    /// Writes the version, shows it, and reads what the database is reached by.
    void Load();

    /// Does the work of the current step and advances. The first tick has no work.
    /// Failures of the unattended work come through.
    void Tick();

    /// Whether the splash is gone and no tick will do anything more.
    bool HasEnded() const { return ended_; }

private:
    void LoadPreferences();
    void ReadReports() {}  // the catalogue is read when a person first asks for it
    void ReadDatabaseAddress();
    void CheckFolders();
    void HandOver();

    void DoStep(int step);
    void OpenLogin();
    void RunUnattended(const RunRequest& request);
    void End();

    Application& application_;
    std::string commandLine_;
    SplashView& view_;
    UnattendedWork work_;
    int counter_ = 0;
    bool ended_ = false;
};

}  // namespace tallix
