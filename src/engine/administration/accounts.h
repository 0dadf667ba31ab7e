// Login accounts: who may log in, with which rights. Names, passwords, emails and rights
// are stored enciphered; as equal texts give equal ciphertexts, accounts are found by the
// enciphered name. Every action opens the database, writes at once, and throws DatabaseError.
// The access log gets a row for each attempt, refused ones included.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "session/application.h"

namespace tallix {

/// The account that cannot be deleted and whose rights cannot be changed.
inline constexpr std::string_view kAdministrator = "Administrator";

struct Account {
    std::string userName{};
    std::string password{};
    std::string email{};
    std::string group{};  ///< name of a user group; empty for individual rights
    AccessRights access{};
};

/// Names and emails, in the table's own order.
std::vector<Account> LoadAccounts(const Session& session);

/// All of one account; empty texts for an unknown name.
Account ReadAccount(const Session& session, const std::string& userName);

/// The message that refuses an account as it was typed; nothing for a valid one.
std::optional<Message> RefusalOf(const Account& account);

/// The rights of every new account, whatever was ticked: to run preset and custom reports, to
/// print them and to choose where they go.
AccessRights AccessOfNewAccount();

/// Adds an account under the normal form of its name, the first letter upper case. Returns
/// false when there is an account of the name as it was typed. Another spelling of a name is
/// not noticed and makes a second account of that name.
bool AddAccount(const Application& application, const Account& account);

/// Changes password and email and, except for the administrator, group and rights. Ignores an
/// unknown account.
void EditAccount(const Application& application, const Account& account);

/// Returns false for the administrator, for whom it writes only the log row.
bool DeleteAccount(const Application& application, const std::string& userName);

/// Gives an account other rights.
void StoreAccess(const Session& session, const std::string& userName, const AccessRights& access);

}  // namespace tallix
