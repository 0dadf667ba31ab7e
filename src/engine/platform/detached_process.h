// Starting processes that outlive this program and leave nothing for it to wait for.
#pragma once

#include <sys/types.h>
#include <unistd.h>

#include <cstdlib>

namespace tallix {

/// Waits until the child ends. Returns what it ended with; -1 where it was killed or there
/// is none.
int WaitForChild(pid_t child);

/// Runs `body` in a process that is the child of a child that has ended, and thus belongs
/// to nobody. Only system calls may be made in it, as the other threads are missing there.
template <typename Body>
void RunDetached(Body body) {
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        if (fork() == 0) body();
        _exit(EXIT_SUCCESS);
    }
    WaitForChild(child);
}

/// The last step of every start of another program: turns a process that was just forked
/// into one that has no standard streams, and of this program's files none. `arguments`
/// begin with the program's path and end with a null pointer.
[[noreturn]] void BecomeProgram(char* const* arguments);

}  // namespace tallix
