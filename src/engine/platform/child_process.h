// Another program that is run to its end, with what it says kept.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallix {

struct ChildResult {
    int status = -1;  ///< what it ended with; -1 where it was not started or was killed
    std::string out{};
    std::string error{};
};

/// Runs a program, found on the search path, with its arguments behind it and `input` to
/// read, and waits for it.
ChildResult RunChild(const std::vector<std::string>& command, std::string_view input = {});

}  // namespace tallix
