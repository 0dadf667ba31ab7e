#include "text/code_page.h"

#include <gtest/gtest.h>

#include <random>

#include "failures/errors.h"
#include "support/temp_folder.h"
#include "text/encryption_tools.h"
#include "text/text_lines.h"

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

TEST(TextLinesTest, ReadsAnyFile) {
    const test::TempFolder folder;
    const std::string huge(3'000'000, 'x');
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {"", {}},
        {"\n", {""}},
        {"a\r\nb\nc", {"a", "b", "c"}},
        {"a\rb\r\n\r\n", {"a\rb", ""}},
        {"\xEF\xBB\xBF"
         "2001,A\n\xEF\xBB\xBF",
         {"2001,A", "\uFEFF"}},
        {"caf\xE9\ncaf\xC3\xA9\n", {"café", "café"}},
        {std::string("\0\xFF", 2), {std::string("\0ÿ", 3)}},
        {huge + "\nb", {huge, "b"}},
    };
    for (const auto& [bytes, expected] : cases) {
        std::vector<std::string> lines;
        TextLines reader(folder.Write("any.txt", bytes));
        while (const std::string* line = reader.Next()) lines.push_back(*line);
        EXPECT_EQ(lines, expected) << bytes.substr(0, 20);
    }
    EXPECT_EQ(TextLines(folder.Path() / "none").Next(), nullptr);
}

// Computed by hand from the rules of the cipher. A change makes every stored account unreadable.
TEST(EncryptionTools, StoredFormsDoNotChange) {
    for (const auto& [text, stored] :
         {std::pair("Administrator", "168F2E58633B0B320D7D0F601539205D16780B812A662D7E1A96"),
          {"€𝄞", "FB48339A70B5"},
          {"", ""}}) {
        EXPECT_EQ(EncipherForStorage(text), stored);
        EXPECT_EQ(DecipherFromStorage(stored), text);
    }
}

TEST(EncryptionTools, AnyBytesComeBackUnderAnyKey) {
    std::mt19937 random(7);
    for (const std::string key : {"Tb9+QuillPr3ssM0nKy", "k", "~~~~", "\x01\x02", "\xFF\xF0\xCF\xCE"}) {
        EncryptionTools::Bytes data;
        for (int index = 0; index < 4000; ++index) data.push_back(static_cast<unsigned char>(random()));
        EXPECT_EQ(EncryptionTools::Decipher(key, EncryptionTools::Encipher(key, data)), data) << key;
    }
}

TEST(EncryptionTools, RefusesWhatItCannotTurnButReadsBrokenTexts) {
    EXPECT_THROW(EncryptionTools::Encipher("k", EncryptionTools::Bytes(32768, 1)), ConversionError);
    EXPECT_THROW(EncryptionTools::Decipher("k", EncryptionTools::Bytes(32768, 1)), ConversionError);
    EXPECT_THROW(EncryptionTools::Encipher("", {1}), ConversionError);
    for (const char* digits : {"0G", " 1", "0x", "-1"})
        EXPECT_THROW(EncryptionTools::FromHexadecimal(digits), ConversionError) << digits;
    EXPECT_EQ(EncryptionTools::FromHexadecimal("0aFf7"), (EncryptionTools::Bytes{0x0A, 0xFF}));
    EXPECT_EQ(EncryptionTools::FromBytes({0x00, 0xD8, 'a', 0, 0x00, 0xDC, 0x3D}), "\uFFFDa\uFFFD");
    EXPECT_EQ(EncryptionTools::FromBytes({0x00, 0xD8}), "\uFFFD");
    EXPECT_EQ(EncryptionTools::ToBytes("\xFF"), (EncryptionTools::Bytes{0xFD, 0xFF}));
}

}  // namespace
}  // namespace tallix
