#include "setup/administrator_account.h"

#include <fmt/format.h>

#include <ostream>
#include <random>
#include <string>

#include "database/database_scope.h"
#include "session/access_rights.h"
#include "session/login.h"
#include "text/encryption_tools.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kUserName = "Administrator";
constexpr std::string_view kEmail = "administrator@localhost";
constexpr std::string_view kNoGroup = "0";

// Without vowels, so that it holds no word, and without characters that look alike.
constexpr std::string_view kPasswordCharacters = "BCDFGHJKLMNPQRSTVWXZbcdfghjkmnpqrstvwxz23456789";
constexpr std::size_t kPasswordLength = 14;

std::string MakeUpPassword() {
    std::random_device device;
    std::uniform_int_distribution<std::size_t> place(0, kPasswordCharacters.size() - 1);
    std::string password;
    while (password.size() < kPasswordLength) password += kPasswordCharacters[place(device)];
    return password;
}

bool IsThere(const DatabaseScope& database, std::string_view storedName) {
    return !database.Query("select * from tblusers where Username = " + database.Quoted(storedName))
                .IsEmpty();
}

void AddAccount(const DatabaseScope& database, std::string_view storedName, std::string_view password) {
    ado::Recordset users = database.Edit("select * from tblusers");
    users.AddNew();
    users.Collect("Username", storedName);
    users.Collect("Password", EncipherForStorage(password));
    users.Collect("Email", EncipherForStorage(kEmail));
    users.Collect("AccessType", EncipherForStorage(AccessRights::All().Text()));
    users.Collect("GroupID", kNoGroup);
    users.Update();
}

}  // namespace

bool CanLogInWith(std::string_view password) {
    const std::size_t length = Len(password);
    return length > 0 && length <= kLongestAccountText && !HoldsGuardedWord(password);
}

void EnsureAdministrator(const DatabaseScope& database, std::string_view password, std::ostream& out) {
    const std::string storedName = EncipherForStorage(kUserName);
    if (IsThere(database, storedName)) {
        out << fmt::format("Account {}: there already, password unchanged\n", kUserName);
        return;
    }
    const std::string chosen = password.empty() ? MakeUpPassword() : std::string(password);
    AddAccount(database, storedName, chosen);
    out << fmt::format("Account {}: made with all rights and {}\n", kUserName,
                       password.empty() ? "the password " + chosen : "the password given");
}

}  // namespace tallix
