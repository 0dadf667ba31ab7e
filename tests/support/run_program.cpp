#include "support/run_program.h"

#include "platform/child_process.h"

namespace tallix::test {

ProgramRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                      const std::vector<std::pair<std::string, std::string>>& environment) {
    std::vector<std::string> command = {"env"};
    for (const auto& [name, value] : environment) command.push_back(name + "=" + value);
    command.push_back(program);
    command.insert(command.end(), arguments.begin(), arguments.end());
    const ChildResult run = RunChild(command);
    return {run.status, run.out, run.error};
}

}  // namespace tallix::test
