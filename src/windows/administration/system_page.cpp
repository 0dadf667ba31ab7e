#include "windows/administration/system_page.h"

#include <QCheckBox>

namespace tallix {
namespace {

constexpr char kLostCallsOn[] =
    "IMPORTANT! - This will include call records that are missing most of their fields. This means that in "
    "some cases these records may appear on other reports that you generate. It will also increase your "
    "database size compared to current settings. Please ensure you understand this before saving this "
    "setting.";
constexpr char kLostCallsOff[] =
    "If you have already been running the system with this option enabled, current call data will still "
    "contain data missing fields. Once you have saved this option it will take effect when the Processor is "
    "run next.";
constexpr char kDebugLogging[] =
    "Debug Logging allows Technical Support to gather information whilst Tallix is running. This may cause a "
    "drop in performance if your Tallix system has high usage.";

}  // namespace

SystemPage::SystemPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    AddPanel("System Settings", OptionPanel::System);
    AddPanel("Debug Logging", OptionPanel::DebugLogging);
    Rows().addWidget(PerformanceLegend());
    Rows().addStretch();
    connect(&Box("LostCalls"), &QCheckBox::clicked, this, &SystemPage::WarnOfLostCalls);
    connect(&Box("DebugLogging"), &QCheckBox::clicked, this, &SystemPage::WarnOfDebugLogging);
}

void SystemPage::WarnOfLostCalls(bool counted) {
    Program().prompts.Show({"Tallix Reports", counted ? kLostCallsOn : kLostCallsOff});
}

void SystemPage::WarnOfDebugLogging(bool on) {
    if (on) Program().prompts.Show({"Debug Logging", kDebugLogging, MessageIcon::Exclamation});
}

}  // namespace tallix
