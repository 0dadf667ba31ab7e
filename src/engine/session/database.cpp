#include "session/database.h"

namespace tallix {

void OpenDatabase(Session& session) {
    if (session.database.kind == DatabaseKind::Unknown) return;
    CloseDatabase(session);
    session.DBConn = DatabaseScope(session.database);
}

void CloseDatabase(Session& session) noexcept {
    session.DBConn = DatabaseScope();
}

ado::Connection& OpenConnection(Session& session) {
    return session.DBConn.Connection();
}

std::string Quoted(const Session& session, std::string_view value) {
    return Quoted(session.database.kind, value);
}

}  // namespace tallix
