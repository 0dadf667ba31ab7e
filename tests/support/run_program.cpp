#include "support/run_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

#include "support/temp_folder.h"

namespace tallix::test {
namespace {

constexpr int kSignalled = 128;
constexpr int kNotStarted = 127;

void Redirect(int stream, const std::string& file) {
    const int target = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (target < 0 || dup2(target, stream) < 0) _exit(kNotStarted);
    close(target);
}

}  // namespace

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::vector<std::pair<std::string, std::string>>& environment) {
    const TempFolder folder;
    const std::string out = folder.Path() / "out";
    const std::string err = folder.Path() / "err";
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        Redirect(STDOUT_FILENO, out);
        Redirect(STDERR_FILENO, err);
        for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
        execv(program.c_str(), words.data());
        _exit(kNotStarted);
    }
    int state = 0;
    if (child < 0 || waitpid(child, &state, 0) < 0) return {};
    const int status = WIFEXITED(state) ? WEXITSTATUS(state) : kSignalled + WTERMSIG(state);
    return {status, ReadBytes(out), ReadBytes(err)};
}

}  // namespace tallix::test
