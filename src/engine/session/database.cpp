#include "session/database.h"

#include <algorithm>
#include <array>

#include "failures/errors.h"

namespace tallix {

namespace {

struct Dialect {
    std::string_view dbType;
    std::string_view connectionHead;  ///< up to the address
    std::string_view database;
    std::string_view stringQuote;
    std::string_view idQuote;
};

// The drivers and the option number are those of the installed systems, whose texts stay.
constexpr std::string_view kConnectionTail = ";OPTION=165932";

// PostgreSQL takes quotes the other way round than it is asked to here; the statement
// translation sets them right.
constexpr std::array kDialects{
    Dialect{"1", "DRIVER={MySQL ODBC 5.1 Driver};SERVER=", "TALLIX", "\"", ""},
    Dialect{"2", "PROVIDER=SQLNCLI.1;SERVER=", "TALLIX", "'", ""},
    Dialect{"3", "DRIVER={PostgreSQL ANSI};SERVER=", "tallix", "\"", "'"},
};

const Dialect* FindDialect(std::string_view dbType) {
    const auto found = std::find_if(kDialects.begin(), kDialects.end(),
                                    [&](const Dialect& dialect) { return dialect.dbType == dbType; });
    return found == kDialects.end() ? nullptr : &*found;
}

}  // namespace

std::string StringQuote(std::string_view dbType) {
    const Dialect* dialect = FindDialect(dbType);
    return dialect ? std::string(dialect->stringQuote) : "\"";
}

std::string ConnectionText(const Session& session) {
    const Dialect* dialect = FindDialect(session.DBType);
    if (!dialect) return {};
    std::string text(dialect->connectionHead);
    text += session.DBIP;
    text.append(";DATABASE=").append(dialect->database);
    text += ";UID=" + session.SQLUser + ";PWD=" + session.SQLPass;
    return text.append(kConnectionTail);
}

void OpenDatabase(Session& session) {
    const Dialect* dialect = FindDialect(session.DBType);
    if (!dialect) return;
    CloseDatabase(session);
    auto connection = std::make_unique<ado::Connection>();
    connection->ConnectionString = ConnectionText(session);
    connection->Open();
    session.DBConn = std::move(connection);
    session.IdQuote = dialect->idQuote;
}

void CloseDatabase(Session& session) noexcept {
    session.DBConn.reset();
}

ado::Connection& OpenConnection(Session& session) {
    if (!session.DBConn || !session.DBConn->IsOpen()) throw DatabaseError("The database is not open");
    return *session.DBConn;
}

std::string Quoted(const Session& session, std::string_view value) {
    std::string quoted = session.StrQuote;
    quoted += value;
    return quoted + session.StrQuote;
}

}  // namespace tallix
