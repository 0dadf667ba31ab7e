// On which days the demonstration calls fall: five years of a company's working
// life, ending at a fixed day so that a seed always gives the same calls.
#pragma once

#include <chrono>
#include <cstdint>
#include <vector>

namespace tallix {

/// The first and the last day that has calls.
inline constexpr std::chrono::sys_days kFirstCallDay = std::chrono::year{2019} / 7 / 1;
inline constexpr std::chrono::sys_days kLastCallDay = std::chrono::year{2024} / 6 / 30;

/// Saturdays, Sundays and the holidays round the turn of the year.
bool IsDayOff(std::chrono::sys_days day);

/// How a number of calls is shared out among the days.
class DemoCalendar {
public:
    DemoCalendar(std::uint64_t calls, std::uint64_t seed);

    /// The calls of the day `index` days after kFirstCallDay. The counts of
    /// all days together are the number of calls asked for.
    std::uint64_t CallsOn(std::size_t index) const;
    std::size_t Days() const { return weightUntil_.size(); }

private:
    std::uint64_t CallsUntil(std::size_t days) const;

    std::uint64_t calls_;
    std::vector<std::uint64_t> weightUntil_;  ///< of each day and all before it
};

}  // namespace tallix
