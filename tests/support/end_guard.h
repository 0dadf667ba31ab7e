// What must happen when this process ends, even if it is killed.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace tallix::test {

/// A shell of another session, which may start something first. It waits for the end of
/// its input, which comes with the guard's or the process's, and then runs the command.
/// Neither text holds an apostrophe.
class EndGuard {
public:
    explicit EndGuard(const std::string& command, const std::string& first = "")
        : shell_(
              popen(("exec setsid /bin/sh -c '" + first + " cat; " + command + "' >/dev/null 2>&1").c_str(),
                    "we")) {
        if (shell_ == nullptr) throw std::runtime_error("no guard: " + command);
    }
    ~EndGuard() { pclose(shell_); }
    EndGuard(const EndGuard&) = delete;
    EndGuard& operator=(const EndGuard&) = delete;

private:
    FILE* shell_;
};

/// A program that runs until then.
class RunningProgram : EndGuard {
public:
    explicit RunningProgram(const std::string& command) : EndGuard("kill $!; wait", command + " &") {}
};

}  // namespace tallix::test
