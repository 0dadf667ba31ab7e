#include "compat/service_command.h"

#include <string>

#include "compat/shell_command.h"

namespace tallix {
namespace {

struct ServiceVerb {
    std::string_view head;  ///< of the command line
    std::string_view manager;
};

// Nobody sits at the service manager to give it a password.
constexpr ServiceVerb kVerbs[] = {
    {"Net Stop ", "systemctl --no-ask-password stop "},
    {"Net Start ", "systemctl --no-ask-password start "},
};

}  // namespace

void RunServiceCommand(std::string_view command) {
    for (const auto& [head, manager] : kVerbs) {
        if (command.starts_with(head)) Shell(std::string(manager).append(command.substr(head.size())));
    }
}

}  // namespace tallix
