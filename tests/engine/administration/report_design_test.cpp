#include "administration/report_design.h"

#include <gtest/gtest.h>

#include "support/test_application.h"

namespace tallix {
namespace {

TEST(ReportDesignTest, TurnsColourCodesIntoNineDigitsWithRedInTheLowByte) {
    EXPECT_EQ(ColorCodeToRGB(2 + 1 * 256 + 118 * 65536), "002001118");
    EXPECT_EQ(ColorCodeToRGB(ColourCode({255, 0, 7})), "255000007");
    for (const char* wrong : {"", "002001", "256000000", "00200x118"}) {
        EXPECT_FALSE(ColourOfDigits(wrong)) << wrong;
    }
}

TEST(ReportDesignTest, BlackCountsAsACancel) {
    test::ScriptedPrompts prompts;
    prompts.colours = {{0, 0, 0}, {0, 0, 1}};
    EXPECT_FALSE(ChooseColour(prompts));
    EXPECT_EQ(ChooseColour(prompts)->blue, 1);
    EXPECT_EQ(prompts.questions.at(0).title, "Select Colour");
}

TEST(ReportDesignTest, RestoringWritesKeysThatNothingReads) {
    test::TestApplication world;
    RestoreDefaultColours(world.settings);
    EXPECT_EQ(world.settings.Read("tprTC"), "002001118");
    EXPECT_EQ(world.settings.Read("tprTHC"), "180003000");
    EXPECT_EQ(world.settings.Read("tprTDC"), "254254170");
    EXPECT_EQ(world.settings.Read("tprTBC"), "162196091");
    EXPECT_EQ(world.settings.Read("rptTC"), "");
}

}  // namespace
}  // namespace tallix
