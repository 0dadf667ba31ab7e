// The connection of one action, kept in the session.
#pragma once

#include <string>
#include <string_view>

#include "session/session.h"

namespace tallix {

/// Opens session.DBConn, replacing one that is open. Does nothing for an unknown kind of
/// database. Throws DatabaseError when the server cannot be reached.
void OpenDatabase(Session& session);

/// Closes session.DBConn. Never fails; harmless with no connection.
void CloseDatabase(Session& session) noexcept;

/// The open connection. Throws DatabaseError when there is none.
ado::Connection& OpenConnection(Session& session);

/// A value between the delimiters of string literals of the session's database.
std::string Quoted(const Session& session, std::string_view value);

}  // namespace tallix
