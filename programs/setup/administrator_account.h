// The account with which a new installation is first entered.
#pragma once

#include <iosfwd>
#include <string_view>

#include "database/database_scope.h"

namespace tallix {

/// Characters that a password, a user name or an address of an account may have.
inline constexpr std::size_t kLongestAccountText = 44;

/// Whether the login takes a password: it refuses texts that hold certain SQL words.
bool CanLogInWith(std::string_view password);

/// Makes the account "Administrator" with all rights where there is none, and says so.
/// An empty password is replaced by one that is made up and shown this once. Throws
/// DatabaseError.
void EnsureAdministrator(const DatabaseScope& database, std::string_view password, std::ostream& out);

}  // namespace tallix
