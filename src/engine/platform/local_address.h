// The address of this machine in its network.
#pragma once

#include <string>

namespace tallix {

/// The first address of a network interface that is up, leaving out those that only this
/// machine sees; that of the machine itself, "127.0.0.1", where there is no other.
std::string LocalAddress();

}  // namespace tallix
