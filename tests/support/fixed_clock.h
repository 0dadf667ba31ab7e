// A clock that always shows the moment a test gives it.
#pragma once

#include "host/clock.h"

namespace tallix::test {

class FixedClock : public Clock {
public:
    FixedClock() = default;
    explicit FixedClock(const DateTime& start) : moment(start) {}

    DateTime Now() const override { return moment; }

    DateTime moment{2021, 3, 9, 14, 5, 30};
};

}  // namespace tallix::test
