#include "support/python_server.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace tallix::test {
namespace {

/// The system's own interpreter: others do not see Debian's packages.
constexpr const char* kPython = "/usr/bin/python3";

std::array<int, 2> MakePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("No pipe for a test's server");
    return ends;
}

int ReadPort(int output) {
    FILE* lines = fdopen(output, "r");
    std::array<char, 16> line{};
    const bool read = std::fgets(line.data(), static_cast<int>(line.size()), lines) != nullptr;
    std::fclose(lines);
    return read ? std::atoi(line.data()) : 0;
}

}  // namespace

PythonServer::PythonServer(const std::string& script, const std::vector<std::string>& arguments) {
    const auto input = MakePipe();
    const auto output = MakePipe();
    std::vector<std::string> words = {kPython, TALLIX_SOURCE_DIR "/tests/support/" + script};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) pointers.push_back(word.data());
    pointers.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        execv(kPython, pointers.data());
        _exit(127);
    }
    close(input[0]);
    close(output[1]);
    input_ = input[1];
    port_ = ReadPort(output[0]);
    if (port_ == 0) throw std::runtime_error(script + " did not start");
}

PythonServer::~PythonServer() {
    close(input_);
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
}

}  // namespace tallix::test
