#include "administration/options_save.h"

#include "backup/backup_task.h"
#include "database/database_scope.h"
#include "session/access_log.h"

namespace tallix {
namespace {

constexpr char kAnyAddress[] = "Any";

void LogSave(const Application& application) {
    const Session& session = application.session;
    WriteLog(DatabaseScope(session.database), session, application.clock, "System Settings Saved");
}

/// The Collector's own address comes from the currency list, which replaced a list of
/// addresses.
void WriteCollectorAddress(const SettingsStore& settings, const OptionsValues& values) {
    const std::string& address = values.at("Currency");
    settings.Write("LocalIP", address == kAnyAddress ? "" : address);
}

void WriteCommandFiles(const Application& application, const OptionsValues& values) {
    for (const CommandFile& file : kCommandFiles) {
        WriteCommandFile(application, file, values.at(std::string(file.name)));
    }
}

/// The table stays empty while the settings are written that come before its rows.
void ReplaceExtensions(const Application& application, const OptionsOnScreen& screen) {
    const SettingsStore& settings = application.settings;
    const DatabaseScope database(application.session.database);
    database.Execute("DELETE FROM tblextensions");
    WriteSettings(settings, screen.values, SaveStep::Collection);
    WriteCollectorAddress(settings, screen.values);
    WriteCommandFiles(application, screen.values);
    WriteSettings(settings, screen.values, SaveStep::General);
    StoreExtensions(database, screen.extensions);
}

}  // namespace

void SaveOptions(Application& application, const OptionsOnScreen& screen) {
    LogSave(application);
    ReplaceExtensions(application, screen);
    WriteSettings(application.settings, screen.values, SaveStep::Services);
    (screen.automaticBackup == AutomaticBackup::On ? CreateBackupTask : DeleteBackupTask)(application);
    WriteSettings(application.settings, screen.values, SaveStep::Reports);
    application.prompts.Show({"Save Settings", "Settings saved!", MessageIcon::Information});
}

}  // namespace tallix
