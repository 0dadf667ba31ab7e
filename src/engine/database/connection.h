// A connection to the one SQL database, whichever server holds it.
//
//     ado::Connection connection;
//     connection.ConnectionString = "DRIVER={MySQL ODBC 5.1 Driver};SERVER=...";
//     connection.Open();
//     connection.Execute("DELETE FROM tblcostcount");
//
// Statements come in the one form that the program writes; Translate in
// ado/statement.h says what happens to them on their way. No transaction is begun.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "database/engine.h"

namespace tallix::ado {

class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    std::string ConnectionString;

    /// Throws DatabaseError when the text is not understood or the server not reached.
    void Open();

    /// Harmless when closed. Recordsets keep the rows they have.
    void Close() noexcept;

    bool IsOpen() const { return engine_ != nullptr; }

    /// Runs a statement and returns the number of rows affected. Throws DatabaseError.
    std::int64_t Execute(std::string_view statement);

    /// Runs a statement and fetches its rows. Recordset's own way in.
    Result Fetch(std::string_view statement);

    /// The server of an open connection. Throws DatabaseError when closed.
    Engine& Server() const;

private:
    std::unique_ptr<Engine> engine_;
};

}  // namespace tallix::ado
