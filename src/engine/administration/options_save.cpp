#include "administration/options_save.h"

#include "backup/backup_task.h"
#include "session/access_log.h"
#include "session/database.h"

namespace tallix {
namespace {

constexpr char kAnyAddress[] = "Any";

void LogSave(Application& application) {
    OpenDatabase(application.session);
    WriteLog(application.session, application.clock, "System Settings Saved");
    CloseDatabase(application.session);
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
void ReplaceExtensions(Application& application, const OptionsOnScreen& screen) {
    const SettingsStore& settings = application.settings;
    OpenDatabase(application.session);
    OpenConnection(application.session).Execute("DELETE FROM tblextensions");
    WriteSettings(settings, screen.values, SaveStep::Collection);
    WriteCollectorAddress(settings, screen.values);
    WriteCommandFiles(application, screen.values);
    WriteSettings(settings, screen.values, SaveStep::General);
    StoreExtensions(application.session, screen.extensions);
    CloseDatabase(application.session);
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
