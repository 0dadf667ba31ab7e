// The demonstration data on its way into the tables.
#pragma once

#include <cstdint>
#include <iosfwd>

#include "database/connection.h"

namespace tallix {

/// Adds a made-up company and that many of its calls (at most kMostCalls), saying what
/// it adds. Of the company's tables those that hold rows are left as they are; with
/// calls there already nothing at all is added, and false comes back. A failure adds
/// nothing.
bool AddDemonstration(ado::Connection& connection, std::uint64_t calls, std::uint64_t seed,
                      std::ostream& out);

}  // namespace tallix
