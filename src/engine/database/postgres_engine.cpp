// PostgreSQL through its own client library.
#include <cstdlib>
#include <string_view>

#include <fmt/format.h>
#include <libpq-fe.h>

#include "database/engine.h"
#include "database/statement.h"
#include "failures/errors.h"

namespace tallix::ado {

namespace {

// Rows come in their stored order (a scan starts at the first page and is not divided
// among workers), and quotes in literals mean what the translation takes them to mean.
constexpr const char* kSessionSettings =
    "-c standard_conforming_strings=on -c synchronize_seqscans=off -c max_parallel_workers_per_gather=0";
constexpr const char* kConnectSeconds = "10";

struct CloseConnection {
    void operator()(PGconn* connection) const { PQfinish(connection); }
};
struct ClearResult {
    void operator()(PGresult* result) const { PQclear(result); }
};
using ConnectionHandle = std::unique_ptr<PGconn, CloseConnection>;
using ResultHandle = std::unique_ptr<PGresult, ClearResult>;

/// The client's messages end in a line break.
std::string Trimmed(std::string message) {
    while (!message.empty() && (message.back() == '\n' || message.back() == ' ')) message.pop_back();
    return message;
}

// Begins the result with the columns of a part of it.
Result WithColumnsOf(const PGresult& rows) {
    Result result;
    const int columns = PQnfields(&rows);
    for (int column = 0; column < columns; ++column) result.columns.emplace_back(PQfname(&rows, column));
    result.rows = RowArena(result.columns.size());
    return result;
}

void AppendRow(const PGresult& rows, int row, RowArena& arena) {
    const int columns = PQnfields(&rows);
    for (int column = 0; column < columns; ++column) {
        if (PQgetisnull(&rows, row, column) != 0) {
            arena.AppendNull();
        } else {
            const auto length = static_cast<std::size_t>(PQgetlength(&rows, row, column));
            arena.Append({PQgetvalue(&rows, row, column), length});
        }
    }
}

// What a statement still has to say must be heard before the connection takes the next.
class RestOfAnswer {
public:
    explicit RestOfAnswer(PGconn* connection) : connection_(connection) {}
    ~RestOfAnswer() {
        while (const ResultHandle rest{PQgetResult(connection_)}) {
        }
    }
    RestOfAnswer(const RestOfAnswer&) = delete;
    RestOfAnswer& operator=(const RestOfAnswer&) = delete;

private:
    PGconn* connection_;
};

class PostgresEngine : public Engine {
public:
    explicit PostgresEngine(ConnectionHandle connection) : connection_(std::move(connection)) {}

    Result Query(const std::string& statement) override;
    std::int64_t Execute(const std::string& statement) override;
    std::vector<std::string> KeyColumns(const std::string& table) override;
    Server Kind() const override { return Server::Postgres; }

private:
    void RequireText(const std::string& statement) const;
    void Require(const PGresult& result) const;
    [[noreturn]] void Refused() const { throw DatabaseError(Trimmed(PQerrorMessage(connection_.get()))); }

    ConnectionHandle connection_;
};

void PostgresEngine::RequireText(const std::string& statement) const {
    if (statement.find('\0') != std::string::npos) throw DatabaseError("The statement holds a zero byte");
}

void PostgresEngine::Require(const PGresult& result) const {
    const ExecStatusType status = PQresultStatus(&result);
    if (status == PGRES_EMPTY_QUERY) throw DatabaseError("The statement is empty");
    if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK && status != PGRES_SINGLE_TUPLE) Refused();
}

std::int64_t PostgresEngine::Execute(const std::string& statement) {
    RequireText(statement);
    const ResultHandle result(PQexec(connection_.get(), statement.c_str()));
    if (!result) Refused();
    Require(*result);
    return std::strtoll(PQcmdTuples(result.get()), nullptr, 10);
}

// Rows come one by one: collected by the client library first they would take several
// times their text. Of several statements the last one's rows count.
Result PostgresEngine::Query(const std::string& statement) {
    RequireText(statement);
    if (PQsendQuery(connection_.get(), statement.c_str()) == 0) Refused();
    PQsetSingleRowMode(connection_.get());
    const RestOfAnswer rest(connection_.get());
    Result result;
    bool goesOn = false;
    while (const ResultHandle part{PQgetResult(connection_.get())}) {
        Require(*part);
        if (!goesOn) result = WithColumnsOf(*part);
        for (int row = 0; row < PQntuples(part.get()); ++row) AppendRow(*part, row, result.rows);
        goesOn = PQresultStatus(part.get()) == PGRES_SINGLE_TUPLE;
    }
    result.rows.Finish();
    return result;
}

std::vector<std::string> PostgresEngine::KeyColumns(const std::string& table) {
    const Result keys =
        Query(fmt::format("SELECT a.attname FROM pg_index i JOIN LATERAL unnest(i.indkey) WITH ORDINALITY "
                          "k(number, place) ON true "
                          "JOIN pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = k.number "
                          "WHERE i.indisprimary AND i.indrelid = to_regclass({}) ORDER BY k.place",
                          QuoteText(table, Kind())));
    std::vector<std::string> columns;
    for (std::int64_t row = 0; row < keys.rows.Rows(); ++row)
        columns.emplace_back(keys.rows.At(row, 0).value_or(""));
    return columns;
}

}  // namespace

std::unique_ptr<Engine> OpenPostgres(const ConnectionParts& parts) {
    const std::string port = parts.port == 0 ? std::string() : std::to_string(parts.port);
    const char* const keys[] = {"host",
                                "port",
                                "dbname",
                                "user",
                                "password",
                                "connect_timeout",
                                "options",
                                "client_encoding",
                                "application_name",
                                nullptr};
    const char* const values[] = {parts.host.c_str(),
                                  port.c_str(),
                                  parts.database.c_str(),
                                  parts.user.c_str(),
                                  parts.password.c_str(),
                                  kConnectSeconds,
                                  kSessionSettings,
                                  "UTF8",
                                  "Tallix",
                                  nullptr};
    ConnectionHandle connection(PQconnectdbParams(keys, values, 0));
    if (PQstatus(connection.get()) != CONNECTION_OK) {
        throw DatabaseError(Trimmed(PQerrorMessage(connection.get())));
    }
    PQsetNoticeProcessor(
        connection.get(), [](void*, const char*) {}, nullptr);
    return std::make_unique<PostgresEngine>(std::move(connection));
}

}  // namespace tallix::ado
