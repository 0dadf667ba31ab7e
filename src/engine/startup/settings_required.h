// What is asked for when no database address is stored: the address.
#pragma once

#include <functional>
#include <string>

#include "session/application.h"

namespace tallix {

/// Whether an address can be saved. Looks at its form alone; no server is asked.
bool IsDatabaseAddress(const std::string& text);

/// Stores the address for the next start: the session of this run keeps its own, empty
/// one. Then tests for the folders of the installation; each that is missing has its
/// message, and `onMissing` is called after it.
void SaveDatabaseAddress(Application& application, const std::string& address,
                         const std::function<void()>& onMissing);

}  // namespace tallix
