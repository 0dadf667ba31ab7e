#include "database/row_arena.h"

#include <algorithm>

#include "failures/errors.h"

namespace tallix::ado {

namespace {

// Most results are a handful of rows: blocks start small and grow.
constexpr std::size_t kFirstBlockBytes = 4096;
constexpr std::size_t kBlockGrowth = 4;

}  // namespace

RowArena::Block::Block(std::int64_t first, std::size_t size, bool longRow)
    : firstRow(first),
      bytes((size + sizeof(LongOffset) - 1) / sizeof(LongOffset) * sizeof(LongOffset)),
      isLongRow(longRow),
      memory(std::make_unique_for_overwrite<char[]>(bytes)) {
    std::memset(memory.get() + bytes - sizeof(LongOffset), 0, sizeof(LongOffset));
}

RowArena::RowArena(std::size_t columns, std::size_t blockBytes)
    : columns_(columns), blockBytes_(std::min(blockBytes, kBlockBytes)) {}

// Where the row being filled begins in its block.
std::size_t RowArena::RowStart() const {
    return text_ == nullptr ? 0 : offset_[filled_] & static_cast<Offset>(~kNull<Offset>);
}

void RowArena::AppendSlowly(Value cell) {
    if (!longRow_ && !MakeRoom(cell ? cell->size() : 0)) BeginLongRow();
    if (longRow_) return AppendToLongRow(cell);
    if (cell) {
        Append(*cell);
    } else {
        AppendNull();
    }
}

// Begins a block with the part of the row that is filled already, since a row is in one
// block. Returns false, with all as it was, for a row that no block holds.
bool RowArena::MakeRoom(std::size_t cellBytes) {
    const std::size_t rowStart = RowStart();
    const std::size_t needed = used_ - rowStart + cellBytes + (columns_ + 3) * sizeof(Offset);
    if (needed > kBlockBytes) return false;

    const std::size_t grown = blocks_.empty() ? kFirstBlockBytes : blocks_.back().bytes * kBlockGrowth;
    Block block(rows_, std::max(std::min(grown, blockBytes_), needed), false);
    const bool holdsThisRowAlone = text_ != nullptr && blocks_.back().firstRow == rows_;
    FillBlock(block, rowStart, filled_);
    if (holdsThisRowAlone) blocks_.pop_back();
    blocks_.push_back(std::move(block));
    return true;
}

// Moves the last cells of the current block, which is left as it was, into a new one;
// filling goes on there.
void RowArena::FillBlock(Block& block, std::size_t textFrom, std::size_t cells) {
    char* text = block.memory.get();
    Offset* offset = block.LastOffset<Offset>() - cells;
    if (used_ > textFrom) std::memcpy(text, text_ + textFrom, used_ - textFrom);
    for (std::size_t cell = 0; cell < cells; ++cell) {
        offset[cell] = static_cast<Offset>(offset_[cell] - textFrom);
    }
    text_ = text;
    used_ -= textFrom;
    offset_ = offset;
}

// Takes the cells of the row over from the block being filled, which ends before them.
void RowArena::BeginLongRow() {
    LongRow row;
    const std::size_t start = RowStart();
    for (std::size_t cell = filled_; cell-- > 0;) {
        const bool isNull = (offset_[cell] & kNull<Offset>) != 0;
        const std::size_t end = (offset_[cell] & static_cast<Offset>(~kNull<Offset>)) - start;
        row.ends.push_back(static_cast<LongOffset>(end) | (isNull ? kNull<LongOffset> : 0));
    }
    if (text_ != nullptr) row.text.assign(text_ + start, text_ + used_);
    if (text_ != nullptr && blocks_.back().firstRow == rows_) blocks_.pop_back();
    lastBlock_ = 0;
    text_ = nullptr;
    offset_ = nullptr;
    used_ = 0;
    longRow_ = std::move(row);
}

void RowArena::AppendToLongRow(Value cell) {
    LongRow& row = *longRow_;
    if (cell) {
        const std::size_t end = row.text.size() + cell->size();
        if (end >= kNull<LongOffset>) throw DatabaseError("A row of the result is longer than 2 GB");
        row.text.insert(row.text.end(), cell->begin(), cell->end());
    }
    row.ends.push_back(static_cast<LongOffset>(row.text.size()) | (cell ? 0 : kNull<LongOffset>));
    if (row.ends.size() == columns_) EndLongRow();
    CountCell();
}

void RowArena::EndLongRow() {
    const LongRow& row = *longRow_;
    Block block(rows_, row.text.size() + (columns_ + 2) * sizeof(LongOffset), true);
    std::copy(row.text.begin(), row.text.end(), block.memory.get());
    std::copy(row.ends.rbegin(), row.ends.rend(),
              block.LastOffset<LongOffset>() - static_cast<std::ptrdiff_t>(columns_));
    blocks_.push_back(std::move(block));
    longRow_.reset();
}

void RowArena::Finish() {
    if (text_ == nullptr) return;
    const auto cells = static_cast<std::size_t>(blocks_.back().LastOffset<Offset>() - offset_);
    Block block(blocks_.back().firstRow, used_ + (cells + 2) * sizeof(Offset), false);
    FillBlock(block, 0, cells);
    blocks_.back() = std::move(block);
}

const RowArena::Block& RowArena::SearchBlock(std::int64_t row) const {
    const auto after =
        std::upper_bound(blocks_.begin(), blocks_.end(), row,
                         [](std::int64_t wanted, const Block& block) { return wanted < block.firstRow; });
    lastBlock_ = static_cast<std::size_t>(after - blocks_.begin()) - 1;
    return blocks_[lastBlock_];
}

std::size_t RowArena::Bytes() const {
    std::size_t bytes = blocks_.capacity() * sizeof(Block);
    for (const Block& block : blocks_) bytes += block.bytes;
    return bytes;
}

}  // namespace tallix::ado
