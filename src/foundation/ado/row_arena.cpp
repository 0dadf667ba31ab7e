#include "foundation/ado/row_arena.h"

#include <algorithm>

#include "foundation/errors.h"

namespace tallix::ado {

namespace {

// Most results are a handful of rows: blocks start small and grow.
constexpr std::size_t kFirstBlockBytes = 4096;
constexpr std::size_t kBlockGrowth = 4;

}  // namespace

RowArena::Block::Block(std::int64_t first, std::size_t bytes)
    : firstRow(first),
      size(bytes / sizeof(Offset)),
      memory(std::make_unique_for_overwrite<Offset[]>(bytes / sizeof(Offset))) {
    memory[size - 1] = 0;
}

RowArena::RowArena(std::size_t columns, std::size_t blockBytes)
    : columns_(columns), blockBytes_(blockBytes) {}

// A row lies in one block, so the part of it that is filled already moves along.
void RowArena::MakeRoom(std::size_t cellBytes) {
    const Offset rowStart = blocks_.empty() ? 0 : offset_[filled_] & ~kNull;
    const std::size_t needed = used_ - rowStart + cellBytes + (columns_ + 2) * sizeof(Offset);
    if (needed > kNull) throw DatabaseError("A row of the result is longer than 2 GB");

    const std::size_t grown =
        blocks_.empty() ? kFirstBlockBytes : blocks_.back().size * sizeof(Offset) * kBlockGrowth;
    const std::size_t longRow = needed > blockBytes_ ? std::min<std::size_t>(2 * needed, kNull) : needed;
    Block block = MoveTail(rows_, rowStart, filled_, std::max(std::min(grown, blockBytes_), longRow));
    if (!blocks_.empty() && blocks_.back().firstRow == rows_) blocks_.pop_back();
    blocks_.push_back(std::move(block));
}

// A new block with the last cells of the current one, which is left as it was; filling
// goes on in the new one.
RowArena::Block RowArena::MoveTail(std::int64_t firstRow, Offset textFrom, std::size_t cells,
                                   std::size_t bytes) {
    Block block(firstRow, bytes + sizeof(Offset) - 1);
    char* text = reinterpret_cast<char*>(block.memory.get());
    Offset* offset = block.memory.get() + block.size - 1 - cells;
    if (used_ > textFrom) std::memcpy(text, text_ + textFrom, used_ - textFrom);
    for (std::size_t cell = 0; cell < cells; ++cell) offset[cell] = offset_[cell] - textFrom;
    text_ = text;
    used_ -= textFrom;
    offset_ = offset;
    return block;
}

void RowArena::Finish() {
    if (blocks_.empty()) return;
    const std::size_t cells = static_cast<std::size_t>(blocks_.back().LastOffset() - offset_);
    blocks_.back() = MoveTail(blocks_.back().firstRow, 0, cells, used_ + (cells + 1) * sizeof(Offset));
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
    for (const Block& block : blocks_) bytes += block.size * sizeof(Offset);
    return bytes;
}

}  // namespace tallix::ado
