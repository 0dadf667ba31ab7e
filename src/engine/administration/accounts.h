// Login accounts: who may log in, with which rights. Names, passwords, emails and rights
// are stored enciphered; as equal texts give equal ciphertexts, accounts are found by the
// enciphered name. Every action writes at once, over a connection of its own, and throws
// DatabaseError. The actions are logged as they are asked for, refused ones included.
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
    std::string group{};   ///< name of a user group; empty for individual rights
    std::string access{};  ///< 42 characters "1" or "0"
};

/// Names and emails, in the table's own order.
std::vector<Account> LoadAccounts(Session& session);

/// All of one account; empty texts where there is none of that name.
Account ReadAccount(Session& session, const std::string& userName);

/// Why what was typed cannot be an account; nothing when it can.
std::optional<Message> RefusalOf(const Account& account);

/// The rights with which every account begins, whatever was ticked: to run preset and
/// custom reports, to print them and to choose where they go.
std::string AccessOfNewAccount();

/// Adds an account under the normal form of its name, the first letter upper case. False
/// where the name as it was typed is there: another way of writing it is not noticed and
/// gives a second account of the same name.
bool AddAccount(Application& application, const Account& account);

/// Changes password and email and, save for the administrator, group and rights. An
/// account that is not there is passed over.
void EditAccount(Application& application, const Account& account);

/// False, with nothing but a log row written, for the administrator.
bool DeleteAccount(Application& application, const std::string& userName);

/// Gives an account other rights.
void StoreAccess(Session& session, const std::string& userName, const std::string& access);

}  // namespace tallix
