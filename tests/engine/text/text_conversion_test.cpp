#include "text/text_conversion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "failures/errors.h"
#include "text/ip_address.h"

namespace tallix {
namespace {

TEST(TextConversion, ReadsWholeNumbersHalfToEven) {
    for (const char* text : {"1.5", "2.5", " \t+2 ", "002", "2.", "25E-1"})
        EXPECT_EQ(ToInteger32(text), 2) << text;
    for (const char* text : {"0.5", "-.5", "-0", "0e999", "1e-999"}) EXPECT_EQ(ToInteger32(text), 0) << text;
    EXPECT_EQ(ToInteger32("-2.5"), -2);
    EXPECT_EQ(ToInteger32("2147483647"), INT32_MAX);
    EXPECT_EQ(ToInteger32("-2147483648"), INT32_MIN);
    for (const char* text : {"", "-", ".", "e5", "1e", "12a", "1 2", "+-1", "nan", "inf", "0x10", "1,000",
                             "£5", "1.2.3", "1e999", "2147483647.5", "2147483648"})
        EXPECT_THROW(ToInteger32(text), ConversionError) << text;
    EXPECT_EQ(ToInteger32("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(ToInteger16("32767.4"), 32767);
    EXPECT_EQ(ToInteger16("-32768"), -32768);
    EXPECT_THROW(ToInteger16("32767.5"), ConversionError);
    EXPECT_THROW(RoundToInteger32(std::nan("")), ConversionError);
}

TEST(TextConversion, RecognisesNumbersAndBooleans) {
    for (const char* text : {"1.5", "1e3", " 7 ", "1e999"}) EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", "12a", "True", "&H1F"}) EXPECT_FALSE(IsNumeric(text)) << text;
    for (const char* text : {"True", "tRUE", "-1", "0.1", " 2 "}) EXPECT_TRUE(ToBoolean(text)) << text;
    for (const char* text : {"fAlSe", "0", "0.0", "-0"}) EXPECT_FALSE(ToBoolean(text)) << text;
    for (const char* text : {"", "yes", "T", "Truee"}) EXPECT_THROW(ToBoolean(text), ConversionError) << text;
}

TEST(TextConversion, ReadsDatesDayFirstAndTimes) {
    const auto shown = [](std::string_view text) {
        const DateTime moment = ToDateTime(text);
        return ShortDate(moment) + " " + ShortTime(moment);
    };
    for (const char* text : {"31/12/2020", "12/31/2020", "31.12.20", "2020-12-31", "2020/31/12", "31-dec-20",
                             "December 31, 2020"})
        EXPECT_EQ(shown(text), "31/12/2020 00:00:00") << text;
    EXPECT_EQ(shown("1-2-29"), "01/02/2029 00:00:00");
    EXPECT_EQ(shown("1/2/30"), "01/02/1930 00:00:00");
    EXPECT_EQ(shown("Sept 5 2020 9:05 pm"), "05/09/2020 21:05:00");
    EXPECT_EQ(shown(" 29/02/2020  23:59:58 "), "29/02/2020 23:59:58");
    EXPECT_EQ(shown("12:15 AM"), "00/00/0000 00:15:00");
    EXPECT_EQ(shown("12:15pm"), "00/00/0000 12:15:00");
    for (const char* text :
         {"29/02/1900", "31/04/2021", "0/1/2021",   "13/13/2021",      "1/2/123",    "1/2/99999",
          "1/2-2021",   "1/2",        "24:00:00",   "10:60",           "10:00:60",   "13:00 pm",
          "10:00 xm",   "aa:bb:cc",   "dd/mm/yyyy", "31/12/2020 junk", "31/12/202:", "Decorum 31 2020",
          "",           "44196",      "10:20:30:40"})
        EXPECT_THROW(ToDateTime(text), ConversionError) << text;
}

TEST(TextConversion, CountsDaysHalfToEvenAndTimesWithoutTheirDate) {
    for (const char* text : {"31/12/2020", "31/12/2020 12:00:00", "30/12/2020 12:00:01"})
        EXPECT_EQ(DayNumber(text), 44196) << text;
    EXPECT_EQ(DayNumber("1/1/2021 12:00"), 44198);
    EXPECT_EQ(DayNumber("18:00"), 1);
    EXPECT_EQ(DayNumber("29/12/1899"), -1);
    EXPECT_EQ(DayNumber("29/12/1899 18:00"), -2);
    EXPECT_EQ(TimeNo("09:30:15"), 93015);
    EXPECT_EQ(TimeNo("31/12/2020 00:00:07"), 7);
    EXPECT_EQ(TimeNo("31/12/2020"), 0);
    EXPECT_THROW(TimeNo("25:00:00"), ConversionError);
}

TEST(TextPieces, CountCharactersAndNotBytesAndKnowTheCaseOfAccentedLetters) {
    const std::string_view text = "a£€𝄞z";
    EXPECT_EQ(Len(text), 5U);
    EXPECT_EQ(Left(text, 2), "a£");
    EXPECT_EQ(Right(text, 2), "𝄞z");
    EXPECT_EQ(Mid(text, 2, 3), "£€𝄞");
    EXPECT_EQ(Left(text, 9), text);
    EXPECT_EQ(Right(text, 9), text);
    EXPECT_EQ(Mid(text, 9, SIZE_MAX), "");
    EXPECT_THROW(Mid(text, 0, 1), ConversionError);
    EXPECT_EQ(Len("\x80\x80z"), 2U) << "stray bytes count as one character";
    EXPECT_EQ(LowerCase("AZ ÀÞ× ŠŒŽŸ Ω"), "az àþ× šœžÿ Ω");
    EXPECT_EQ(UpperCase("az àþ÷ šœžÿ ßµ"), "AZ ÀÞ÷ ŠŒŽŸ ßµ");
    EXPECT_TRUE(EqualNoCase("Éric\\ŸZ", "éRIC\\ÿz"));
    EXPECT_FALSE(EqualNoCase("@[", "`{"));
    EXPECT_EQ(Trim("  a\t b  "), "a\t b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Replace("a:b::", ":", "=:"), "a=:b=:=:");
}

TEST(IpAddress, IsFourNumbersUpTo255) {
    for (const EmptyPart part : {EmptyPart::CountsAsZero, EmptyPart::Refused}) {
        for (const char* valid : {"1.2.3.4", "0.0.0.0", "255.255.255.255", "010.000.0000.0255"})
            EXPECT_TRUE(IsIpAddress(valid, part)) << valid;
        for (const char* invalid :
             {"", ".", "...", ".1.2.3", "1.2.3.", "1.2.3", "1.2.3.4.5", "1.2.3.256", "4294967297.2.3.4",
              "99999999999999999999.1.1.1", "-1.2.3.4", "1.2.3.4 ", "1.2.3.a", "localhost", "::1"})
            EXPECT_FALSE(IsIpAddress(invalid, part)) << invalid;
        for (const char* gaps : {"1..2.3", "1.2..3", "1...2"})
            EXPECT_EQ(IsIpAddress(gaps, part), part == EmptyPart::CountsAsZero) << gaps;
    }
}

}  // namespace
}  // namespace tallix
