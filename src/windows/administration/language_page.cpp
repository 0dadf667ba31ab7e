#include "windows/administration/language_page.h"

namespace tallix {

LanguagePage::LanguagePage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    QFormLayout& panel = AddPanel("Language and Currency");
    AddOptions(panel, "Lang");
    AddSetting(panel, "Currency");
    Rows().addStretch();
}

}  // namespace tallix
