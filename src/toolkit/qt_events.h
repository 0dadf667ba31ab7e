// Serves the toolkit's events from inside long work.
#pragma once

#include <chrono>

#include "host/event_queue.h"

namespace tallix::toolkit {

class QtEvents : public EventQueue {
public:
    /// A call that comes after a pause serves at once; calls in quick succession, as
    /// from a loop over records, serve 20 times a second at most, painting included.
    void Serve() override;

    /// The work runs on a thread of its own, so that the windows answer all the while.
    void ServeDuring(const std::function<void()>& work) override;

private:
    using Moment = std::chrono::steady_clock::time_point;

    Moment lastCall_{};
    Moment lastServed_{};
};

}  // namespace tallix::toolkit
