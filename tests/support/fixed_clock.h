// A clock that stands still at the moment a test gives it.
#pragma once

#include "foundation/clock.h"

namespace tallix::test {

class FixedClock : public Clock {
public:
    explicit FixedClock(DateTime moment = {2021, 3, 9, 14, 5, 30}) : moment(moment) {}

    DateTime Now() const override { return moment; }

    DateTime moment;
};

}  // namespace tallix::test
