#include "floors.h"

#include <libpq-fe.h>
#include <mysql.h>
#include <sqlite3.h>

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace tallix::bench {

namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;
constexpr unsigned kMySqlPort = 3306;
constexpr int kPostgresPort = 5432;

class BareSqlite : public BareClient {
public:
    explicit BareSqlite(const std::string& file) {
        if (sqlite3_open(file.c_str(), &database_) != SQLITE_OK) throw std::runtime_error(file);
        BareSqlite::Execute("PRAGMA synchronous=NORMAL");
    }
    ~BareSqlite() override { sqlite3_close(database_); }

    std::int64_t Fetch(const std::string& statement) override {
        sqlite3_stmt* rows = nullptr;
        Check(sqlite3_prepare_v2(database_, statement.c_str(), -1, &rows, nullptr));
        const int columns = sqlite3_column_count(rows);
        std::int64_t bytes = 0;
        while (sqlite3_step(rows) == SQLITE_ROW) {
            for (int i = 0; i < columns; ++i) {
                sqlite3_column_text(rows, i);
                bytes += sqlite3_column_bytes(rows, i);
            }
        }
        Check(sqlite3_finalize(rows));
        return bytes;
    }

    void Execute(const std::string& statement) override {
        Check(sqlite3_exec(database_, statement.c_str(), nullptr, nullptr, nullptr));
    }

private:
    void Check(int result) {
        if (result != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database_));
    }

    sqlite3* database_ = nullptr;
};

class BareMySql : public BareClient {
public:
    explicit BareMySql(const ado::ConnectionParts& parts) : connection_(mysql_init(nullptr)) {
        const unsigned port = parts.port == 0 ? kMySqlPort : static_cast<unsigned>(parts.port);
        if (!mysql_real_connect(connection_, parts.host.c_str(), parts.user.c_str(), parts.password.c_str(),
                                parts.database.c_str(), port, nullptr, 0)) {
            throw std::runtime_error(mysql_error(connection_));
        }
        mysql_set_character_set(connection_, "utf8mb4");
    }
    ~BareMySql() override { mysql_close(connection_); }

    std::int64_t Fetch(const std::string& statement) override {
        Execute(statement);
        MYSQL_RES* rows = mysql_use_result(connection_);
        const unsigned columns = mysql_num_fields(rows);
        std::int64_t bytes = 0;
        while (mysql_fetch_row(rows)) {
            const unsigned long* lengths = mysql_fetch_lengths(rows);
            for (unsigned i = 0; i < columns; ++i) bytes += static_cast<std::int64_t>(lengths[i]);
        }
        mysql_free_result(rows);
        return bytes;
    }

    void Execute(const std::string& statement) override {
        if (mysql_real_query(connection_, statement.data(), statement.size()) != 0) {
            throw std::runtime_error(mysql_error(connection_));
        }
    }

private:
    MYSQL* connection_;
};

class BarePostgres : public BareClient {
public:
    explicit BarePostgres(const ado::ConnectionParts& parts) {
        const std::string port = std::to_string(parts.port == 0 ? kPostgresPort : parts.port);
        connection_ = PQsetdbLogin(parts.host.c_str(), port.c_str(), nullptr, nullptr, parts.database.c_str(),
                                   parts.user.c_str(), parts.password.c_str());
        if (PQstatus(connection_) != CONNECTION_OK) throw std::runtime_error(PQerrorMessage(connection_));
    }
    ~BarePostgres() override { PQfinish(connection_); }

    std::int64_t Fetch(const std::string& statement) override {
        PQsendQuery(connection_, statement.c_str());
        PQsetSingleRowMode(connection_);
        std::int64_t bytes = 0;
        while (PGresult* row = PQgetResult(connection_)) {
            const int columns = PQnfields(row);
            for (int i = 0; i < columns && PQntuples(row) > 0; ++i) bytes += PQgetlength(row, 0, i);
            PQclear(row);
        }
        return bytes;
    }

    void Execute(const std::string& statement) override {
        PGresult* result = PQexec(connection_, statement.c_str());
        const bool done = PQresultStatus(result) == PGRES_COMMAND_OK;
        PQclear(result);
        if (!done) throw std::runtime_error(PQerrorMessage(connection_));
    }

private:
    PGconn* connection_ = nullptr;
};

}  // namespace

std::unique_ptr<BareClient> OpenBareClient(const ado::ConnectionParts& parts) {
    switch (parts.server) {
        case ado::Server::Sqlite:
            return std::make_unique<BareSqlite>(parts.file);
        case ado::Server::MySql:
            return std::make_unique<BareMySql>(parts);
        case ado::Server::Postgres:
            return std::make_unique<BarePostgres>(parts);
        case ado::Server::SqlServer:
            break;
    }
    throw std::runtime_error("no bare client for this server");
}

void WriteBytes(const std::string& file, std::int64_t bytes) {
    const std::vector<char> piece(kPiece, 'x');
    std::FILE* target = std::fopen(file.c_str(), "wb");
    if (!target) throw std::runtime_error("cannot write " + file);
    for (; bytes > 0; bytes -= static_cast<std::int64_t>(kPiece)) {
        const auto part = std::min<std::int64_t>(bytes, kPiece);
        std::fwrite(piece.data(), 1, static_cast<std::size_t>(part), target);
    }
    std::fclose(target);
}

}  // namespace tallix::bench
