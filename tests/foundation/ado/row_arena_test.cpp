#include "foundation/ado/row_arena.h"

#include <gtest/gtest.h>

#include <string>

namespace tallix::ado {
namespace {

// Cells of all lengths, with NULL and empty ones in between, long ones beyond a block.
std::optional<std::string> Cell(std::int64_t row, std::size_t column) {
    const auto number = static_cast<std::size_t>(row) * 7 + column;
    if (number % 11 == 3) return std::nullopt;
    if (number % 997 == 5) return std::string(700, 'x');
    return std::string(number % 13, static_cast<char>('a' + number % 26));
}

void Fill(RowArena& arena, std::int64_t rows) {
    for (std::int64_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < arena.Columns(); ++column) {
            const auto cell = Cell(row, column);
            cell ? arena.Append(*cell) : arena.AppendNull();
        }
    }
}

TEST(RowArena, GivesBackEveryCellAcrossBlocksInAnyOrder) {
    constexpr std::int64_t kRows = 3000;
    for (const std::size_t blockBytes : {64U, 500U, 5000U, 1U << 20}) {
        RowArena arena(5, blockBytes);
        Fill(arena, kRows);
        arena.Finish();
        ASSERT_EQ(arena.Rows(), kRows);
        for (std::int64_t step = 0; step < kRows; ++step) {
            const std::int64_t row = step % 2 == 0 ? step : kRows - step;  // far jumps to and fro
            for (std::size_t column = 0; column < 5; ++column) {
                ASSERT_EQ(arena.At(row, column), Cell(row, column))
                    << blockBytes << " " << row << " " << column;
            }
        }
    }
}

TEST(RowArena, CellsCanBeReadBetweenAppends) {
    RowArena arena(1, 64);
    for (std::int64_t row = 0; row < 200; ++row) {
        arena.Append(std::to_string(row));
        ASSERT_EQ(arena.At(row, 0), std::to_string(row));
        ASSERT_EQ(arena.At(row / 2, 0), std::to_string(row / 2));
    }
}

TEST(RowArena, CostsTheTextAndFourBytesACell) {
    constexpr std::int64_t kRows = 50000;
    RowArena arena(16);
    for (std::int64_t cell = 0; cell < kRows * 16; ++cell) arena.Append("12345");
    arena.Finish();
    EXPECT_LT(arena.Bytes(), kRows * 16 * (5 + 4) * 101 / 100);

    RowArena few(16);
    for (int cell = 0; cell < 16; ++cell) few.Append("12345");
    few.Finish();
    EXPECT_LT(few.Bytes(), 300U);
}

}  // namespace
}  // namespace tallix::ado
