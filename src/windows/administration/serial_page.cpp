#include "windows/administration/serial_page.h"

namespace tallix {

SerialPage::SerialPage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    AddPanel("Serial Settings", OptionPanel::Serial);
    AddCommandPanel(kCommandFiles[0]);
}

}  // namespace tallix
