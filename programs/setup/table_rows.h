// Filling tables from outside the program: many rows at once, all or none.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "database/row_batch.h"

namespace tallix {

/// The statements from its construction to Commit happen wholly or not at all, and far
/// faster than one by one. The program itself begins no transaction.
class Transaction {
public:
    /// `connection` must outlive the transaction.
    explicit Transaction(ado::Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    ado::Connection& connection_;
    bool open_ = true;
};

/// The rows of a table. Throws DatabaseError.
std::int64_t CountRows(ado::Connection& connection, std::string_view table);

/// A table's rows in memory, ready to be added.
struct TableRows {
    std::string table;
    std::vector<std::string> columns;
    std::vector<std::vector<std::string>> rows;  ///< a text a column
};

/// Adds all rows. Throws SetupError when the server refuses one.
void AddRows(ado::Connection& connection, const TableRows& rows);

/// Sends what waits in the batch. Throws SetupError when the server refused a row.
void FinishBatch(ado::RowBatch& batch, std::string_view table);

}  // namespace tallix
