#include "reporting/plot.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

TEST(PlotTest, JoinsThreePointsAndMoreAndRefusesUnevenArrays) {
    const std::vector<double> x = {-100, 0, 50, 100};
    const std::vector<double> y = {0, 40, -40, 10};
    const std::vector<PlotLine> lines = Plot(x, y);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1].from.y, 40);
    EXPECT_EQ(lines[1].to.x, 50);
    EXPECT_TRUE(Plot(std::span(x).first(2), std::span(y).first(2)).empty());
    EXPECT_TRUE(Plot({}, {}).empty());
    try {
        Plot(x, std::span(y).first(3));
        FAIL() << "uneven arrays were taken";
    } catch (const PlotError& error) {
        EXPECT_EQ(error.Number(), 1000);
        EXPECT_STREQ(error.what(), "x() and y() are different sizes");
    }
}

}  // namespace
}  // namespace tallix
