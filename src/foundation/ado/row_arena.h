// The rows of one result. A cell is a run of bytes in a block that it shares with
// thousands of others, found by one 32-bit offset; a string a cell would cost four
// times the text. Blocks close before their offsets could overflow, so that no result
// is too large.
//
// A block is filled from both sides: text from its front, offsets from its back. It is
// full where they meet, so that nothing is lost whether cells are long or empty.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tallix::ado {

/// The value of a cell: nothing for NULL, which is kept apart from the empty text.
using Value = std::optional<std::string_view>;

class RowArena {
public:
    static constexpr std::size_t kBlockBytes = std::size_t{1} << 20;

    /// `blockBytes` is what blocks grow up to; a longer row gets a block of its own size.
    explicit RowArena(std::size_t columns = 0, std::size_t blockBytes = kBlockBytes);

    std::size_t Columns() const { return columns_; }
    std::int64_t Rows() const { return rows_; }

    /// Rows are filled cell by cell, `Columns()` cells a row. A row of more than 2 GB
    /// throws DatabaseError.
    void Append(std::string_view cell) {
        if (Room() < cell.size() + sizeof(Offset)) MakeRoom(cell.size());
        if (!cell.empty()) std::memcpy(text_ + used_, cell.data(), cell.size());
        used_ += static_cast<Offset>(cell.size());
        CloseCell(used_);
    }
    void AppendNull() {
        if (Room() < sizeof(Offset)) MakeRoom(0);
        CloseCell(used_ | kNull);
    }

    /// Gives back what the last block has left over. Call once, when filled.
    void Finish();

    /// The cell of a row, both counted from 0. The view lives as long as the arena and
    /// is valid until the next Append or Finish. No range check.
    Value At(std::int64_t row, std::size_t column) const {
        const Block& block = BlockOf(row);
        const Offset* end = block.LastOffset() - (row - block.firstRow) * columns_ - column - 1;
        if (*end & kNull) return std::nullopt;
        const Offset start = end[1] & ~kNull;
        return std::string_view(block.Text() + start, *end - start);
    }

    /// Bytes held, for measuring.
    std::size_t Bytes() const;

private:
    using Offset = std::uint32_t;
    static constexpr Offset kNull = Offset{1} << 31;  ///< set in the end of a cell that is NULL

    /// The highest offset is 0, where the first cell starts; below it stands the end of
    /// each cell in turn.
    struct Block {
        Block(std::int64_t first, std::size_t bytes);

        const char* Text() const { return reinterpret_cast<const char*>(memory.get()); }
        const Offset* LastOffset() const { return memory.get() + size - 1; }

        std::int64_t firstRow;
        std::size_t size;  ///< in offsets
        std::unique_ptr<Offset[]> memory;
    };

    std::size_t Room() const {
        return static_cast<std::size_t>(reinterpret_cast<const char*>(offset_) - text_) - used_;
    }
    void CloseCell(Offset end) {
        *--offset_ = end;
        if (++filled_ < columns_) return;
        filled_ = 0;
        ++rows_;
    }
    const Block& BlockOf(std::int64_t row) const {
        const Block& block = blocks_[lastBlock_];
        const bool here = row >= block.firstRow &&
                          (lastBlock_ + 1 == blocks_.size() || row < blocks_[lastBlock_ + 1].firstRow);
        return here ? block : SearchBlock(row);
    }
    const Block& SearchBlock(std::int64_t row) const;
    void MakeRoom(std::size_t cellBytes);
    Block MoveTail(std::int64_t firstRow, Offset textFrom, std::size_t cells, std::size_t bytes);

    std::size_t columns_;
    std::size_t blockBytes_;
    std::int64_t rows_ = 0;
    std::size_t filled_ = 0;  ///< cells of the row being filled
    std::vector<Block> blocks_;
    char* text_ = nullptr;               ///< front of the block being filled
    Offset used_ = 0;                    ///< bytes of text in it
    Offset* offset_ = nullptr;           ///< the lowest offset in it
    mutable std::size_t lastBlock_ = 0;  ///< walks are sequential: the next read is mostly here
};

}  // namespace tallix::ado
