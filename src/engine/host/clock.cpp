#include "host/clock.h"

#include <fmt/format.h>

#include <ctime>

namespace tallix {
namespace {

constexpr int kFirstYearOfTm = 1900;
constexpr int kMinutesOfAnHour = 60;
constexpr int kMinutesOfADay = 24 * kMinutesOfAnHour;

}  // namespace

DateTime SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + kFirstYearOfTm,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec};
}

std::string HoursAndMinutes(const DateTime& moment) {
    return fmt::format("{:02}:{:02}", moment.hour, moment.minute);
}

std::vector<std::string> MinutesOfTheDay() {
    std::vector<std::string> times;
    times.reserve(kMinutesOfADay);
    for (int minute = 0; minute < kMinutesOfADay; ++minute) {
        times.push_back(
            HoursAndMinutes({.hour = minute / kMinutesOfAnHour, .minute = minute % kMinutesOfAnHour}));
    }
    return times;
}

}  // namespace tallix
