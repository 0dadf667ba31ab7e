// Other processes of a test.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/child_process.h"

namespace tallix::test {

struct ProgramRun {
    int status = -1;  ///< what it ended with; -1 where it was killed
    std::string out;  ///< standard output
    std::string err;  ///< standard error
};

/// Runs a program to its end with `environment` added to the test's own.
inline ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                             const std::vector<std::pair<std::string, std::string>>& environment = {}) {
    std::vector<std::string> command = {"env"};
    for (const auto& [name, value] : environment) command.push_back(name + "=" + value);
    command.push_back(program);
    command.insert(command.end(), arguments.begin(), arguments.end());
    const ChildResult run = RunChild(command);
    return {run.status, run.out, run.error};
}

/// Runs `body` in a copy of this process, at the same time as the rest of the test. The copy
/// ends with 0 where it returns true, with 1 where it returns false or throws.
template <typename Body>
pid_t Fork(Body body) {
    const pid_t child = fork();
    if (child != 0) return child;
    bool succeeded = false;
    try {
        succeeded = body();
    } catch (const std::exception&) {
    }
    _exit(succeeded ? 0 : 1);
}

/// The status with which the copy ends.
inline int WaitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

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
