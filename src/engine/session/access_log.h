// Who did what: one row in tbllogging for each action that changes the system or
// produces a report.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/clock.h"
#include "session/session.h"

namespace tallix {

/// Adds a row with the current date, the hours and minutes, the session's user and
/// the event. The session's connection must be open. Throws DatabaseError.
void WriteLog(Session& session, const Clock& clock, std::string_view event);

/// Opens the database for one such row and closes it, whatever of that fails: what is
/// noted here goes on without its row.
void LogOnItsOwn(Session& session, const Clock& clock, std::string_view event);

// What follows opens the database for itself and closes it. Throws DatabaseError.

/// Date, Time, User and Data. NULL reads as the empty text.
using AccessLogRow = std::vector<std::string>;

/// All rows in the table's own order.
std::vector<AccessLogRow> ReadAccessLog(Session& session);

/// Adds a line for each row to the file AccessLog.txt in the application folder: the four
/// values with commas between them, in Windows-1252. What the file holds stays; with no
/// rows it is not touched. Throws std::runtime_error when it cannot be written.
void ExportAccessLog(Session& session, const std::filesystem::path& applicationFolder);

/// Deletes all rows and adds one that says so.
void ClearAccessLog(Session& session, const Clock& clock);

}  // namespace tallix
