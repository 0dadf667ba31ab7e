// Text to value and back, as every stored text of the system is read: switches,
// numbers, dates and times. Conversions that find no value throw ConversionError,
// so that continue-on-error (foundation/attempt.h) can pass over them.
//
// Text is UTF-8 and positions count characters, not bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallix {

/// "True" and "False" in any case; any number, where all but 0 is true.
bool ToBoolean(std::string_view text);

/// A number in text, rounded half to even. Blanks around it, a sign, decimals and
/// an exponent are taken. Throws when the text is no number or the value does not fit.
std::int16_t ToInteger16(std::string_view text);
std::int32_t ToInteger32(std::string_view text);

/// Half to even, the one rounding of the system. Throws when the value does not fit.
std::int16_t RoundToInteger16(double value);
std::int32_t RoundToInteger32(double value);

/// Whether ToInteger32 and its kin could read the text, leaving range aside: "1.5"
/// and "1e3" are numeric, "" and "12a" are not.
bool IsNumeric(std::string_view text);

/// A moment as the system's texts hold it: a calendar day, a time of day, or both.
struct DateTime {
    int year = 0;  ///< 0 when the text held a time alone
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Reads a date, a time, or a date and a time divided by a blank. Dates are day
/// first ("31/12/2020", also with "-" or "."), year first ("2020-12-31"), or with an
/// English month name; a month above 12 swaps day and month; a year of two digits
/// is 1930 to 2029. Times are "hh:mm" or "hh:mm:ss", also with AM or PM.
DateTime ToDateTime(std::string_view text);

/// The whole day number of a text with a date: 1 is 31 December 1899. A time of day
/// counts as its fraction of a day and rounds half to even with the rest.
std::int32_t DayNumber(std::string_view text);

/// A time as the whole number of its form hhnnss: 09:30:15 is 93015. The date part
/// of the text, if it has one, does not count. Throws for a text that is no time.
std::int32_t TimeNo(std::string_view text);

/// dd/mm/yyyy and hh:mm:ss, the short forms in which the system writes.
std::string ShortDate(const DateTime& moment);
std::string ShortTime(const DateTime& moment);

/// The number of characters of a text.
std::size_t Len(std::string_view text);

/// The first, the last, and `count` characters from the one-based `start`. Less is
/// returned where the text has less.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count);

/// Without blanks (character 32) at both ends.
std::string_view Trim(std::string_view text);

/// The text with every occurrence of `from` replaced by `to`. `from` is not empty.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

/// Lower and upper case of the letters A to Z and of the accented letters of
/// Windows-1252; other characters stay.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Equality without regard to case, as LowerCase sees it.
bool EqualNoCase(std::string_view left, std::string_view right);

}  // namespace tallix
