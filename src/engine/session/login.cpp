#include "session/login.h"

#include <algorithm>
#include <array>

#include "failures/attempt.h"
#include "session/access_log.h"
#include "text/encryption_tools.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::array<std::string_view, 5> kGuardedWords = {"select", "insert", "delete", "drop", "update"};

// A group column without a number is one without a group.
bool NamesGroup(std::string_view groupId) {
    bool names = false;
    Attempt([&] { names = ToInteger32(groupId) > 0; });
    return names;
}

}  // namespace

std::string NormalUserName(std::string_view typed) {
    const std::string lower = LowerCase(typed);
    return UpperCase(Left(lower, 1)).append(Mid(lower, 2, lower.size()));
}

bool HoldsGuardedWord(std::string_view text) {
    const std::string lower = LowerCase(text);
    return std::any_of(kGuardedWords.begin(), kGuardedWords.end(),
                       [&](std::string_view word) { return lower.find(word) != std::string::npos; });
}

Login::Login(Application& application) : application_(application) {}

LoginOutcome Login::Try(std::string_view userName, std::string_view password) {
    if (HoldsGuardedWord(userName) || HoldsGuardedWord(password)) return LoginOutcome::HeldBack;
    ServeEvents();
    database_ = DatabaseScope(application_.session.database);
    ServeEvents();
    const std::string normalName = NormalUserName(userName);
    if (!FindAccount(normalName) || !PasswordFits(password)) {
        ++refusals_;
        return LoginOutcome::Refused;
    }
    BeginSession(normalName);
    return LoginOutcome::LoggedIn;
}

bool Login::FindAccount(std::string_view normalName) {
    account_ = database_.Query("select * from tblusers where " + database_.QuotedName("Username") + " = " +
                               database_.Quoted(EncipherForStorage(normalName)));
    ServeEvents();
    return !account_.IsEmpty();
}

bool Login::PasswordFits(std::string_view password) const {
    application_.events.Serve();
    return account_.First().Text("Password") == EncipherForStorage(password);
}

// The rights of a group that exists replace the person's own.
std::string Login::StoredAccess() {
    const std::string groupId(account_.First().Text("GroupID"));
    if (NamesGroup(groupId)) {
        const ado::Rows group = database_.Query("select * from tblusergroups where GroupID =" + groupId);
        if (!group.IsEmpty()) return std::string(group.First().Text("Group_Access"));
    }
    return std::string(account_.First().Text("AccessType"));
}

void Login::BeginSession(const std::string& normalName) {
    Session& session = application_.session;
    session.CurrentUser = normalName;
    session.CurrentAccess = AccessRights::FromText(DecipherFromStorage(StoredAccess()));
    session.UseStatsMain = false;
    WriteLog(database_, session, application_.clock, "Logged In");
}

void Login::Close() noexcept {
    account_ = ado::Rows();
    database_ = DatabaseScope();
}

}  // namespace tallix
