// The way back to the main menu, for every window that hid it.
#pragma once

#include "session/session.h"
#include "toolkit/forms.h"

namespace tallix::toolkit {

/// The name of the form that is the main menu of this session.
const char* MainMenuForm(const Session& session);

/// Shows it, loading it where it is not.
void ShowMainMenu(Forms& forms, const Session& session);

}  // namespace tallix::toolkit
