// A print system of a test's own: a spooler on a socket in a folder of its own, with
// one printer whose device keeps each job as a file.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace tallix::test {

class PrintServer {
public:
    /// Starts the spooler and waits until it answers; this process then prints through it.
    explicit PrintServer(const std::string& printer);
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// The documents that the device has got, oldest first.
    std::vector<std::filesystem::path> Jobs() const;

private:
    void WriteConfiguration(const std::string& printer) const;

    TempFolder folder_;
    pid_t process_ = -1;
};

}  // namespace tallix::test
