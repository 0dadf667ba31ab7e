// The settings that the program only reads and therefore somebody must have written:
// which database, and the colours of its report pages.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <string>

#include "settings/settings_store.h"
#include "setup/setup_options.h"

namespace tallix {

/// The database that a set-up works on.
struct DatabaseChoice {
    std::string type;
    std::string address;
    std::string user;
    std::string password;
};

/// What the options say, else what is stored, else the default. The path of a database
/// file becomes absolute, so that it holds from whichever folder the program runs.
DatabaseChoice ChooseDatabase(const SetupOptions& options, const SettingsStore& settings,
                              const std::filesystem::path& applicationFolder);

/// Stores what is absent and says so; what is there stays. To be called after the
/// database was reached, so that a wrong address is never stored. Throws SetupError
/// when a setting cannot be written.
void SeedSettings(const DatabaseChoice& choice, const SettingsStore& settings, std::ostream& out);

}  // namespace tallix
