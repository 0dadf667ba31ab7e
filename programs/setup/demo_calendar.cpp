#include "setup/demo_calendar.h"

#include <array>

#include "setup/random_source.h"

namespace tallix {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::uint64_t kWeightOfDayOff = 3;
constexpr std::uint64_t kWeightOfSaturday = 11;
constexpr std::array<std::uint64_t, 7> kWeekdayWeights = {kWeightOfDayOff,  108, 104, 101, 99, 88,
                                                          kWeightOfSaturday};
constexpr std::array<std::uint64_t, 12> kMonthWeights = {98, 101, 106, 96,  98,  102,
                                                         95, 82,  104, 107, 108, 84};

bool IsHoliday(sys_days day) {
    const year_month_day date{day};
    const unsigned month = static_cast<unsigned>(date.month());
    const unsigned dayOfMonth = static_cast<unsigned>(date.day());
    return (month == 12 && (dayOfMonth == 25 || dayOfMonth == 26)) || (month == 1 && dayOfMonth == 1);
}

std::uint64_t WeightOf(sys_days day, RandomSource& random) {
    const std::uint64_t noise = random.Between(85, 115);
    const std::chrono::weekday weekday{day};
    const std::uint64_t base = IsHoliday(day) ? kWeightOfDayOff : kWeekdayWeights[weekday.c_encoding()];
    return base * kMonthWeights[static_cast<unsigned>(year_month_day{day}.month()) - 1] * noise;
}

}  // namespace

bool IsDayOff(sys_days day) {
    const std::chrono::weekday weekday{day};
    return weekday == std::chrono::Saturday || weekday == std::chrono::Sunday || IsHoliday(day);
}

DemoCalendar::DemoCalendar(std::uint64_t calls, std::uint64_t seed) : calls_(calls) {
    RandomSource random(seed);
    std::uint64_t sum = 0;
    for (sys_days day = kFirstCallDay; day <= kLastCallDay; day += std::chrono::days{1}) {
        sum += WeightOf(day, random);
        weightUntil_.push_back(sum);
    }
}

// Shares are cut from the running sum, so that they add up exactly and small numbers
// of calls spread over the years as well.
std::uint64_t DemoCalendar::CallsUntil(std::size_t days) const {
    return days == 0 ? 0 : calls_ * weightUntil_[days - 1] / weightUntil_.back();
}

std::uint64_t DemoCalendar::CallsOn(std::size_t index) const {
    return CallsUntil(index + 1) - CallsUntil(index);
}

}  // namespace tallix
