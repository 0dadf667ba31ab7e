// A print system of a test's own: a spooler on a socket in a folder of its own, with
// one printer whose device keeps each job as a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "support/run_program.h"
#include "support/temp_folder.h"

namespace tallix::test {

class PrintServer {
public:
    /// Starts the spooler and waits until it answers; this process then prints through it.
    explicit PrintServer(const std::string& printer);

    /// The documents that the device has got, oldest first.
    std::vector<std::filesystem::path> Jobs() const;

private:
    TempFolder folder_;
    std::optional<RunningProgram> process_;
};

}  // namespace tallix::test
