// Network: how the Collector reads a telephone system over the network, and the way to the
// Internet.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class NetworkPage : public SettingsPage {
    Q_OBJECT
public:
    NetworkPage(Application& application, QWidget* parent);
};

}  // namespace tallix
