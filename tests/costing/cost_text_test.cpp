#include "costing/cost_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace tallix {
namespace {

TEST(CostText, UnitCostIsReadPieceByPiece) {
    struct Case {
        const char* text;
        std::int32_t whole;
        std::int32_t hundredths;
    };
    // Pieces that are no numbers keep the 7 and the 8.
    const Case cases[] = {{"1.50", 1, 50},
                          {"12", 12, 0},
                          {"0.05", 0, 5},
                          {"1.5", 1, 0},
                          {"1.7", 1, 1},
                          {"1.234", 1, 34},
                          {"-1.50", -1, 50},
                          {"", 7, 0},
                          {".50", 7, 50},
                          {"x.25", 7, 25},
                          {"3.xy", 3, 8},
                          {"99999999999", 7, 0},
                          {"1234567890", 1234567890, 0}};
    for (const Case& expected : cases) {
        UnitCost cost{7, 8};
        ReadUnitCost(expected.text, cost);
        EXPECT_EQ(cost.whole, expected.whole) << expected.text;
        EXPECT_EQ(cost.hundredths, expected.hundredths) << expected.text;
    }
}

TEST(CostText, AmountIsLaidOutByItsLengthAndKeepsTheTextBeyondSixDigits) {
    struct Case {
        std::int32_t pence;
        const char* text;
    };
    const Case cases[] = {{0, "0.00"},       {5, "0.05"},       {45, "0.45"},      {120, "1.20"},
                          {1234, "12.34"},   {12345, "123.45"}, {123456, "1,.56"}, {1234567, "kept"},
                          {-12345, "-,.45"}, {-150, "-1.50"},   {-1234567, "kept"}};
    for (const Case& expected : cases) {
        std::string text = "kept";
        WriteAmount(expected.pence, text);
        EXPECT_EQ(text, expected.text) << expected.pence;
    }
}

TEST(CostText, TotalPutsItsMarksAndDropsTheNinthDigit) {
    struct Case {
        std::int32_t pence;
        const char* text;
    };
    const Case cases[] = {{0, "0.00"},
                          {5, "0.05"},
                          {45, "0.45"},
                          {123, "1.23"},
                          {12345, "123.45"},
                          {123456, "1,234.56"},
                          {1234567, "12,345.67"},
                          {12345678, "123,456.78"},
                          {123456789, "234,567.89"},
                          {std::numeric_limits<std::int32_t>::min(), "474,836.48"}};
    for (const Case& expected : cases) EXPECT_EQ(TotalText(expected.pence), expected.text);
}

}  // namespace
}  // namespace tallix
