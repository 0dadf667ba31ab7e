// The time of day, as an interface so that tests can set it.
#pragma once

#include <string>
#include <vector>

#include "text/text_conversion.h"

namespace tallix {

class Clock {
public:
    virtual ~Clock() = default;

    /// The local date and time.
    virtual DateTime Now() const = 0;
};

class SystemClock : public Clock {
public:
    DateTime Now() const override;
};

/// hh:mm, the form in which pages and the access log show the time.
std::string HoursAndMinutes(const DateTime& moment);

/// Every minute of the day in that form, "00:00" to "23:59".
std::vector<std::string> MinutesOfTheDay();

}  // namespace tallix
