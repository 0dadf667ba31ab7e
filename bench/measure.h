// Time and memory of one piece of work, each in a process of its own: a peak does not hide a
// later one.
#pragma once

#include <cstdint>
#include <functional>

namespace tallix::bench {

struct Measured {
    double seconds = 0;
    double peakMegabytes = 0;  ///< greatest resident memory of the process
    std::int64_t result = 0;   ///< what the work returned
};

/// Runs the work in a child process. Throws std::runtime_error when it fails there.
Measured Measure(const std::function<std::int64_t()>& work);

}  // namespace tallix::bench
