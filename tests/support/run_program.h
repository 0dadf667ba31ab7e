// A built program run from outside, as a person or a script would run it.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tallix::test {

struct ProgramRun {
    int status = -1;  ///< what it ended with; -1 where it was killed
    std::string out;  ///< standard output
    std::string err;  ///< standard error
};

/// Runs a program to its end with `environment` added to the test's own.
ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::vector<std::pair<std::string, std::string>>& environment = {});

}  // namespace tallix::test
