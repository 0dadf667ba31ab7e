#include "database/row_arena.h"

#include <gtest/gtest.h>

#include <string>

namespace tallix::ado {
namespace {

// Cells of all lengths, with NULL and empty ones in between, long ones beyond a block.
std::optional<std::string> Cell(std::int64_t row, std::size_t column) {
    const auto number = static_cast<std::size_t>(row) * 7 + column;
    if (number % 11 == 3) return std::nullopt;
    if (number % 997 == 5) return std::string(700, 'x');
    if (number % 4001 == 9) return std::string(40000, 'y');
    return std::string(number % 13, static_cast<char>('a' + number % 26));
}

TEST(RowArena, GivesBackEveryCellAcrossBlocksInAnyOrder) {
    constexpr std::int64_t kRows = 3000;
    for (const std::size_t blockBytes : {64U, 500U, 5000U, 1U << 15}) {
        RowArena arena(5, blockBytes);
        for (std::int64_t cell = 0; cell < kRows * 5; ++cell) {
            const auto text = Cell(cell / 5, static_cast<std::size_t>(cell % 5));
            text ? arena.Append(*text) : arena.AppendNull();
            if (cell % 5 == 4) {
                ASSERT_EQ(arena.At(cell / 5, 4), text) << "between appends";
            }
        }
        arena.Finish();
        ASSERT_EQ(arena.Rows(), kRows);
        for (std::int64_t step = 0; step < kRows; ++step) {
            const std::int64_t row = step % 2 == 0 ? step : kRows - step;  // far jumps to and fro
            ASSERT_EQ(arena.At(row, step % 5), Cell(row, step % 5)) << blockBytes << " " << row;
        }
    }
}

TEST(RowArena, CostsTheTextAndTwoBytesACell) {
    for (const std::int64_t rows : {1, 50000}) {
        RowArena arena(16);
        for (std::int64_t cell = 0; cell < rows * 16; ++cell) arena.Append("12345");
        arena.Finish();
        EXPECT_LT(arena.Bytes(), rows * 16 * (5 + 2) * 102 / 100 + 160);
    }
}

}  // namespace
}  // namespace tallix::ado
