#include "windows/administration/system_page.h"

#include <QCheckBox>

namespace tallix {
namespace {

struct SystemOption {
    const char* key;
    bool isMarked;  ///< it could make the system slow
};

constexpr SystemOption kOptions[] = {
    {"LostCalls", true}, {"V1Reports", false}, {"CostCompute", true}, {"AreaCode", true}};

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
    QFormLayout& system = AddPanel("System Settings");
    for (const char* key : {"TimeOpen", "TimeClosed"}) AddSetting(system, key);
    for (const auto& [key, isMarked] : kOptions) {
        if (isMarked) {
            AddMarkedSetting(system, key);
        } else {
            AddSetting(system, key);
        }
    }
    AddOptions(system, "Providers");
    AddMarkedSetting(AddPanel("Debug Logging"), "DebugLogging");
    Rows().addWidget(PerformanceLegend());
    Rows().addStretch();
    Box("LostCalls").setToolTip("Select if to include 'lost' calls");
    connect(&Box("LostCalls"), &QCheckBox::clicked, this, &SystemPage::TellOfLostCalls);
    connect(&Box("DebugLogging"), &QCheckBox::clicked, this, &SystemPage::TellOfDebugLogging);
}

void SystemPage::TellOfLostCalls(bool counted) {
    Program().prompts.Show({"Tallix Reports", counted ? kLostCallsOn : kLostCallsOff});
}

void SystemPage::TellOfDebugLogging(bool on) {
    if (on) Program().prompts.Show({"Debug Logging", kDebugLogging, MessageIcon::Exclamation});
}

}  // namespace tallix
