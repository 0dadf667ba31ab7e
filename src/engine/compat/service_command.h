// Stopping and starting a service of this machine by the command lines that were written
// for another system.
#pragma once

#include <string_view>

namespace tallix {

/// Runs "Net Stop NAME" or "Net Start NAME" by the service manager, as the unit NAME, and
/// does not wait for it. Where the machine has no service manager, the service is unknown or
/// the person may not do it, nothing happens and nothing is reported.
void RunServiceCommand(std::string_view command);

}  // namespace tallix
