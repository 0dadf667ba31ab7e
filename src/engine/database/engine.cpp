#include "database/engine.h"

#include <fmt/format.h>

#include "failures/errors.h"

namespace tallix::ado {

namespace {

std::unique_ptr<Engine> Connect(const ConnectionParts& parts) {
    if (!parts.driver.empty()) return OpenOdbc(parts);
    switch (parts.server) {
        case Server::Sqlite:
            return OpenSqlite(parts);
        case Server::MySql:
            return OpenMySql(parts);
        case Server::Postgres:
            return OpenPostgres(parts);
        case Server::SqlServer:
            break;
    }
    return OpenOdbc(parts);
}

}  // namespace

std::unique_ptr<Engine> OpenEngine(const ConnectionParts& parts) {
    // The embedded engine's messages name the file.
    if (!parts.file.empty()) return Connect(parts);
    try {
        return Connect(parts);
    } catch (const DatabaseError& failure) {
        const std::string port = parts.port == 0 ? std::string() : fmt::format(":{}", parts.port);
        throw DatabaseError(fmt::format("No connection to the database server at {}{}: {}", parts.host, port,
                                        failure.what()));
    }
}

}  // namespace tallix::ado
