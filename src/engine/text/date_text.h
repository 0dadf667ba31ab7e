// Dates and times in text. They are read for every record of a report: a text in an
// ordinary form is read without an allocation, and only a wrong one throws.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tallix {

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
/// is 1930 to 2029. Times are "hh:mm" or "hh:mm:ss", also with AM or PM. The day is
/// one that the calendar has, in the years 100 to 9999.
DateTime ToDateTime(std::string_view text);

/// The same; nothing where the text is not a moment.
std::optional<DateTime> ReadDateTime(std::string_view text);

/// The whole day number of a text with a date: 1 is 31 December 1899. A time of day
/// counts as its fraction of a day and rounds half to even with the rest. A time alone
/// is a fraction of day 0, 30 December 1899, so that "18:00" is 1.
std::int32_t DayNumber(std::string_view text);

/// A time as the whole number of its form hhnnss: 09:30:15 is 93015. The date part
/// of the text, if it has one, does not count, and a date alone is midnight. Throws for
/// a text that is neither.
std::int32_t TimeNo(std::string_view text);

/// dd/mm/yyyy and hh:mm:ss, the short forms in which the system writes.
std::string ShortDate(const DateTime& moment);
std::string ShortTime(const DateTime& moment);

}  // namespace tallix
