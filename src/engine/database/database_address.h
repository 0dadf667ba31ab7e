// Where the database is and which kind of server holds it, with what depends on the kind.
#pragma once

#include <string>
#include <string_view>

namespace tallix {

enum class DatabaseKind { Unknown, MySql, SqlServer, Postgres };

/// The kind that a stored text names: "1" MySQL, "2" SQL Server, "3" PostgreSQL.
DatabaseKind DatabaseKindOf(std::string_view stored);

struct DatabaseAddress {
    DatabaseKind kind = DatabaseKind::Unknown;
    std::string server;  ///< "host", "host:port" or "sqlite:/path/to/file"
    std::string user;
    std::string password;
};

/// The text that a connection is opened with; empty for an unknown kind.
std::string ConnectionText(const DatabaseAddress& address);

/// The delimiter of string literals; the double quote for an unknown kind.
std::string_view StringQuote(DatabaseKind kind);

/// The delimiter of a quoted column name; often empty.
std::string_view IdentifierQuote(DatabaseKind kind);

/// A value between the delimiters of string literals. The value is not escaped: a
/// statement with a value that holds the delimiter fails.
std::string Quoted(DatabaseKind kind, std::string_view value);

}  // namespace tallix
