#include "administration/accounts.h"

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/access_log.h"
#include "session/access_rights.h"
#include "session/database.h"
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

constexpr AccessRight kRightsOfNewAccount[] = {AccessRight::PresetReports, AccessRight::CustomReports,
                                               AccessRight::PrintReport, AccessRight::PresetReportDestination,
                                               AccessRight::CustomReportDestination};

// A row that another program filled in plain must not shut the administrator out.
std::string Readable(std::string_view stored) {
    std::string text(stored);
    Attempt([&] { text = DecipherFromStorage(stored); });
    return text;
}

ado::Recordset OpenAccount(Session& session, const std::string& userName) {
    ado::Recordset account;
    account.Open("select * from tblusers where Username = " + Quoted(session, EncipherForStorage(userName)),
                 OpenConnection(session));
    return account;
}

void LogAccount(Application& application, std::string_view event, const std::string& userName) {
    OpenDatabase(application.session);
    WriteLog(application.session, application.clock, std::string(event) + userName);
    CloseDatabase(application.session);
}

std::string GroupIdOf(Session& session, const std::string& group) {
    if (group.empty()) return std::string(kNoGroup);
    ado::Recordset groups;
    groups.Open("select * from tblusergroups where Group_Name =" + Quoted(session, group),
                OpenConnection(session));
    return std::string(groups.RecordCount() > 0 ? groups.Text("GroupID") : kNoGroup);
}

std::string GroupNameOf(Session& session, std::string_view groupId) {
    ado::Recordset groups;
    groups.Open("select * from tblusergroups", OpenConnection(session));
    for (std::int64_t i = 1; i <= groups.RecordCount(); ++i, groups.MoveNext()) {
        if (groups.Text("GroupID") == groupId) return std::string(groups.Text("Group_Name"));
    }
    return {};
}

void CollectDetails(ado::Recordset& row, const Account& account) {
    row.Collect("Username", EncipherForStorage(NormalUserName(account.userName)));
    row.Collect("Email", EncipherForStorage(account.email));
    row.Collect("Password", EncipherForStorage(account.password));
}

}  // namespace

std::vector<Account> LoadAccounts(Session& session) {
    OpenDatabase(session);
    ado::Recordset rows;
    rows.Open("select * from tblusers", OpenConnection(session));
    std::vector<Account> accounts;
    for (std::int64_t i = 1; i <= rows.RecordCount(); ++i, rows.MoveNext()) {
        accounts.push_back(
            {.userName = Readable(rows.Text("Username")), .email = Readable(rows.Text("Email"))});
    }
    CloseDatabase(session);
    return accounts;
}

Account ReadAccount(Session& session, const std::string& userName) {
    OpenDatabase(session);
    Account account;
    const ado::Recordset row = OpenAccount(session, userName);
    if (row.RecordCount() > 0) {
        account = {.userName = userName,
                   .password = Readable(row.Text("Password")),
                   .email = Readable(row.Text("Email")),
                   .group = GroupNameOf(session, row.Text("GroupID")),
                   .access = Readable(row.Text("AccessType"))};
    }
    CloseDatabase(session);
    return account;
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

std::string AccessOfNewAccount() {
    std::string access(kRights, '0');
    for (const AccessRight right : kRightsOfNewAccount) access[static_cast<std::size_t>(right)] = '1';
    return access;
}

bool AddAccount(Application& application, const Account& account) {
    Session& session = application.session;
    LogAccount(application, "User Account Created - ", account.userName);
    OpenDatabase(session);
    ado::Recordset row = OpenAccount(session, account.userName);
    const bool isNew = row.RecordCount() == 0;
    if (isNew) {
        row.AddNew();
        CollectDetails(row, account);
        row.Collect("AccessType", EncipherForStorage(AccessOfNewAccount()));
        row.Collect("GroupID", GroupIdOf(session, account.group));
        row.Update();
    }
    CloseDatabase(session);
    return isNew;
}

void EditAccount(Application& application, const Account& account) {
    Session& session = application.session;
    LogAccount(application, "User Account Modified - ", account.userName);
    OpenDatabase(session);
    const std::string name = NormalUserName(account.userName);
    ado::Recordset row = OpenAccount(session, name);
    if (row.RecordCount() > 0) {
        CollectDetails(row, account);
        if (name != kAdministrator) {
            row.Collect("GroupID", GroupIdOf(session, account.group));
            row.Collect("AccessType", EncipherForStorage(account.access));
        }
        row.Update();
    }
    CloseDatabase(session);
}

bool DeleteAccount(Application& application, const std::string& userName) {
    LogAccount(application, "User Account Deleted - ", userName);
    if (userName == kAdministrator) return false;
    Session& session = application.session;
    OpenDatabase(session);
    OpenConnection(session).Execute("DELETE FROM tblusers WHERE Username =" +
                                    Quoted(session, EncipherForStorage(userName)));
    CloseDatabase(session);
    return true;
}

// Both values stand between double quotes whatever the database.
void StoreAccess(Session& session, const std::string& userName, const std::string& access) {
    OpenDatabase(session);
    OpenConnection(session).Execute("UPDATE tblusers SET AccessType = \"" + EncipherForStorage(access) +
                                    "\" WHERE Username = \"" + EncipherForStorage(userName) + "\"");
    CloseDatabase(session);
}

}  // namespace tallix
