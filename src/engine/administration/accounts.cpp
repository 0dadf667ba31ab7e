#include "administration/accounts.h"

#include "database/database_scope.h"
#include "failures/attempt.h"
#include "session/access_log.h"
#include "session/login.h"
#include "text/encryption_tools.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::size_t kLongestField = 44;  ///< characters
constexpr std::string_view kNoGroup = "0";

struct FieldRule {
    std::string Account::*field;
    std::string_view title;
    std::string_view text;
};

constexpr FieldRule kFieldRules[] = {
    {&Account::userName, "Username Incorrect",
     "The username you have selected is not correct. Please choose a different one."},
    {&Account::password, "Password Incorrect",
     "The password you have selected is not correct. Please choose a different one."},
    {&Account::email, "Email Address Incorrect",
     "The email address you have selected is not correct. Please choose a different one."},
};

// A row that another program stored as plain text must not lock the administrator out.
std::string Readable(std::string_view stored) {
    std::string text(stored);
    Attempt([&] { text = DecipherFromStorage(stored); });
    return text;
}

std::string AccountStatement(const DatabaseScope& database, const std::string& userName) {
    return "select * from tblusers where Username = " + database.Quoted(EncipherForStorage(userName));
}

void LogAccount(const Application& application, std::string_view event, const std::string& userName) {
    const Session& session = application.session;
    WriteLog(DatabaseScope(session.database), session, application.clock, std::string(event) + userName);
}

std::string GroupIdOf(const DatabaseScope& database, const std::string& group) {
    if (group.empty()) return std::string(kNoGroup);
    const ado::Rows groups =
        database.Query("select * from tblusergroups where Group_Name =" + database.Quoted(group));
    return std::string(groups.IsEmpty() ? kNoGroup : groups.First().Text("GroupID"));
}

std::string GroupNameOf(const DatabaseScope& database, std::string_view groupId) {
    for (const ado::Row group : database.Query("select * from tblusergroups")) {
        if (group.Text("GroupID") == groupId) return std::string(group.Text("Group_Name"));
    }
    return {};
}

void CollectDetails(ado::Recordset& row, const Account& account) {
    row.Collect("Username", EncipherForStorage(NormalUserName(account.userName)));
    row.Collect("Email", EncipherForStorage(account.email));
    row.Collect("Password", EncipherForStorage(account.password));
}

}  // namespace

std::vector<Account> LoadAccounts(const Session& session) {
    const ado::Rows rows = DatabaseScope(session.database).Query("select * from tblusers");
    std::vector<Account> accounts;
    for (const ado::Row row : rows) {
        accounts.push_back(
            {.userName = Readable(row.Text("Username")), .email = Readable(row.Text("Email"))});
    }
    return accounts;
}

Account ReadAccount(const Session& session, const std::string& userName) {
    const DatabaseScope database(session.database);
    const ado::Rows found = database.Query(AccountStatement(database, userName));
    if (found.IsEmpty()) return {};
    const ado::Row row = found.First();
    return {.userName = userName,
            .password = Readable(row.Text("Password")),
            .email = Readable(row.Text("Email")),
            .group = GroupNameOf(database, row.Text("GroupID")),
            .access = AccessRights::FromText(Readable(row.Text("AccessType")))};
}

std::optional<Message> RefusalOf(const Account& account) {
    const auto refusal = [](std::string_view title, std::string_view text) {
        return Message{std::string(title), std::string(text), MessageIcon::Exclamation};
    };
    for (const FieldRule& rule : kFieldRules) {
        const std::size_t length = Len(account.*rule.field);
        if (length == 0 || length > kLongestField) return refusal(rule.title, rule.text);
    }
    if (account.email.find('@') != std::string::npos) return std::nullopt;
    return refusal(
        "Bad Email Address",
        "The email address you have entered is incorrectly formatted. Please check it and try again.");
}

AccessRights AccessOfNewAccount() {
    return {AccessRight::PresetReports, AccessRight::CustomReports, AccessRight::PrintReport,
            AccessRight::PresetReportDestination, AccessRight::CustomReportDestination};
}

bool AddAccount(const Application& application, const Account& account) {
    LogAccount(application, "User Account Created - ", account.userName);
    const DatabaseScope database(application.session.database);
    ado::Recordset row = database.Edit(AccountStatement(database, account.userName));
    if (row.RecordCount() > 0) return false;
    row.AddNew();
    CollectDetails(row, account);
    row.Collect("AccessType", EncipherForStorage(AccessOfNewAccount().Text()));
    row.Collect("GroupID", GroupIdOf(database, account.group));
    row.Update();
    return true;
}

void EditAccount(const Application& application, const Account& account) {
    LogAccount(application, "User Account Modified - ", account.userName);
    const DatabaseScope database(application.session.database);
    const std::string name = NormalUserName(account.userName);
    ado::Recordset row = database.Edit(AccountStatement(database, name));
    if (row.RecordCount() == 0) return;
    CollectDetails(row, account);
    if (name != kAdministrator) {
        row.Collect("GroupID", GroupIdOf(database, account.group));
        row.Collect("AccessType", EncipherForStorage(account.access.Text()));
    }
    row.Update();
}

bool DeleteAccount(const Application& application, const std::string& userName) {
    LogAccount(application, "User Account Deleted - ", userName);
    if (userName == kAdministrator) return false;
    const DatabaseScope database(application.session.database);
    database.Execute("DELETE FROM tblusers WHERE Username =" + database.Quoted(EncipherForStorage(userName)));
    return true;
}

// Both values are between double quotes for every kind of database.
void StoreAccess(const Session& session, const std::string& userName, const AccessRights& access) {
    DatabaseScope(session.database)
        .Execute("UPDATE tblusers SET AccessType = \"" + EncipherForStorage(access.Text()) +
                 "\" WHERE Username = \"" + EncipherForStorage(userName) + "\"");
}

}  // namespace tallix
