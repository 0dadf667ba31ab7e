// The rows of one result. A cell is a run of bytes in a block that it shares with
// hundreds of others, found by one 16-bit offset; a string a cell would cost four times
// the text. A row that is too long for such a block gets one of its own, with offsets of
// 32 bits.
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
    /// No place in a block is beyond what an offset holds beside its mark for NULL.
    static constexpr std::size_t kBlockBytes = std::size_t{1} << 15;

    /// `blockBytes` is what blocks grow up to, at most kBlockBytes.
    explicit RowArena(std::size_t columns = 0, std::size_t blockBytes = kBlockBytes);

    std::size_t Columns() const { return columns_; }
    std::int64_t Rows() const { return rows_; }

    /// Rows are filled cell by cell, `Columns()` cells a row. A row of more than 2 GB
    /// throws DatabaseError.
    void Append(std::string_view cell) {
        if (Room() < cell.size() + sizeof(Offset)) return AppendSlowly(cell);
        if (!cell.empty()) std::memcpy(text_ + used_, cell.data(), cell.size());
        used_ += cell.size();
        CloseCell(static_cast<Offset>(used_));
    }
    void AppendNull() {
        if (Room() < sizeof(Offset)) return AppendSlowly(std::nullopt);
        CloseCell(static_cast<Offset>(used_) | kNull<Offset>);
    }

    /// Gives back what the last block has left over. Call once, when filled.
    void Finish();

    /// The cell of a finished row, both counted from 0. The view lives as long as the
    /// arena and is valid until the next Append or Finish. No range check.
    Value At(std::int64_t row, std::size_t column) const {
        const Block& block = BlockOf(row);
        const std::size_t cell = static_cast<std::size_t>(row - block.firstRow) * columns_ + column;
        return block.isLongRow ? CellOf<LongOffset>(block, cell) : CellOf<Offset>(block, cell);
    }

    /// Bytes held, for measuring.
    std::size_t Bytes() const;

private:
    using Offset = std::uint16_t;
    using LongOffset = std::uint32_t;

    /// Set in the end of a cell that is NULL.
    template <typename Number>
    static constexpr Number kNull = static_cast<Number>(Number{1} << (8 * sizeof(Number) - 1));

    /// The highest offset is 0, where the first cell starts; below it is the end of
    /// each cell in turn.
    struct Block {
        Block(std::int64_t first, std::size_t size, bool longRow);

        template <typename Number>
        Number* LastOffset() const {
            return reinterpret_cast<Number*>(memory.get() + bytes) - 1;
        }

        std::int64_t firstRow;
        std::size_t bytes;  ///< a multiple of the size of its offsets
        bool isLongRow;
        std::unique_ptr<char[]> memory;
    };

    template <typename Number>
    static Value CellOf(const Block& block, std::size_t cell) {
        const Number* end = block.LastOffset<Number>() - cell - 1;
        if (*end & kNull<Number>) return std::nullopt;
        const std::size_t start = end[1] & static_cast<Number>(~kNull<Number>);
        return std::string_view(block.memory.get() + start, *end - start);
    }

    std::size_t Room() const {
        return static_cast<std::size_t>(reinterpret_cast<const char*>(offset_) - text_) - used_;
    }
    void CloseCell(Offset end) {
        *--offset_ = end;
        CountCell();
    }
    void CountCell() {
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
    std::size_t RowStart() const;
    void AppendSlowly(Value cell);
    bool MakeRoom(std::size_t cellBytes);
    void FillBlock(Block& block, std::size_t textFrom, std::size_t cells);
    void BeginLongRow();
    void AppendToLongRow(Value cell);
    void EndLongRow();

    /// A row on its way into a block of its own.
    struct LongRow {
        std::vector<char> text;
        std::vector<LongOffset> ends;
    };

    std::size_t columns_;
    std::size_t blockBytes_;
    std::int64_t rows_ = 0;
    std::size_t filled_ = 0;  ///< cells of the row being filled
    std::vector<Block> blocks_;
    char* text_ = nullptr;               ///< front of the block being filled; null without one
    std::size_t used_ = 0;               ///< bytes of text in it
    Offset* offset_ = nullptr;           ///< the lowest offset in it
    std::optional<LongRow> longRow_;     ///< instead of that block
    mutable std::size_t lastBlock_ = 0;  ///< walks are sequential: the next read is mostly here
};

}  // namespace tallix::ado
