#include "costing/cost_text.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace tallix {
namespace {

TEST(CostText, UnitCostIsReadPieceByPiece) {
    // Pieces that are not numbers keep the 7 and the 8.
    for (const std::string line :
         {"1.50 1 50", "12 12 0", "0.05 0 5", "1.5 1 0", "1.7 1 1", "1.234 1 34", "-1.50 -1 50", " 7 0",
          ".50 7 50", "x.25 7 25", "3.xy 3 8", "99999999999 7 0"}) {
        const std::string text = line.substr(0, line.find(' '));
        UnitCost cost{7, 8};
        ReadUnitCost(text, cost);
        EXPECT_EQ(fmt::format("{} {} {}", text, cost.whole, cost.hundredths), line);
    }
}

TEST(CostText, AmountBeyondSixDigitsKeepsTheText) {
    for (const std::string line :
         {"0 0.00", "5 0.05", "45 0.45", "120 1.20", "1234 12.34", "12345 123.45", "123456 1,.56",
          "1234567 kept", "-12345 -,.45", "-150 -1.50", "-1234567 kept"}) {
        std::string text = "kept";
        WriteAmount(std::stoi(line), text);
        EXPECT_EQ(fmt::format("{} {}", std::stoi(line), text), line);
    }
}

TEST(CostText, TotalHasItsMarksAndDropsTheNinthDigit) {
    for (const std::string line :
         {"0 0.00", "5 0.05", "45 0.45", "123 1.23", "12345 123.45", "123456 1,234.56", "1234567 12,345.67",
          "12345678 123,456.78", "123456789 234,567.89", "-2147483648 474,836.48"}) {
        EXPECT_EQ(fmt::format("{} {}", std::stoi(line), TotalText(std::stoi(line))), line);
    }
}

}  // namespace
}  // namespace tallix
