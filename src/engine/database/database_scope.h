// The database for the time of one action: a scope opens the connection, and leaving it
// closes the connection. Functions that run statements take the scope as an argument.
//
//     DatabaseScope database(session.database);
//     for (const ado::Row site : database.Query("select * from tblsite")) Use(site.Text("Name"));
//     database.Execute("DELETE FROM tblcosts WHERE Number = " + database.Quoted(number));
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "database/connection.h"
#include "database/database_address.h"
#include "database/recordset.h"
#include "database/rows.h"

namespace tallix {

class DatabaseScope {
public:
    /// A scope without a connection: each of its statements throws DatabaseError.
    DatabaseScope() = default;

    /// Opens the connection. A scope of an unknown kind stays without one. Throws
    /// DatabaseError when the server cannot be reached.
    explicit DatabaseScope(const DatabaseAddress& address);

    /// For routines that continue on errors: the open scope or, when the server cannot be
    /// reached, one of the same kind without a connection.
    static DatabaseScope TryOpen(const DatabaseAddress& address);

    bool IsOpen() const { return connection_ != nullptr; }

    // The rest throws DatabaseError when the scope has no connection or the server refuses.

    /// Runs a statement and fetches all of its rows, which outlive the scope.
    ado::Rows Query(std::string_view statement) const;

    /// The same for rows that are to be changed. The scope must outlive the changes.
    ado::Recordset Edit(std::string_view statement) const;

    /// Runs a statement and returns the number of rows affected.
    std::int64_t Execute(std::string_view statement) const;

    /// For batches and whatever else works with the connection itself.
    ado::Connection& Connection() const;

    // These depend on the kind alone and never fail.

    DatabaseKind Kind() const { return kind_; }

    /// A value between the delimiters of string literals. The value is not escaped: a
    /// statement with a value that holds the delimiter fails.
    std::string Quoted(std::string_view value) const { return tallix::Quoted(kind_, value); }

    /// A column's name between its delimiters.
    std::string QuotedName(std::string_view name) const;

private:
    explicit DatabaseScope(DatabaseKind kind) : kind_(kind) {}

    DatabaseKind kind_ = DatabaseKind::Unknown;
    std::unique_ptr<ado::Connection> connection_;  ///< open, where there is one
};

}  // namespace tallix
