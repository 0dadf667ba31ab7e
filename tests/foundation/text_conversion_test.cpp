#include "foundation/text_conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "foundation/errors.h"

namespace tallix {
namespace {

template <typename Conversion>
auto OrNothing(Conversion&& conversion) -> std::optional<decltype(conversion())> {
    try {
        return conversion();
    } catch (const ConversionError&) {
        return std::nullopt;
    }
}

TEST(TextConversion, ReadsWholeNumbersHalfToEven) {
    const struct {
        std::string text;
        std::optional<std::int32_t> value;
    } cases[] = {
        {"42", 42},
        {"-7", -7},
        {"+7", 7},
        {" \t12 ", 12},
        {"007", 7},
        {"0.5", 0},
        {"1.5", 2},
        {"2.5", 2},
        {"-2.5", -2},
        {".5", 0},
        {".7", 1},
        {"5.", 5},
        {"1e3", 1000},
        {"25E-1", 2},
        {"-0", 0},
        {"0e999", 0},
        {"1e-999", 0},
        {"1e999", {}},
        {"2147483647", 2147483647},
        {"-2147483648", INT32_MIN},
        {"2147483647.5", {}},
        {"2147483648", {}},
        {"1234567890", 1234567890},
        {"", {}},
        {"-", {}},
        {".", {}},
        {"e5", {}},
        {"1e", {}},
        {"12a", {}},
        {"1 2", {}},
        {"--1", {}},
        {"nan", {}},
        {"inf", {}},
        {"0x10", {}},
        {"1,000", {}},
        {"£5", {}},
        {"1.2.3", {}},
        {"+-1", {}},
        {std::string(400, '9'), {}},
        {"0." + std::string(400, '0') + "1", 0},
        {std::string(400, '0') + "1", 1},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(OrNothing([&] { return ToInteger32(each.text); }), each.value) << each.text;
    }
}

TEST(TextConversion, SixteenBitsEndAtTheirOwnLimits) {
    EXPECT_EQ(ToInteger16("32767"), 32767);
    EXPECT_EQ(ToInteger16("-32768"), -32768);
    EXPECT_EQ(ToInteger16("32767.4"), 32767);
    EXPECT_THROW(ToInteger16("32767.5"), ConversionError);
    EXPECT_THROW(ToInteger16("40000"), ConversionError);
    EXPECT_THROW(RoundToInteger32(std::nan("")), ConversionError);
}

TEST(TextConversion, NumericMeansReadableWhateverTheRange) {
    for (const char* text : {"1.5", "1e3", " 7 ", "1e999"}) EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", "12a", "True", "&H1F"}) EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(TextConversion, BooleansAreWordsOrNumbers) {
    for (const char* text : {"True", "TRUE", "true", "1", "-1", "0.1", " 2 "})
        EXPECT_TRUE(ToBoolean(text)) << text;
    for (const char* text : {"False", "fAlSe", "0", "0.0", "-0"}) EXPECT_FALSE(ToBoolean(text)) << text;
    for (const char* text : {"", "yes", "T", "Truee"}) EXPECT_THROW(ToBoolean(text), ConversionError) << text;
}

/// The moment as "dd/mm/yyyy hh:mm:ss", or "none".
std::string Shown(std::string_view text) {
    const auto moment = OrNothing([&] { return ToDateTime(text); });
    return moment ? ShortDate(*moment) + " " + ShortTime(*moment) : "none";
}

TEST(TextConversion, ReadsDatesDayFirstAndTimes) {
    const std::pair<const char*, const char*> cases[] = {
        {"31/12/2020", "31/12/2020 00:00:00"},
        {"12/31/2020", "31/12/2020 00:00:00"},
        {"1-2-2021", "01/02/2021 00:00:00"},
        {"01.02.21", "01/02/2021 00:00:00"},
        {"2020-12-31", "31/12/2020 00:00:00"},
        {"2020/31/12", "31/12/2020 00:00:00"},
        {"1/1/29", "01/01/2029 00:00:00"},
        {"1/1/30", "01/01/1930 00:00:00"},
        {"31 December 2020", "31/12/2020 00:00:00"},
        {"31-dec-20", "31/12/2020 00:00:00"},
        {"December 31, 2020", "31/12/2020 00:00:00"},
        {"Sept 5 2020 9:05 pm", "05/09/2020 21:05:00"},
        {"29/02/2020", "29/02/2020 00:00:00"},
        {" 31/12/2020  23:59:58 ", "31/12/2020 23:59:58"},
        {"09:30", "00/00/0000 09:30:00"},
        {"12:15 AM", "00/00/0000 00:15:00"},
        {"12:15pm", "00/00/0000 12:15:00"},
        // no moments
        {"29/02/2021", "none"},
        {"29/02/1900", "none"},
        {"31/04/2021", "none"},
        {"0/1/2021", "none"},
        {"13/13/2021", "none"},
        {"1/2/123", "none"},
        {"1/2/99999", "none"},
        {"1/2-2021", "none"},
        {"1/2", "none"},
        {"24:00:00", "none"},
        {"10:60", "none"},
        {"10:00:60", "none"},
        {"13:00 pm", "none"},
        {"10:00 xm", "none"},
        {"aa:bb:cc", "none"},
        {"dd/mm/yyyy", "none"},
        {"31/12/2020 junk", "none"},
        {"31/12/202:", "none"},
        {"Decorum 31 2020", "none"},
        {"", "none"},
        {"44196", "none"},
        {"10:20:30:40", "none"},
    };
    for (const auto& [text, shown] : cases) EXPECT_EQ(Shown(text), shown) << text;
}

TEST(TextConversion, DayNumbersRoundTheirTimeHalfToEven) {
    const std::pair<const char*, int> cases[] = {{"31/12/1899", 1},
                                                 {"30/12/1899", 0},
                                                 {"1/1/1970", 25569},
                                                 {"29/12/1899", -1},
                                                 {"31/12/2020", 44196},
                                                 {"31/12/2020 11:59:59", 44196},
                                                 {"31/12/2020 12:00:00", 44196},
                                                 {"1/1/2021 12:00", 44198},
                                                 {"31/12/2020 12:00:01", 44197},
                                                 {"12:00", 0},
                                                 {"18:00", 1},
                                                 {"29/12/1899 18:00", -2}};
    for (const auto& [text, day] : cases) EXPECT_EQ(DayNumber(text), day) << text;
    EXPECT_THROW(DayNumber("tomorrow"), ConversionError);
}

TEST(TextConversion, TimeNumbersLeaveTheDateAside) {
    EXPECT_EQ(TimeNo("09:30:15"), 93015);
    EXPECT_EQ(TimeNo("23:59"), 235900);
    EXPECT_EQ(TimeNo("31/12/2020 00:00:07"), 7);
    EXPECT_EQ(TimeNo("31/12/2020"), 0);
    EXPECT_THROW(TimeNo("25:00:00"), ConversionError);
    EXPECT_THROW(TimeNo(""), ConversionError);
}

TEST(TextPieces, CountCharactersAndNotBytes) {
    const std::string_view text = "a£€𝄞z";
    EXPECT_EQ(Len(text), 5U);
    EXPECT_EQ(Left(text, 2), "a£");
    EXPECT_EQ(Right(text, 2), "𝄞z");
    EXPECT_EQ(Mid(text, 2, 3), "£€𝄞");
    EXPECT_EQ(Left(text, 9), text);
    EXPECT_EQ(Right(text, 9), text);
    EXPECT_EQ(Mid(text, 6, 1), "");
    EXPECT_EQ(Mid(text, 9, SIZE_MAX), "");
    EXPECT_THROW(Mid(text, 0, 1), ConversionError);
    EXPECT_EQ(Len("\x80\x80"
                  "a"),
              2U)
        << "stray bytes count as one character";
}

TEST(TextPieces, CaseReachesTheAccentedLetters) {
    EXPECT_EQ(LowerCase("AZ ÀÞ× ŠŒŽŸ Ω"), "az àþ× šœžÿ Ω");
    EXPECT_EQ(UpperCase("az àþ÷ šœžÿ ßµ"), "AZ ÀÞ÷ ŠŒŽŸ ßµ");
    EXPECT_TRUE(EqualNoCase("Éric\\ŸZ", "éRIC\\ÿz"));
    EXPECT_FALSE(EqualNoCase("Éric", "Eric"));
    EXPECT_FALSE(EqualNoCase("@[", "`{"));
}

TEST(TextPieces, TrimsAndReplaces) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\t "), "\t");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Replace("a:b::", ":", "=:"), "a=:b=:=:");
    EXPECT_EQ(Replace("abc", "x", "y"), "abc");
}

}  // namespace
}  // namespace tallix
