// Builds what the program works with and enters the start-up sequence.
#include <QGuiApplication>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string_view>

#include "backup/automated_backup.h"
#include "platform/paths.h"
#include "scheduling/unattended_runner.h"
#include "session/application.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/guarded_application.h"
#include "toolkit/message_prompts.h"
#include "toolkit/printers.h"
#include "toolkit/qt_events.h"
#include "toolkit/style.h"
#include "windows/session/splash_window.h"
#include "windows/window_registry.h"

namespace {

using tallix::Prompts;

constexpr char kProgram[] = "Tallix_Reports";

std::string_view Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

bool HasDisplay() {
    return !Environment("DISPLAY").empty() || !Environment("WAYLAND_DISPLAY").empty();
}

// What the toolkit remarks on its surroundings is of no use to a scheduled run, whose
// every line on standard error somebody may get by mail.
void KeepSevereMessages(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << text.toStdString() << std::endl;
}

// A scheduled run may have no display, or one that no longer answers; the toolkit
// would end the process for either.
void PrepareUnattended() {
    const char* platforms = "offscreen";
    if (!Environment("DISPLAY").empty()) platforms = "xcb;offscreen";
    if (!Environment("WAYLAND_DISPLAY").empty()) platforms = "wayland;xcb;offscreen";
    if (Environment("QT_QPA_PLATFORM").empty()) setenv("QT_QPA_PLATFORM", platforms, 1);
    qInstallMessageHandler(KeepSevereMessages);
}

// Somebody can see and answer a message box.
bool HasScreen() {
    return QGuiApplication::platformName() != "offscreen";
}

std::unique_ptr<Prompts> MakePrompts() {
    if (HasScreen()) return std::make_unique<tallix::toolkit::MessagePrompts>();
    return std::make_unique<tallix::UnattendedPrompts>();
}

// Tests and measurements shorten the steps.
std::chrono::milliseconds StepInterval() {
    const std::string_view text = Environment("TALLIX_STEP_MS");
    int milliseconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), milliseconds);
    const bool valid = error == std::errc() && end == text.data() + text.size() && milliseconds >= 0;
    return valid ? std::chrono::milliseconds(milliseconds) : tallix::kStepInterval;
}

void ReportFailure(const std::exception& failure, bool unattended) {
    if (unattended || !HasScreen()) {
        std::cerr << kProgram << ": " << failure.what() << std::endl;
        return;
    }
    tallix::toolkit::MessagePrompts().Show({"Tallix Reports", failure.what(), tallix::MessageIcon::Critical});
}

int Run(QApplication& toolkit, const std::string& commandLine) {
    tallix::toolkit::ApplyStyle(toolkit);
    const std::unique_ptr<Prompts> prompts = MakePrompts();
    tallix::SettingsStore settings(tallix::MachineSettingsFolder(), tallix::UserSettingsFolder(), *prompts);
    tallix::SystemClock clock;
    tallix::toolkit::QtEvents events;
    tallix::Application application{tallix::ApplicationFolder(),
                                    tallix::TempFolder(),
                                    tallix::ProgramVersion(),
                                    settings,
                                    *prompts,
                                    clock,
                                    events};
    tallix::toolkit::Printers printers;
    tallix::toolkit::Forms forms;
    tallix::ReportFlags flags;
    const tallix::UnattendedWork work = {[&](const tallix::ScheduledReport& report) {
                                             tallix::RunScheduledReport(application, flags, report);
                                         },
                                         [&] { tallix::WriteAutomatedBackup(application); }};
    tallix::RegisterWindows(forms, application, flags, printers);
    forms.Register(tallix::kSplashForm, [&] {
        return std::make_unique<tallix::SplashWindow>(forms, application, commandLine, work, StepInterval());
    });
    forms.Load(tallix::kSplashForm);
    return QApplication::exec();
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::string commandLine = tallix::JoinCommandLine(argumentCount, arguments);
    const bool unattended = !commandLine.empty();
    if (!unattended && !HasDisplay() && Environment("QT_QPA_PLATFORM").empty()) {
        std::cerr << kProgram << ": there is no display to open windows on" << std::endl;
        return EXIT_FAILURE;
    }
    if (unattended) PrepareUnattended();
    const auto onFailure = [&](const std::exception& failure) { ReportFailure(failure, unattended); };
    tallix::toolkit::GuardedApplication toolkit(argumentCount, arguments, onFailure);
    try {
        return Run(toolkit, commandLine);
    } catch (const std::exception& failure) {
        onFailure(failure);
    }
    return EXIT_FAILURE;
}
