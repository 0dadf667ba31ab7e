// "Save and Exit" of the Options window. A step that fails ends the save, and nothing of what
// follows is done. The extensions are then missing from the database until the next save.
#pragma once

#include <vector>

#include "administration/extensions.h"
#include "administration/options_settings.h"

namespace tallix {

enum class AutomaticBackup { On, Off };

/// What is on the screen when the window is saved.
struct OptionsOnScreen {
    OptionsValues values;
    std::vector<Extension> extensions{};
    AutomaticBackup automaticBackup = AutomaticBackup::On;  ///< makes or removes the backup task
};

/// Failures of the settings store show their message and stop nothing; everything else is
/// thrown.
void SaveOptions(Application& application, const OptionsOnScreen& screen);

}  // namespace tallix
