#include "windows/window_registry.h"

#include "toolkit/form_names.h"
#include "windows/administration/mappings_window.h"
#include "windows/administration/options_window.h"
#include "windows/administration/sites_window.h"
#include "windows/backup/archive_window.h"
#include "windows/backup/backup_window.h"
#include "windows/costing/call_cost_map_window.h"
#include "windows/costing/call_costings_window.h"
#include "windows/reporting/cover_backing_window.h"
#include "windows/reporting/custom_reports_window.h"
#include "windows/reporting/preset_reports_window.h"
#include "windows/reporting/report_output_window.h"
#include "windows/scheduling/scheduled_reports_window.h"
#include "windows/session/about_window.h"
#include "windows/session/access_logging_window.h"
#include "windows/session/login_window.h"
#include "windows/session/main_window.h"
#include "windows/session/settings_required_window.h"
#include "windows/session/statistics_window.h"

namespace tallix {
namespace {

/// Registers a window whose constructor takes the forms, the application and `more`.
template <typename Window, typename... More>
void Register(toolkit::Forms& forms, const char* name, Application& application, More&... more) {
    forms.Register(name, [&forms, &application, &more...] {
        return std::make_unique<Window>(forms, application, more...);
    });
}

}  // namespace

void RegisterWindows(toolkit::Forms& forms, Application& application, ReportFlags& flags,
                     toolkit::Printers& printers) {
    Register<LoginWindow>(forms, kLoginForm, application);
    Register<MainWindow>(forms, kMainForm, application);
    Register<StatisticsWindow>(forms, kStatisticsForm, application);
    Register<AboutWindow>(forms, kAboutForm, application);
    Register<SettingsRequiredWindow>(forms, kSettingsRequiredForm, application);
    Register<OptionsWindow>(forms, kOptionsForm, application);
    Register<SitesWindow>(forms, kSitesForm, application);
    Register<MappingsWindow>(forms, kMappingsForm, application);
    Register<AccessLoggingWindow>(forms, kAccessLoggingForm, application);
    Register<PresetReportsWindow>(forms, kPresetReportsForm, application, flags, printers);
    Register<CallCostingsWindow>(forms, kCallCostingsForm, application);
    Register<CallCostMapWindow>(forms, kCallCostMapForm, application);
    Register<CustomReportsWindow>(forms, kCustomReportsForm, application, printers);
    Register<ScheduledReportsWindow>(forms, kSchedulesForm, application);
    // Not owned by a window: what a restore has opened stays open for the rest of the run.
    forms.Register(kBackupForm, [&forms, &application, channel = std::make_shared<BackupChannel>()] {
        return std::make_unique<BackupWindow>(forms, application, *channel);
    });
    Register<CoverBackingWindow>(forms, kCoverPagesForm, application);
    Register<ArchiveWindow>(forms, kArchiveForm, application);
    Register<ReportOutputWindow>(forms, kReportOutputForm, application, printers);
}

}  // namespace tallix
