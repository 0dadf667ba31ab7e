// System Settings: office hours, what is counted and shown, and debug logging.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class SystemPage : public SettingsPage {
    Q_OBJECT
public:
    SystemPage(Application& application, QWidget* parent);

private:
    void TellOfLostCalls(bool counted);
    void TellOfDebugLogging(bool on);
};

}  // namespace tallix
