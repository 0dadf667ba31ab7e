// The jobs that are measured, and their floors.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "world.h"

namespace tallix::bench {

struct Job {
    std::string name;
    double limit = 0;                         ///< greatest ratio to the floor
    std::function<std::int64_t(World&)> run;  ///< returns the bytes written
    std::function<void(World&, std::int64_t bytes)> floor;
    std::function<void(World&)> prepare = {};  ///< before the job and its floor, not measured
    bool isReport = false;                     ///< its memory is held against the text fetched
};

std::vector<Job> Jobs();

/// The bytes of text that the statement of a report fetches.
std::int64_t TextOfAllCalls(World& world);

}  // namespace tallix::bench
