#include "platform/detached_process.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <cerrno>

namespace tallix {
namespace {

constexpr int kFirstOwnDescriptor = 3;

}  // namespace

int WaitForChild(pid_t child) {
    int state = 0;
    if (child <= 0) return -1;
    while (waitpid(child, &state, 0) < 0) {
        if (errno != EINTR) return -1;
    }
    return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
}

void BecomeProgram(char* const* arguments) {
    const int null = open("/dev/null", O_RDWR);
    for (int standard = 0; null >= 0 && standard < kFirstOwnDescriptor; ++standard) dup2(null, standard);
    close_range(kFirstOwnDescriptor, ~0U, 0);
    execv(arguments[0], arguments);
    _exit(EXIT_FAILURE);
}

}  // namespace tallix
