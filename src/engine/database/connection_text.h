// The connection texts of the three dialects, read into their parts.
#pragma once

#include <string>
#include <string_view>

namespace tallix::ado {

enum class Server { Sqlite, MySql, Postgres, SqlServer };

struct ConnectionParts {
    Server server = Server::Sqlite;  ///< what answers; Sqlite for every "sqlite:" address
    std::string host;                ///< without the port
    int port = 0;                    ///< 0 for the server's own default
    std::string file;                ///< the database file, Sqlite only
    std::string database;
    std::string user;
    std::string password;
    std::string driver;  ///< an ODBC driver's name, where the text names one that no native engine serves
};

/// Reads "DRIVER={MySQL ODBC 5.1 Driver};SERVER=...;..." and its kin. SERVER is
/// "host", "host:port" or "sqlite:/path/to/file". A driver that no native engine serves
/// is taken over by its name, for ODBC. Throws DatabaseError for a text that names neither
/// a driver nor a known provider.
ConnectionParts ReadConnectionText(std::string_view text);

}  // namespace tallix::ado
