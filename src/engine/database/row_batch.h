// Adding very many rows. Rows are sent some hundred to a statement; when the server
// refuses such a statement its rows are sent one by one, so that a refused row costs
// only itself.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "database/connection.h"
#include "database/row_arena.h"

namespace tallix::ado {

/// What a refused row does: it is counted and left out, or its failure is thrown, with the
/// rows before it stored and none after it.
enum class Refusal { Skips, Throws };

class RowBatch {
public:
    /// `connection` must be open and outlive the batch.
    RowBatch(Connection& connection, std::string_view table, const std::vector<std::string>& columns,
             Refusal refusal = Refusal::Skips);

    /// Takes one row, a value a column; nothing for NULL. Throws DatabaseError when the
    /// connection is closed, or for a refused row, after which the batch is over.
    void Add(const std::vector<Value>& values);

    /// Sends what is waiting. To be called at the end: the destructor sends nothing. Throws
    /// as Add does.
    void Flush();

    /// Rows that the server refused so far.
    std::int64_t Refused() const { return refused_; }

private:
    std::string_view Row(std::size_t index) const;
    void SendOneByOne();
    void SendRow(std::size_t index);

    Connection& connection_;
    Refusal refusal_;
    std::string head_;                 ///< INSERT INTO ... VALUES
    std::string rows_;                 ///< those waiting, each in its brackets, joined by commas
    std::vector<std::size_t> starts_;  ///< where each of them begins in rows_
    std::int64_t refused_ = 0;
};

}  // namespace tallix::ado
