// "Save and Exit" of the Options window, step by step. A step that fails ends the save
// where it is, with nothing of what follows done; the extensions are then missing from the
// database until the next save.
#pragma once

#include <array>
#include <vector>

#include "administration/extensions.h"
#include "administration/options_settings.h"

namespace tallix {

/// What is on the screen when the window is saved.
struct OptionsOnScreen {
    OptionsValues values;
    std::vector<Extension> extensions{};
    bool automaticBackup = true;  ///< whether the backup task is made or removed
};

using SaveStep = void (*)(Application& application, const OptionsOnScreen& screen);

/// The steps in their order, up to the message that all is saved. Failures of the settings
/// store show their message and stop nothing; everything else is thrown.
extern const std::array<SaveStep, 10> kSaveSteps;

/// Takes them all.
void SaveOptions(Application& application, const OptionsOnScreen& screen);

}  // namespace tallix
