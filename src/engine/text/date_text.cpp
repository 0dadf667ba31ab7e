#include "text/date_text.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <utility>

#include "failures/errors.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
constexpr int kLastShortYearOf2000 = 29;
constexpr int kLastMonth = 12;
constexpr int kNoon = 12;
constexpr int kSecondsADay = 86400;
constexpr std::size_t kDigitsOfYear = 4;
constexpr std::size_t kLeastLettersOfMonth = 3;
constexpr std::chrono::sys_days kDayZero = std::chrono::December / 30 / 1899;
constexpr std::string_view kDigits = "0123456789";

constexpr std::array<std::string_view, 12> kMonths = {"january",   "february", "march",    "april",
                                                      "may",       "june",     "july",     "august",
                                                      "september", "october",  "november", "december"};

/// Takes a text apart from its front. Every Take leaves the rest as it was when it
/// finds nothing.
class Scanner {
public:
    explicit Scanner(std::string_view rest) : rest_(rest) {}

    bool AtEnd() const { return rest_.empty(); }

    bool Take(char character) {
        if (!rest_.starts_with(character)) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// Whether there were any.
    bool TakeBlanks() {
        const std::size_t before = rest_.size();
        while (Take(' ') || Take('\t')) {
        }
        return rest_.size() != before;
    }

    /// All digits in front, which are at most four; empty where there are none.
    std::string_view TakeDigits() {
        const std::size_t count = std::min(rest_.find_first_not_of(kDigits), rest_.size());
        return count > kDigitsOfYear ? std::string_view() : TakeFront(count);
    }

    std::string_view TakeLetters() {
        std::size_t count = 0;
        while (count < rest_.size() && IsLetter(rest_[count])) ++count;
        return TakeFront(count);
    }

    /// The character that divides the parts of a date; 0 where there is none. Blanks
    /// count as one blank.
    char TakeDivider() {
        if (TakeBlanks()) return ' ';
        for (const char divider : {'/', '-', '.', ','}) {
            if (Take(divider)) return divider;
        }
        return 0;
    }

private:
    static bool IsLetter(char character) {
        return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
    }

    std::string_view TakeFront(std::size_t count) {
        const std::string_view front = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return front;
    }

    std::string_view rest_;
};

int ToNumber(std::string_view digits) {
    int number = 0;
    for (const char digit : digits) number = number * 10 + (digit - '0');
    return number;
}

/// 1 to 12 for a name or its beginning, 0 for any other word.
int MonthOfName(std::string_view word) {
    if (word.size() < kLeastLettersOfMonth) return 0;
    for (std::size_t month = 0; month < kMonths.size(); ++month) {
        if (EqualNoCase(kMonths[month].substr(0, word.size()), word)) return static_cast<int>(month) + 1;
    }
    return 0;
}

/// A year of one or two digits is from 1930 to 2029. Three digits are not a year: they give
/// one that the calendar test refuses.
int ToYear(std::string_view digits) {
    const int year = ToNumber(digits);
    if (digits.size() == kDigitsOfYear) return year;
    if (digits.empty() || digits.size() > 2) return 0;
    return year + (year <= kLastShortYearOf2000 ? 2000 : 1900);
}

bool SetDate(DateTime& moment, int year, int month, int day) {
    if (month > kLastMonth) std::swap(month, day);
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (year < kFirstYear || year > kLastYear || !date.ok()) return false;
    moment.year = year;
    moment.month = month;
    moment.day = day;
    return true;
}

/// "December 31, 2020", "Dec 31 2020".
bool ReadMonthFirst(Scanner& scanner, DateTime& moment) {
    const int month = MonthOfName(scanner.TakeLetters());
    if (month == 0 || !scanner.TakeBlanks()) return false;
    const int day = ToNumber(scanner.TakeDigits());
    scanner.Take(',');
    if (!scanner.TakeBlanks()) return false;
    return SetDate(moment, ToYear(scanner.TakeDigits()), month, day);
}

/// "31 December 2020", "31-Dec-20", of which the day and the divider are taken.
bool ReadNamedMonth(Scanner& scanner, DateTime& moment, int day, char divider) {
    const int month = MonthOfName(scanner.TakeLetters());
    if (month == 0 || scanner.TakeDivider() != divider) return false;
    return SetDate(moment, ToYear(scanner.TakeDigits()), month, day);
}

bool ReadDate(Scanner& scanner, DateTime& moment) {
    const std::string_view first = scanner.TakeDigits();
    if (first.empty()) return ReadMonthFirst(scanner, moment);
    const char divider = scanner.TakeDivider();
    if (divider == 0 || divider == ',') return false;
    const std::string_view second = scanner.TakeDigits();
    if (second.empty()) return first.size() <= 2 && ReadNamedMonth(scanner, moment, ToNumber(first), divider);
    if (divider == ' ' || second.size() > 2 || !scanner.Take(divider)) return false;
    const std::string_view third = scanner.TakeDigits();
    const bool yearFirst = first.size() == kDigitsOfYear;
    if (third.empty() || (yearFirst ? third : first).size() > 2) return false;
    if (yearFirst) return SetDate(moment, ToYear(first), ToNumber(second), ToNumber(third));
    return SetDate(moment, ToYear(third), ToNumber(second), ToNumber(first));
}

/// Converts an hour of the twelve-hour clock by the word after it.
bool ApplyHalfOfDay(std::string_view word, int& hour) {
    const bool afternoon = EqualNoCase(word, "pm");
    if ((!afternoon && !EqualNoCase(word, "am")) || hour > kNoon) return false;
    hour = hour % kNoon + (afternoon ? kNoon : 0);
    return true;
}

bool ReadTime(Scanner& scanner, DateTime& moment) {
    const std::string_view hour = scanner.TakeDigits();
    if (!scanner.Take(':')) return false;
    const std::string_view minute = scanner.TakeDigits();
    const bool hasSecond = scanner.Take(':');
    const std::string_view second = hasSecond ? scanner.TakeDigits() : std::string_view("0");
    for (const std::string_view part : {hour, minute, second}) {
        if (part.empty() || part.size() > 2) return false;
    }
    moment.hour = ToNumber(hour);
    moment.minute = ToNumber(minute);
    moment.second = ToNumber(second);
    scanner.TakeBlanks();
    const std::string_view word = scanner.TakeLetters();
    if (!word.empty() && !ApplyHalfOfDay(word, moment.hour)) return false;
    return scanner.AtEnd() && moment.hour < 24 && moment.minute < 60 && moment.second < 60;
}

/// The two digits at a position; a negative number where they are none.
int TwoDigits(std::string_view text, std::size_t position) {
    const unsigned tens = static_cast<unsigned char>(text[position]) - '0';
    const unsigned ones = static_cast<unsigned char>(text[position + 1]) - '0';
    return tens > 9 || ones > 9 ? -1 : static_cast<int>(tens * 10 + ones);
}

/// dd/mm/yyyy and hh:mm:ss as the services write them, without a scanner's detours.
/// Anything else is left to the scanner.
bool ReadShortForm(std::string_view text, DateTime& moment) {
    if (text.size() == 10 && text[2] == '/' && text[5] == '/') {
        const int day = TwoDigits(text, 0);
        const int month = TwoDigits(text, 3);
        const int century = TwoDigits(text, 6);
        const int year = TwoDigits(text, 8);
        return (day | month | century | year) >= 0 && SetDate(moment, century * 100 + year, month, day);
    }
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') return false;
    moment.hour = TwoDigits(text, 0);
    moment.minute = TwoDigits(text, 3);
    moment.second = TwoDigits(text, 6);
    return (moment.hour | moment.minute | moment.second) >= 0 && moment.hour < 24 && moment.minute < 60 &&
           moment.second < 60;
}

/// Days before day 0 count their time away from 0, as the system's date values do.
std::int32_t DayOf(const DateTime& moment) {
    std::int32_t day = 0;
    if (moment.year != 0) {
        const std::chrono::year_month_day date{std::chrono::year(moment.year),
                                               std::chrono::month(static_cast<unsigned>(moment.month)),
                                               std::chrono::day(static_cast<unsigned>(moment.day))};
        day = static_cast<std::int32_t>((std::chrono::sys_days(date) - kDayZero).count());
    }
    const int twice = 2 * ((moment.hour * 60 + moment.minute) * 60 + moment.second);
    const bool roundsAway = twice > kSecondsADay || (twice == kSecondsADay && day % 2 != 0);
    if (!roundsAway) return day;
    return day < 0 ? day - 1 : day + 1;
}

}  // namespace

