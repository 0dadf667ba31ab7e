#include "windows/administration/language_page.h"

namespace tallix {

LanguagePage::LanguagePage(Application& application, QWidget* parent) : SettingsPage(application, parent) {
    AddPanel("Language and Currency", OptionPanel::Language);
    Rows().addStretch();
}

}  // namespace tallix
