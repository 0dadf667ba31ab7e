// Adding very many rows. Rows are sent some hundred to a statement; when the server
// refuses such a statement its rows are sent one by one, so that a refused row costs
// only itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/ado/connection.h"
#include "foundation/ado/row_arena.h"

namespace tallix::ado {

class RowBatch {
public:
    /// `connection` must be open and outlive the batch.
    RowBatch(Connection& connection, std::string table, std::vector<std::string> columns);

    /// Takes one row, a value a column; nothing for NULL.
    void Add(const std::vector<Value>& values);

    /// Sends what is waiting. To be called at the end: the destructor sends nothing.
    void Flush();

    /// Rows that the server refused so far.
    std::int64_t Refused() const { return refused_; }

private:
    std::string Insert(std::string_view rows) const;

    Connection& connection_;
    std::string head_;
    std::vector<std::string> waiting_;  ///< each row in its brackets, ready to send
    std::size_t waitingBytes_ = 0;
    std::int64_t refused_ = 0;
};

}  // namespace tallix::ado
