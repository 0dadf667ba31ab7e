#include "ui/main_menu_form.h"

#include "foundation/form_names.h"

namespace tallix::ui {

const char* MainMenuForm(const Session& session) {
    return session.UseStatsMain ? kStatisticsForm : kMainForm;
}

void ShowMainMenu(Forms& forms, const Session& session) {
    forms.Show(MainMenuForm(session));
}

}  // namespace tallix::ui
