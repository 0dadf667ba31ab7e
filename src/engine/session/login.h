// Makes a session out of a user name and a password: finds the account, compares the
// password, works out what the person may do, and notes the login.
//
// A failed connect or statement is a DatabaseError that nobody catches here.
#pragma once

#include <string>
#include <string_view>

#include "database/database_scope.h"
#include "session/application.h"

namespace tallix {

/// The refusals after which a login gives up.
inline constexpr int kLoginAttempts = 3;

enum class LoginOutcome {
    LoggedIn,  ///< the session is set
    Refused,   ///< no such account, or another password: which of them is not reported
    HeldBack,  ///< a text holds a word that goes into no statement; the database was not asked
};

/// The form in which user names are stored and shown: the first character in upper case,
/// the others in lower case.
std::string NormalUserName(std::string_view typed);

/// Whether a text holds one of the SQL words that the login keeps out of its statements,
/// in any case and inside other words too.
bool HoldsGuardedWord(std::string_view text);

class Login {
public:
    /// `application` must outlive the login.
    explicit Login(Application& application);

    /// Serves events between its steps. Sets CurrentUser, CurrentAccess and UseStatsMain
    /// and writes "Logged In" when it succeeds. The connection then stays open until
    /// Close, so that the main window can be loaded meanwhile.
    LoginOutcome Try(std::string_view userName, std::string_view password);

    /// Drops the account's row and the connection. Harmless where neither is there.
    void Close() noexcept;

    /// Whether all attempts were refused. Those held back do not count.
    bool IsExhausted() const { return refusals_ >= kLoginAttempts; }

private:
    bool FindAccount(std::string_view normalName);
    bool PasswordFits(std::string_view password) const;
    std::string StoredAccess();
    void BeginSession(const std::string& normalName);
    void ServeEvents() { application_.events.Serve(); }

    Application& application_;
    DatabaseScope database_;
    ado::Rows account_;  ///< the row of the name tried, if any
    int refusals_ = 0;
};

}  // namespace tallix
