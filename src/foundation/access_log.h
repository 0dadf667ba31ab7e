// Who did what: one row in tbllogging for each action that changes the system or
// produces a report.
#pragma once

#include <string_view>

#include "foundation/clock.h"
#include "foundation/session.h"

namespace tallix {

/// Adds a row with the current date, the hours and minutes, the session's user and
/// the event. The session's connection must be open. Throws DatabaseError.
void WriteLog(Session& session, const Clock& clock, std::string_view event);

}  // namespace tallix
