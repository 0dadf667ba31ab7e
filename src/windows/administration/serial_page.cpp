#include "windows/administration/serial_page.h"

namespace tallix {
namespace {

constexpr const char* kKeys[] = {"CommMethod",   "SwitchComm", "SwitchBaud",
                                 "SwitchParity", "SwitchBits", "SwitchStop"};

}  // namespace

SerialPage::SerialPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QFormLayout& panel = AddPanel("Serial Settings");
    for (const char* key : kKeys) AddSetting(panel, key);
    AddCommandPanel(kCommandFiles[0]);
}

}  // namespace tallix
