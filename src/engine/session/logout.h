// How a session is shown and left, whichever window does it.
#pragma once

#include <filesystem>
#include <string>

#include "session/application.h"

namespace tallix {

/// "Connected To: ... As User: ..."
std::string ConnectedLine(const Session& session);

/// Notes that the person has left. Ignores every failure: one can leave even with the
/// database gone.
void NoteLoggedOut(Application& application);

/// Deletes what the update check may have left in the application folder, if anything.
void DeleteLeftovers(const std::filesystem::path& applicationFolder);

}  // namespace tallix
