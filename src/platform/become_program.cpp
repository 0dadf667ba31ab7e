#include "platform/become_program.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

namespace tallix {
namespace {

constexpr int kFirstOwnDescriptor = 3;

}  // namespace

void BecomeProgram(char* const* arguments) {
    const int null = open("/dev/null", O_RDWR);
    for (int standard = 0; null >= 0 && standard < kFirstOwnDescriptor; ++standard) dup2(null, standard);
    close_range(kFirstOwnDescriptor, ~0U, 0);
    execv(arguments[0], arguments);
    _exit(EXIT_FAILURE);
}

}  // namespace tallix
