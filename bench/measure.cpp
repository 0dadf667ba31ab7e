#include "measure.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace tallix::bench {

namespace {

constexpr double kKilobytesPerMegabyte = 1024.0;

struct Outcome {
    double seconds = 0;
    std::int64_t result = 0;
};

[[noreturn]] void RunInChild(const std::function<std::int64_t()>& work, int pipe) {
    try {
        const auto start = std::chrono::steady_clock::now();
        Outcome outcome;
        outcome.result = work();
        outcome.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        if (write(pipe, &outcome, sizeof outcome) == sizeof outcome) _exit(EXIT_SUCCESS);
    } catch (const std::exception& failure) {
        std::cerr << "bench: " << failure.what() << std::endl;
    }
    _exit(EXIT_FAILURE);
}

}  // namespace

Measured Measure(const std::function<std::int64_t()>& work) {
    int ends[2];
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("no process");
    if (child == 0) RunInChild(work, ends[1]);
    close(ends[1]);
    Outcome outcome;
    const bool complete = read(ends[0], &outcome, sizeof outcome) == sizeof outcome;
    close(ends[0]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (!complete) throw std::runtime_error("a job failed");
    return {outcome.seconds, static_cast<double>(usage.ru_maxrss) / kKilobytesPerMegabyte, outcome.result};
}

}  // namespace tallix::bench
