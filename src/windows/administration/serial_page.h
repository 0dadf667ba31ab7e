// Serial Port: how the Collector reads a telephone system through a serial port.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class SerialPage : public SettingsPage {
    Q_OBJECT
public:
    SerialPage(Application& application, QWidget* parent);
};

}  // namespace tallix
