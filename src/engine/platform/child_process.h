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

/// Runs `command`, a program on the search path followed by its arguments, gives it `input`
/// to read, and waits for it.
ChildResult RunChild(const std::vector<std::string>& command, std::string_view input = {});

}  // namespace tallix
