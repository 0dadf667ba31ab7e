// Shows the main menu again, for the windows that were opened from it.
#pragma once

#include "session/session.h"
#include "toolkit/forms.h"

namespace tallix::toolkit {

/// The name of the form that is the main menu of this session.
const char* MainMenuForm(const Session& session);

/// Shows the main menu, and loads it first where needed.
void ShowMainMenu(Forms& forms, const Session& session);

}  // namespace tallix::toolkit