std::optional<DateTime> ReadDateTime(std::string_view text) {
    DateTime moment;
    if (ReadShortForm(text, moment)) return moment;
    const std::string_view trimmed = TrimBlanks(text);
    moment = {};
    Scanner timeAlone(trimmed);
    if (ReadTime(timeAlone, moment)) return moment;
    moment = {};
    Scanner scanner(trimmed);
    if (!ReadDate(scanner, moment)) return {};
    if (scanner.AtEnd()) return moment;
    if (scanner.TakeBlanks() && ReadTime(scanner, moment)) return moment;
    return {};
}

DateTime ToDateTime(std::string_view text) {
    const std::optional<DateTime> moment = ReadDateTime(text);
    if (!moment) throw ConversionError("\"" + std::string(text) + "\" is not a date or time");
    return *moment;
}

std::int32_t DayNumber(std::string_view text) {
    return DayOf(ToDateTime(text));
}

std::int32_t TimeNo(std::string_view text) {
    const DateTime moment = ToDateTime(text);
    return (moment.hour * 100 + moment.minute) * 100 + moment.second;
}

std::string ShortDate(const DateTime& moment) {
    return fmt::format("{:02}/{:02}/{:04}", moment.day, moment.month, moment.year);
}

std::string ShortTime(const DateTime& moment) {
    return fmt::format("{:02}:{:02}:{:02}", moment.hour, moment.minute, moment.second);
}

}  // namespace tallix
