#include "text/code_page.h"

#include <gtest/gtest.h>

namespace tallix {
namespace {

TEST(CodePage, EveryByteComesBackAndWhatItLacksIsAQuestionMark) {
    std::string ansi;
    for (int byte = 0; byte < 256; ++byte) ansi += static_cast<char>(byte);
    EXPECT_TRUE(IsUtf8(FromAnsi(ansi)));
    EXPECT_EQ(ToAnsi(FromAnsi(ansi)), ansi);
    EXPECT_EQ(FromAnsi("\x80\xA3\x9F\x81"), "€£Ÿ\xC2\x81");
    EXPECT_EQ(ToAnsi("5€ Ω 𝄞!"), "5\x80 ? ?!");
    EXPECT_EQ(ToAnsi("\xC2\x80"), "?") << "the control character has no byte; the euro has its place";
    EXPECT_EQ(ToAnsi("a\xFF\xC3"), "a??");
}

TEST(CodePage, RecognisesUtf8) {
    for (const char* bytes :
         {"\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\x80", "\xF8\x88\x80\x80"}) {
        EXPECT_FALSE(IsUtf8(bytes)) << bytes;
    }
    EXPECT_TRUE(IsUtf8("a\xC2\x80\xEF\xBF\xBF\xF4\x8F\xBF\xBF"));
    EXPECT_EQ(DecodeLine("£5"), "£5");
    EXPECT_EQ(DecodeLine("\xA3 5"), "£ 5");
}

}  // namespace
}  // namespace tallix
