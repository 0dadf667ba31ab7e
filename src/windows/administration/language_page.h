// Language and Currency.
#pragma once

#include "windows/administration/settings_page.h"

namespace tallix {

class LanguagePage : public SettingsPage {
    Q_OBJECT
public:
    LanguagePage(Application& application, QWidget* parent);
};

}  // namespace tallix
