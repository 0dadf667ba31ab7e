#include "startup/startup_sequence.h"

#include <array>
#include <utility>

#include "database/database_scope.h"
#include "platform/paths.h"
#include "startup/installation_check.h"

namespace tallix {
namespace {

constexpr std::string_view kVersionKey = "Software\\Quillmere Software\\Tallix\\Reports";
constexpr std::string_view kDefaultUser = "Tallix";
constexpr std::string_view kFactoryPassword = "norvadat";
constexpr std::string_view kDefaultLanguage = "1033";
constexpr std::string_view kDefaultCurrency = "\u00A3";

std::string ReadOr(const SettingsStore& settings, std::string_view name, std::string_view defaultText) {
    std::string value = settings.Read(name);
    return value.empty() ? std::string(defaultText) : value;
}

}  // namespace

StartupSequence::StartupSequence(Application& application, std::string commandLine, SplashView& view,
                                 UnattendedWork work)
    : application_(application), commandLine_(std::move(commandLine)), view_(view), work_(std::move(work)) {}

void StartupSequence::Load() {
    const std::string version = application_.version.Text();
    application_.settings.fWriteValue("HKLM", kVersionKey, "Version", "S", version);
    view_.ShowVersion("Version: " + version);

    Session& session = application_.session;
    session.database.kind = DatabaseKindOf(application_.settings.Read("DBType"));
    session.database.user = ReadOr(application_.settings, "SQLUser", kDefaultUser);
    session.database.password = ReadOr(application_.settings, "SQLPass", kFactoryPassword);
    if (commandLine_.empty()) view_.ShowSplash();
}

void StartupSequence::Tick() {
    if (ended_) return;
    if (counter_ > 0) DoStep(counter_ - 1);
    ++counter_;
}

void StartupSequence::DoStep(int step) {
    struct Step {
        std::string_view caption;
        void (StartupSequence::*work)();
    };
    static constexpr std::array<Step, kStartupSteps> kSteps = {{
        {"Loading Preferences...", &StartupSequence::LoadPreferences},
        {"Reading Reports...", &StartupSequence::ReadReports},
        {"Testing DB Connection...", &StartupSequence::ReadDatabaseAddress},
        {"Checking Folder Structure...", &StartupSequence::CheckFolders},
        {"Loading UI...", &StartupSequence::HandOver},
    }};
    view_.ShowStep(kSteps.at(step).caption, step);
    (this->*kSteps.at(step).work)();
}

void StartupSequence::LoadPreferences() {
    const SettingsStore& settings = application_.settings;
    const std::string folder = application_.folder.string();
    Session& session = application_.session;
    session.ReportsLocation = ReadOr(settings, "ReportsLocation", folder);
    session.Lang = ReadOr(settings, "Lang", kDefaultLanguage);
    session.DocsLocation = ReadOr(settings, "DocsLocation", folder + "\\Company Docs");
    session.Currency = ReadOr(settings, "Currency", kDefaultCurrency);
}

// No connection is opened here: a server that does not answer shows at the login, or
// in the unattended work.
void StartupSequence::ReadDatabaseAddress() {
    std::string& server = application_.session.database.server;
    server = application_.settings.Read("DBIP");
    if (!server.empty()) return;
    view_.ShowSettingsRequired();
    End();
}

// Every missing folder has its own message, also after the first one.
void StartupSequence::CheckFolders() {
    const std::string folder = application_.folder.string();
    const std::array<std::string, 4> needed = {folder + "\\Reports", folder + "\\Reports\\Standard",
                                               folder + "\\Company Docs",
                                               application_.session.ReportsLocation + "\\Reports"};
    RequireFolders(needed, application_.prompts, [this] { End(); });
}

void StartupSequence::HandOver() {
    const RunRequest request = DecideRun(commandLine_);
    if (request.kind == StartKind::Interactive) return OpenLogin();
    RunUnattended(request);
    application_.events.Serve();
    End();
}

void StartupSequence::OpenLogin() {
    view_.LoadLogin();
    application_.events.Serve();
    End();
    view_.ShowLogin();
}

void StartupSequence::RunUnattended(const RunRequest& request) {
    if (request.kind == StartKind::ScheduledReport) {
        work_.runReport(ReadScheduledReport(ToNativePath(request.pathText)));
    }
    if (request.kind == StartKind::Backup) work_.dump();
}

void StartupSequence::End() {
    if (ended_) return;
    ended_ = true;
    view_.UnloadSplash();
}

}  // namespace tallix
