// System Settings: office hours, what is counted and shown, and debug logging.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class SystemPage : public SettingsPage {
    Q_OBJECT
public:
    SystemPage(Application& application, QWidget* parent);

private:
    void WarnOfLostCalls(bool counted);
    void WarnOfDebugLogging(bool on);
};

}  // namespace tallix
