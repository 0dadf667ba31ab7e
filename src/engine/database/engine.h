// What a database server must be able to do for Connection and Recordset. One
// implementation per client library; nothing outside this folder uses it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection_text.h"
#include "database/row_arena.h"

namespace tallix::ado {

/// A whole result. Statements that give no rows have no columns.
struct Result {
    std::vector<std::string> columns;
    RowArena rows;
};

class Engine {
public:
    virtual ~Engine() = default;

    /// Both take a statement in the server's own form and throw DatabaseError with the
    /// server's message when it is refused.
    virtual Result Query(const std::string& statement) = 0;
    virtual std::int64_t Execute(const std::string& statement) = 0;  ///< rows affected

    /// The columns of a table's primary key, as the server spells them; empty without one.
    virtual std::vector<std::string> KeyColumns(const std::string& table) = 0;

    virtual Server Kind() const = 0;
};

/// Connects. Throws DatabaseError with the address and the client's own message.
std::unique_ptr<Engine> OpenEngine(const ConnectionParts& parts);

std::unique_ptr<Engine> OpenSqlite(const ConnectionParts& parts);
std::unique_ptr<Engine> OpenMySql(const ConnectionParts& parts);
std::unique_ptr<Engine> OpenPostgres(const ConnectionParts& parts);
std::unique_ptr<Engine> OpenOdbc(const ConnectionParts& parts);

}  // namespace tallix::ado
