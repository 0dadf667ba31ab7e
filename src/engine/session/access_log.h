// Who did what: one row in tbllogging for each action that changes the system or
// produces a report.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "database/database_scope.h"
#include "host/clock.h"
#include "session/session.h"

namespace tallix {

/// Adds a row with the current date, the hours and minutes, the session's user and
/// the event. Throws DatabaseError.
void WriteLog(const DatabaseScope& database, const Session& session, const Clock& clock,
              std::string_view event);

/// Opens the database for one such row and closes it. Ignores failures of the database: the
/// action goes on without its row.
void LogOnItsOwn(const Session& session, const Clock& clock, std::string_view event);

// These open the database themselves and close it. They throw DatabaseError.

/// Date, Time, User and Data. NULL reads as the empty text.
using AccessLogRow = std::vector<std::string>;

/// All rows in the table's own order.
std::vector<AccessLogRow> ReadAccessLog(const Session& session);

/// Adds a line for each row to the file AccessLog.txt in the application folder: the four
/// values with commas between them, in Windows-1252. What the file holds stays; with no
/// rows it is not touched. Throws std::runtime_error when it cannot be written.
void ExportAccessLog(const Session& session, const std::filesystem::path& applicationFolder);

/// Deletes all rows and adds one that says so.
void ClearAccessLog(const Session& session, const Clock& clock);

}  // namespace tallix
