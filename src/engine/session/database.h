// The connection of one action. Every action opens the database, runs its
// statements and closes it again; no connection outlives an action.
#pragma once

#include <string>
#include <string_view>

#include "session/session.h"

namespace tallix {

/// The delimiter of string literals for a dialect; the double quote for an unknown one.
std::string StringQuote(std::string_view dbType);

/// The text that a connection of the session's dialect is opened with; empty for an
/// unknown dialect.
std::string ConnectionText(const Session& session);

/// Opens session.DBConn, replacing one that is open, and sets IdQuote. Does nothing
/// for an unknown dialect. Throws DatabaseError when the server cannot be reached.
void OpenDatabase(Session& session);

/// Closes session.DBConn and drops it. Never fails; harmless with no connection.
void CloseDatabase(Session& session) noexcept;

/// The open connection. Throws DatabaseError when there is none.
ado::Connection& OpenConnection(Session& session);

/// A value between the session's literal delimiters. The value is not escaped: one
/// that holds the delimiter breaks its statement, which then fails.
std::string Quoted(const Session& session, std::string_view value);

}  // namespace tallix
