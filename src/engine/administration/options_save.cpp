#include "administration/options_save.h"

#include "backup/backup_task.h"
#include "session/access_log.h"
#include "session/database.h"

namespace tallix {
namespace {

using std::string_view;

constexpr string_view kSwitchKeys[] = {"SwitchComm", "SwitchBaud", "SwitchParity", "SwitchBits",
                                       "SwitchStop", "CommMethod", "AreaCode"};
constexpr string_view kGeneralKeys[] = {"CostCompute", "ReportAlign", "ListenFeed", "ListenPort", "Lang",
                                        "UseProxy",    "ProxyIP",     "ProxyPort",  "Currency"};
constexpr string_view kServiceKeys[] = {"DebugLogging", "SMTPServer", "SMTPPort", "SMTPUser", "SMTPPass",
                                        "SMTPEmail",    "SMTPAuth",   "SMTPSSL",  "TimeOpen", "TimeClosed"};
constexpr string_view kReportKeys[] = {"ReportsLocation", "DocsLocation", "LostCalls",
                                       "V1Reports",       "Providers",    "rptTC",
                                       "rptTHC",          "rptTDC",       "rptTBC"};

constexpr char kAnyAddress[] = "Any";

void NoteSave(Application& application, const OptionsOnScreen&) {
    OpenDatabase(application.session);
    WriteLog(application.session, application.clock, "System Settings Saved");
    CloseDatabase(application.session);
}

void EmptyExtensions(Application& application, const OptionsOnScreen&) {
    OpenDatabase(application.session);
    OpenConnection(application.session).Execute("DELETE FROM tblextensions");
}

/// The Collector's own address comes out of the currency list, which took the place of a
/// list of addresses.
void WriteSwitchSettings(Application& application, const OptionsOnScreen& screen) {
    WriteSettings(application.settings, screen.values, kSwitchKeys);
    const std::string& address = screen.values.at("Currency");
    application.settings.Write("LocalIP", address == kAnyAddress ? "" : address);
}

void WriteCommandFiles(Application& application, const OptionsOnScreen& screen) {
    for (const CommandFile& file : kCommandFiles) WriteCommandFile(application, screen.values, file.name);
}

void WriteGeneralSettings(Application& application, const OptionsOnScreen& screen) {
    WriteSettings(application.settings, screen.values, kGeneralKeys);
}

void FillExtensions(Application& application, const OptionsOnScreen& screen) {
    StoreExtensions(application.session, screen.extensions);
    CloseDatabase(application.session);
}

void WriteServiceSettings(Application& application, const OptionsOnScreen& screen) {
    WriteSettings(application.settings, screen.values, kServiceKeys);
}

void SetBackupTask(Application& application, const OptionsOnScreen& screen) {
    (screen.automaticBackup ? CreateBackupTask : DeleteBackupTask)(application);
}

void WriteReportSettings(Application& application, const OptionsOnScreen& screen) {
    WriteSettings(application.settings, screen.values, kReportKeys);
}

void TellSaved(Application& application, const OptionsOnScreen&) {
    application.prompts.Show({"Save Settings", "Settings saved!", MessageIcon::Information});
}

}  // namespace

const std::array<SaveStep, 10> kSaveSteps = {
    NoteSave,       EmptyExtensions,      WriteSwitchSettings, WriteCommandFiles,   WriteGeneralSettings,
    FillExtensions, WriteServiceSettings, SetBackupTask,       WriteReportSettings, TellSaved};

void SaveOptions(Application& application, const OptionsOnScreen& screen) {
    for (const SaveStep step : kSaveSteps) step(application, screen);
}

}  // namespace tallix
