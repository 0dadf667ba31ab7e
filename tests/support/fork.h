// A part of a test that runs in a process of its own, at the same time as the rest.
//
//     const pid_t other = test::Fork([&] { return Save(settings); });
//     ...
//     EXPECT_EQ(test::WaitFor(other), 0);
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <exception>

namespace tallix::test {

/// Runs `body` in a copy of this process, which ends with 0 where it returns true, with 1
/// where it returns false or throws.
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

/// The status with which it ends.
inline int WaitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

}  // namespace tallix::test
