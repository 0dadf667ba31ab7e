#include "foundation/clock.h"

#include <fmt/format.h>

#include <ctime>

namespace tallix {
namespace {

constexpr int kFirstYearOfTm = 1900;

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

}  // namespace tallix
