// A server of the tests' own, written in Python: started on loopback at a port that it
// chooses and prints, and stopped by its process id.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace tallix::test {

class PythonServer {
public:
    /// Starts tests/support/`script` and waits for its port. The arguments hold no
    /// apostrophe. The script ends when its standard input does, so that it never outlives
    /// the test. Throws std::runtime_error when it does not start.
    PythonServer(const std::string& script, const std::vector<std::string>& arguments);
    ~PythonServer();
    PythonServer(const PythonServer&) = delete;
    PythonServer& operator=(const PythonServer&) = delete;

    int Port() const { return port_; }

private:
    TempFolder folder_;
    FILE* input_ = nullptr;
    int port_ = 0;
};

}  // namespace tallix::test
