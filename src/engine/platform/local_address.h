// The address of this machine in its network.
#pragma once

#include <string>

namespace tallix {

/// The first address of a network interface that is up, without those that only this
/// machine sees; "127.0.0.1" where no interface has one.
std::string LocalAddress();

}  // namespace tallix
