#include "shell/windows.h"

#include "admin/mappings_window.h"
#include "admin/options_window.h"
#include "admin/sites_window.h"
#include "costing/call_cost_map_window.h"
#include "costing/call_costings_window.h"
#include "custody/archive_window.h"
#include "custody/backup_window.h"
#include "foundation/form_names.h"
#include "reporting/cover_backing_window.h"
#include "reporting/custom_reports_window.h"
#include "reporting/preset_reports_window.h"
#include "reporting/report_output_window.h"
#include "scheduling/scheduled_reports_window.h"
#include "shell/about_window.h"
#include "shell/access_logging_window.h"
#include "shell/login_window.h"
#include "shell/main_window.h"
#include "shell/settings_required_window.h"
#include "shell/statistics_window.h"

namespace tallix {
namespace {

/// A window that is made with the forms, the application and whatever else it needs.
template <typename Window, typename... More>
void Register(ui::Forms& forms, const char* name, Application& application, More&... more) {
    forms.Register(name, [&forms, &application, &more...] {
        return std::make_unique<Window>(forms, application, more...);
    });
}

}  // namespace

void RegisterWindows(ui::Forms& forms, Application& application, ReportFlags& flags, ui::Printers& printers) {
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
    // Held by no window: what a restore has opened stays open for the rest of the run.
    forms.Register(kBackupForm, [&forms, &application, channel = std::make_shared<BackupChannel>()] {
        return std::make_unique<BackupWindow>(forms, application, *channel);
    });
    Register<CoverBackingWindow>(forms, kCoverPagesForm, application);
    Register<ArchiveWindow>(forms, kArchiveForm, application);
    Register<ReportOutputWindow>(forms, kReportOutputForm, application, printers);
}

}  // namespace tallix
