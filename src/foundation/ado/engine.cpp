#include "foundation/ado/engine.h"

namespace tallix::ado {

std::unique_ptr<Engine> OpenEngine(const ConnectionParts& parts) {
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

}  // namespace tallix::ado
