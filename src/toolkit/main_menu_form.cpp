#include "toolkit/main_menu_form.h"

#include "toolkit/form_names.h"

namespace tallix::toolkit {

const char* MainMenuForm(const Session& session) {
    return session.UseStatsMain ? kStatisticsForm : kMainForm;
}

void ShowMainMenu(Forms& forms, const Session& session) {
    forms.Show(MainMenuForm(session));
}

}  // namespace tallix::toolkit
