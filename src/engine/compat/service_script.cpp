#include "compat/service_script.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string>

#include "platform/detached_process.h"

namespace tallix {
namespace {

using WaitClock = std::chrono::steady_clock;  // a clock of the day would be set back at times

constexpr int kPollMilliseconds = 20;

/// Keeps `pipe` open, and nothing else of this program's, for as long as the script runs.
[[noreturn]] void WatchScript(char* const* arguments, const char* from, int pipe) {
    dup2(pipe, STDIN_FILENO);
    close_range(STDIN_FILENO + 1, ~0U, 0);
    const pid_t script = fork();
    if (script == 0 && chdir(from) == 0) BecomeProgram(arguments);
    WaitForChild(script);
    _exit(EXIT_SUCCESS);
}

/// Whether the pipe's other end is closed, waiting for that a moment.
bool IsClosed(int pipe) {
    pollfd wait{pipe, 0, 0};
    return poll(&wait, 1, kPollMilliseconds) > 0;
}

}  // namespace

bool RunServiceScript(const std::filesystem::path& script, const std::filesystem::path& from,
                      std::chrono::milliseconds limit, const std::function<void()>& whileWaiting) {
    std::array<std::string, 2> line{"/bin/sh", script.string()};
    std::array<char*, 3> arguments{line[0].data(), line[1].data(), nullptr};
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return true;
    RunDetached([&] { WatchScript(arguments.data(), from.c_str(), ends[1]); });
    close(ends[1]);
    const auto end = WaitClock::now() + limit;
    bool ended = IsClosed(ends[0]);
    while (!ended && WaitClock::now() < end) {
        whileWaiting();
        ended = IsClosed(ends[0]);
    }
    close(ends[0]);
    return ended;
}

}  // namespace tallix
