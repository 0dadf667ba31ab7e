// MariaDB and MySQL through MariaDB's client library.
#include <mysql.h>

#include <fmt/format.h>

#include "database/engine.h"
#include "database/statement.h"
#include "failures/errors.h"

namespace tallix::ado {

namespace {

constexpr unsigned int kConnectSeconds = 10;

/// The whole mode: backslashes are characters like any other, double quotes delimit
/// literals, and a wrong value is not refused.
constexpr const char* kSessionMode = "SET sql_mode = 'NO_BACKSLASH_ESCAPES'";

struct CloseConnection {
    void operator()(MYSQL* connection) const { mysql_close(connection); }
};
struct FreeResult {
    void operator()(MYSQL_RES* result) const { mysql_free_result(result); }
};
using ConnectionHandle = std::unique_ptr<MYSQL, CloseConnection>;
using ResultHandle = std::unique_ptr<MYSQL_RES, FreeResult>;

class MySqlEngine : public Engine {
public:
    explicit MySqlEngine(ConnectionHandle connection) : connection_(std::move(connection)) {}

    Result Query(const std::string& statement) override;
    std::int64_t Execute(const std::string& statement) override;
    std::vector<std::string> KeyColumns(const std::string& table) override;
    Server Kind() const override { return Server::MySql; }

private:
    ResultHandle Send(const std::string& statement);
    void FetchRows(MYSQL_RES& rows, RowArena& arena);
    [[noreturn]] void Refused() const { throw DatabaseError(mysql_error(connection_.get())); }

    ConnectionHandle connection_;
};

/// The statement's rows, unbuffered; nothing for a statement that gives none.
ResultHandle MySqlEngine::Send(const std::string& statement) {
    if (mysql_real_query(connection_.get(), statement.data(), statement.size()) != 0) Refused();
    ResultHandle rows(mysql_use_result(connection_.get()));
    if (!rows && mysql_errno(connection_.get()) != 0) Refused();
    return rows;
}

std::int64_t MySqlEngine::Execute(const std::string& statement) {
    // Rows that nobody asked for are read off with the handle.
    if (Send(statement)) return 0;
    return static_cast<std::int64_t>(mysql_affected_rows(connection_.get()));
}

Result MySqlEngine::Query(const std::string& statement) {
    Result result;
    const ResultHandle rows = Send(statement);
    if (!rows) return result;
    const unsigned int columns = mysql_num_fields(rows.get());
    const MYSQL_FIELD* fields = mysql_fetch_fields(rows.get());
    for (unsigned int column = 0; column < columns; ++column) {
        result.columns.emplace_back(fields[column].name, fields[column].name_length);
    }
    result.rows = RowArena(columns);
    FetchRows(*rows, result.rows);
    return result;
}

void MySqlEngine::FetchRows(MYSQL_RES& rows, RowArena& arena) {
    const std::size_t columns = arena.Columns();
    while (const MYSQL_ROW row = mysql_fetch_row(&rows)) {
        const unsigned long* lengths = mysql_fetch_lengths(&rows);
        for (std::size_t column = 0; column < columns; ++column) {
            if (row[column] == nullptr) {
                arena.AppendNull();
            } else {
                arena.Append({row[column], lengths[column]});
            }
        }
    }
    if (mysql_errno(connection_.get()) != 0) Refused();
    arena.Finish();
}

// Without a primary key, the first unique key identifies rows as well.
std::vector<std::string> MySqlEngine::KeyColumns(const std::string& table) {
    const Result keys = Query(
        fmt::format("SELECT index_name, column_name FROM information_schema.statistics "
                    "WHERE table_schema = DATABASE() AND LOWER(table_name) = LOWER({}) AND non_unique = 0 "
                    "ORDER BY index_name <> 'PRIMARY', index_name, seq_in_index",
                    QuoteText(table, Kind())));
    std::vector<std::string> columns;
    for (std::int64_t row = 0; row < keys.rows.Rows(); ++row) {
        if (keys.rows.At(row, 0) == keys.rows.At(0, 0))
            columns.emplace_back(keys.rows.At(row, 1).value_or(""));
    }
    return columns;
}

ConnectionHandle Prepare(const ConnectionParts& parts) {
    ConnectionHandle connection(mysql_init(nullptr));
    if (!connection) throw DatabaseError("No memory for a connection to the MySQL server");
    MYSQL* options = connection.get();
    mysql_options(options, MYSQL_OPT_CONNECT_TIMEOUT, &kConnectSeconds);
    mysql_options(options, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    mysql_options(options, MYSQL_INIT_COMMAND, kSessionMode);
    // The name "localhost" means the local socket to the client, which has no port.
    const unsigned int protocol = MYSQL_PROTOCOL_TCP;
    if (parts.port != 0) mysql_options(options, MYSQL_OPT_PROTOCOL, &protocol);
    return connection;
}

}  // namespace

std::unique_ptr<Engine> OpenMySql(const ConnectionParts& parts) {
    ConnectionHandle connection = Prepare(parts);
    // An update counts the rows that it finds, changed or not, as on the other servers.
    if (mysql_real_connect(connection.get(), parts.host.c_str(), parts.user.c_str(), parts.password.c_str(),
                           parts.database.c_str(), static_cast<unsigned int>(parts.port), nullptr,
                           CLIENT_FOUND_ROWS) == nullptr) {
        throw DatabaseError(mysql_error(connection.get()));
    }
    return std::make_unique<MySqlEngine>(std::move(connection));
}

}  // namespace tallix::ado
