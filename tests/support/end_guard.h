// What must happen when this process ends, even if it is killed.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace tallix::test {

/// A shell of another session that waits for the end of its input, which comes with the
/// guard's or the process's, and then runs the command, which holds no apostrophe.
class EndGuard {
public:
    explicit EndGuard(const std::string& command)
        : shell_(popen(("exec setsid /bin/sh -c 'cat; " + command + "' >/dev/null 2>&1").c_str(), "we")) {
        if (shell_ == nullptr) throw std::runtime_error("no guard: " + command);
    }
    ~EndGuard() { pclose(shell_); }
    EndGuard(const EndGuard&) = delete;
    EndGuard& operator=(const EndGuard&) = delete;

private:
    FILE* shell_;
};

}  // namespace tallix::test
