#include "settings/page_setup.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

TEST(PageSetupTest, CodesAreReadAsOnePageShowsThem) {
    const std::pair<const char*, const char*> lines[] = {
        {"&bPage &p of &P", "||Page 2 of 10"},
        {"", "||"},
        {"Left &w&p", "Left 2||"},
        {"a&bb&bc&bd", "a|b|c"},
        {"Q&&A &", "Q&A &||"},
    };
    for (const auto& [coded, shown] : lines) {
        const PageLine line = ExpandPageLine(coded, 2, 10);
        EXPECT_EQ(line.left + "|" + line.centre + "|" + line.right, shown) << coded;
    }
}

}  // namespace
}  // namespace tallix
