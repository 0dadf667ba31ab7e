// A set-up from its first step to its last.
#pragma once

#include <iosfwd>

#include "setup/setup_options.h"

namespace tallix {

/// Reaches the database, stores the settings that are absent, records the office suite,
/// lays down the tables that are missing, fills the reference tables, makes the account
/// "Administrator" and adds the demonstration data, a line on `out` for each. Throws what
/// ended it, as a std::exception with one line.
void SetUp(const SetupOptions& options, std::ostream& out);

}  // namespace tallix
