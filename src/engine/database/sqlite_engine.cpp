// The embedded engine: one file, no server.
//
// The file must exist; an empty one is a database without tables. Connections of several
// processes may be open at once, readers never wait for a writer (write-ahead log).
#include <sqlite3.h>

#include <filesystem>

#include "database/engine.h"
#include "database/statement.h"
#include "failures/errors.h"

namespace tallix::ado {

namespace {

constexpr int kBusyTimeoutMilliseconds = 10'000;

// Binary comparison is the engine's default; the rest of the common sense of statements
// is laid down here. The cache size is in KiB when negative.
constexpr const char* kSettings =
    "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; PRAGMA case_sensitive_like=ON; PRAGMA "
    "cache_size=-8000";

class SqliteEngine final : public Engine {
public:
    explicit SqliteEngine(const std::string& file);

    Result Query(const std::string& statement) override;
    std::int64_t Execute(const std::string& statement) override;
    std::vector<std::string> KeyColumns(const std::string& table) override;
    Server Kind() const override { return Server::Sqlite; }

private:
    struct CloseDatabase {
        void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
    };
    struct FinalizeStatement {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    using Prepared = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

    [[noreturn]] void Fail(const std::string& doing) const;
    Prepared Prepare(const std::string& statement) const;
    bool Step(const Prepared& prepared, const std::string& statement) const;

    std::unique_ptr<sqlite3, CloseDatabase> database_;
};

void CheckFile(const std::string& file) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) {
        throw DatabaseError("There is no database file \"" + file + "\"");
    }
}

// The engine's own message says where a statement is wrong; the statement itself is
// quoted only so far as it fits a line.
std::string Shortened(const std::string& statement) {
    constexpr std::size_t kShown = 200;
    return statement.size() <= kShown ? statement : statement.substr(0, kShown) + "...";
}

bool HasMore(const char* tail) {
    for (const Token& token : Tokenise(tail)) {
        if (token.kind != TokenKind::Blank && token.text != ";") return true;
    }
    return false;
}

SqliteEngine::SqliteEngine(const std::string& file) {
    CheckFile(file);
    sqlite3* database = nullptr;
    const int outcome =
        sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(database);
    if (outcome != SQLITE_OK) Fail("Opening \"" + file + "\"");
    sqlite3_busy_timeout(database, kBusyTimeoutMilliseconds);
    sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);  // "x" is a name, never a text
    if (sqlite3_exec(database, kSettings, nullptr, nullptr, nullptr) != SQLITE_OK)
        Fail("Opening \"" + file + "\"");
}

void SqliteEngine::Fail(const std::string& doing) const {
    throw DatabaseError(doing + ": " + sqlite3_errmsg(database_.get()));
}

SqliteEngine::Prepared SqliteEngine::Prepare(const std::string& statement) const {
    sqlite3_stmt* prepared = nullptr;
    const char* tail = nullptr;
    const int size = static_cast<int>(statement.size()) + 1;
    if (sqlite3_prepare_v2(database_.get(), statement.c_str(), size, &prepared, &tail) != SQLITE_OK) {
        Fail(Shortened(statement));
    }
    Prepared result(prepared);
    if (!result) throw DatabaseError("The statement is empty");
    if (HasMore(tail)) throw DatabaseError(Shortened(statement) + ": more than one statement");
    return result;
}

// Whether there is a row.
bool SqliteEngine::Step(const Prepared& prepared, const std::string& statement) const {
    const int outcome = sqlite3_step(prepared.get());
    if (outcome != SQLITE_ROW && outcome != SQLITE_DONE) Fail(Shortened(statement));
    return outcome == SQLITE_ROW;
}

// Read as bytes, a text is not copied to be given a closing NUL; numbers become text.
void AppendCell(RowArena& rows, sqlite3_value* value) {
    if (sqlite3_value_type(value) == SQLITE_NULL) {
        rows.AppendNull();
        return;
    }
    const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
    rows.Append({bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))});
}

Result SqliteEngine::Query(const std::string& statement) {
    const Prepared prepared = Prepare(statement);
    const int columns = sqlite3_column_count(prepared.get());
    Result result;
    for (int column = 0; column < columns; ++column) {
        result.columns.emplace_back(sqlite3_column_name(prepared.get(), column));
    }
    result.rows = RowArena(result.columns.size());
    while (Step(prepared, statement)) {
        for (int column = 0; column < columns; ++column) {
            AppendCell(result.rows, sqlite3_column_value(prepared.get(), column));
        }
    }
    result.rows.Finish();
    return result;
}

std::int64_t SqliteEngine::Execute(const std::string& statement) {
    const Prepared prepared = Prepare(statement);
    const sqlite3_int64 before = sqlite3_total_changes64(database_.get());
    while (Step(prepared, statement)) {
    }
    return sqlite3_total_changes64(database_.get()) - before;
}

std::vector<std::string> SqliteEngine::KeyColumns(const std::string& table) {
    const Result keys = Query("SELECT name FROM pragma_table_info(" + QuoteText(table, Server::Sqlite) +
                              ") WHERE pk > 0 ORDER BY pk");
    std::vector<std::string> columns;
    for (std::int64_t row = 0; row < keys.rows.Rows(); ++row) columns.emplace_back(*keys.rows.At(row, 0));
    return columns;
}

}  // namespace

std::unique_ptr<Engine> OpenSqlite(const ConnectionParts& parts) {
    return std::make_unique<SqliteEngine>(parts.file);
}

}  // namespace tallix::ado
