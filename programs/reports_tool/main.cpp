// Tallix_Reports. Without arguments it shows its windows to a person; with arguments it runs
// a scheduled report or the nightly dump. Either way the start-up sequence comes first.
#include <charconv>
#include <cstdlib>
#include <iostream>

#include "backup/automated_backup.h"
#include "display.h"
#include "platform/paths.h"
#include "scheduling/unattended_runner.h"
#include "session/application.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/guarded_application.h"
#include "toolkit/printers.h"
#include "toolkit/qt_events.h"
#include "toolkit/style.h"
#include "windows/session/splash_window.h"
#include "windows/window_registry.h"

namespace tallix {
namespace {

/// The time of a step of the start-up sequence. Tests and measurements shorten it.
std::chrono::milliseconds StepInterval() {
    const char* value = std::getenv("TALLIX_STEP_MS");
    const std::string_view text = value == nullptr ? "" : value;
    int milliseconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), milliseconds);
    const bool valid = error == std::errc() && end == text.data() + text.size() && milliseconds >= 0;
    return valid ? std::chrono::milliseconds(milliseconds) : kStepInterval;
}

/// Runs from the start-up sequence until the last window has gone.
int Run(const std::string& commandLine) {
    const std::unique_ptr<Prompts> prompts = MakePrompts();
    SettingsStore settings(MachineSettingsFolder(), UserSettingsFolder(), *prompts);
    SystemClock clock;
    toolkit::QtEvents events;
    Application application{
        ApplicationFolder(), TempFolder(), ProgramVersion(), settings, *prompts, clock, events};
    ReportFlags flags;
    const UnattendedWork work = {
        [&](const ScheduledReport& report) { RunScheduledReport(application, flags, report); },
        [&] { WriteAutomatedBackup(application); }};
    toolkit::Printers printers;
    toolkit::Forms forms;
    RegisterWindows(forms, application, flags, printers);
    forms.Register(kSplashForm, [&] {
        return std::make_unique<SplashWindow>(forms, application, commandLine, work, StepInterval());
    });
    forms.Load(kSplashForm);
    return QApplication::exec();
}

int Start(int argumentCount, char** arguments) {
    const std::string commandLine = JoinCommandLine(argumentCount, arguments);
    const Audience audience = commandLine.empty() ? Audience::Person : Audience::Nobody;
    if (audience == Audience::Person && !HasDisplay()) {
        std::cerr << "Tallix_Reports: there is no display to open windows on" << std::endl;
        return EXIT_FAILURE;
    }
    if (audience == Audience::Nobody) PrepareUnattendedToolkit();
    const auto report = [audience](const std::exception& failure) { ReportFailure(failure, audience); };
    toolkit::GuardedApplication guarded(argumentCount, arguments, report);
    toolkit::ApplyStyle(guarded);
    try {
        return Run(commandLine);
    } catch (const std::exception& failure) {
        report(failure);
    }
    return EXIT_FAILURE;
}

}  // namespace
}  // namespace tallix

int main(int argumentCount, char** arguments) {
    return tallix::Start(argumentCount, arguments);
}
