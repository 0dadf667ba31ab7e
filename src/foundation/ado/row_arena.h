// The rows of one result. A cell is a run of bytes in a block that it shares with
// thousands of others, found by one 32-bit offset; a string a cell would cost four
// times the text. Blocks close before their offsets could overflow, so that no result
// is too large.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tallix::ado {

/// The value of a cell: nothing for NULL, which is kept apart from the empty text.
using Value = std::optional<std::string_view>;

class RowArena {
public:
    explicit RowArena(std::size_t columns = 0);

    std::size_t Columns() const { return columns_; }
    std::int64_t Rows() const { return rows_; }

    /// Rows are filled cell by cell, `Columns()` cells a row.
    void Append(std::string_view cell);
    void AppendNull();

    /// Gives back what the growth of the last block left over. Call once, when filled.
    void Finish();

    /// The cell of a row, both counted from 0. The view lives as long as the arena and
    /// is valid until the next Append. No range check.
    Value At(std::int64_t row, std::size_t column) const;

    /// Bytes held, for measuring.
    std::size_t Bytes() const;

private:
    struct Block {
        std::int64_t firstRow = 0;
        std::vector<char> text;
        std::vector<std::uint32_t> ends;  ///< end of each cell in `text`; the top bit marks NULL
    };

    void Close(std::uint32_t nullMark);
    const Block& BlockOf(std::int64_t row) const;

    std::size_t columns_;
    std::int64_t rows_ = 0;
    std::size_t filled_ = 0;  ///< cells of the row being filled
    std::vector<std::unique_ptr<Block>> blocks_;
    mutable std::size_t lastBlock_ = 0;  ///< walks are sequential: the next read is mostly here
};

}  // namespace tallix::ado
