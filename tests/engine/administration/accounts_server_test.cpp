#include "administration/accounts.h"

#include <gmock/gmock.h>

#include "administration/user_groups.h"
#include "failures/errors.h"
#include "session/access_log.h"
#include "session/login.h"
#include "support/engine_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;

const AccessRights kAll = AccessRights::All();
const AccessRights kNone;
const std::string kDesk = "O'Neil's \\ 50%";

class AccountsTest : public test::EngineTest {
protected:
    std::vector<std::string> Names() {
        std::vector<std::string> names;
        for (const Account& account : LoadAccounts(session_)) names.push_back(account.userName);
        return names;
    }
    std::vector<std::string> Log() {
        std::vector<std::string> events;
        for (const AccessLogRow& row : ReadAccessLog(session_)) events.push_back(row.at(3));
        return events;
    }
    bool CanLogIn(const std::string& name, const std::string& password) {
        Login login(test_.application);
        const LoginOutcome outcome = login.Try(name, password);
        login.Close();
        return outcome == LoginOutcome::LoggedIn;
    }
};

TEST_P(AccountsTest, AreAddedChangedAndDeleted) {
    const std::string password = "P\"a's;s€";
    EXPECT_TRUE(AddAccount(test_.application, {"jOHN", password, "j@x", "", kAll}));
    EXPECT_TRUE(CanLogIn("john", password));
    EXPECT_FALSE(CanLogIn("john", "p\"a's;s€"));
    EXPECT_EQ(session_.CurrentAccess, AccessOfNewAccount());
    EXPECT_FALSE(AddAccount(test_.application, {"John", "x", "j@x", "", kAll}));
    EXPECT_TRUE(AddAccount(test_.application, {"jOHN", "x", "j@x", "", kAll})) << "a second John";
    EXPECT_THAT(Names(), ElementsAre("John", "John"));

    EXPECT_TRUE(AddUserGroup(session_, kDesk, kAll));
    EXPECT_TRUE(AddAccount(test_.application, {"O'neill", "1", "@", kDesk, {}}));
    Account oneill = ReadAccount(session_, "O'neill");
    EXPECT_EQ(oneill.group + oneill.email + oneill.password, kDesk + "@1");
    oneill.password = "2";
    oneill.group = "";
    oneill.access = {AccessRight::PresetReports};
    EditAccount(test_.application, oneill);
    EXPECT_TRUE(CanLogIn(oneill.userName, "2"));
    EXPECT_EQ(session_.CurrentAccess, oneill.access);
    StoreAccess(session_, oneill.userName, kAll);
    EXPECT_EQ(ReadAccount(session_, oneill.userName).access, kAll);

    const std::string breaksOut = "x\"); DELETE FROM tblusers; --";
    EXPECT_THROW(AddAccount(test_.application, {breaksOut, "1", "@", "", {}}), DatabaseError);
    EXPECT_TRUE(DeleteAccount(test_.application, "John"));
    EXPECT_THAT(Names(), ElementsAre(oneill.userName));
}

TEST_P(AccountsTest, TheAdministratorIsProtectedAndAttemptsAreLogged) {
    AddAccount(test_.application, {"administrator", "x", "a@x", "", {}});
    EditAccount(test_.application, {"administrator", "y", "b@x", "none", kAll});
    const Account kept = ReadAccount(session_, "Administrator");
    EXPECT_EQ(kept.password + kept.email, "yb@x");
    EXPECT_EQ(kept.access, AccessOfNewAccount());
    EXPECT_FALSE(DeleteAccount(test_.application, "Administrator"));
    EXPECT_FALSE(AddAccount(test_.application, {"Administrator", "x", "a@x", "", {}}));
    EXPECT_THAT(Names(), ElementsAre("Administrator"));
    EXPECT_THAT(Log(),
                ElementsAre("User Account Created - administrator", "User Account Modified - administrator",
                            "User Account Deleted - Administrator", "User Account Created - Administrator"));
}

TEST_P(AccountsTest, DeletingAGroupLeavesItsMembersTheirOwnRights) {
    AddUserGroup(session_, kDesk, kNone);
    AddUserGroup(session_, "Back", kNone);
    EXPECT_FALSE(AddUserGroup(session_, kDesk, kAll));
    EXPECT_FALSE(EditUserGroup(session_, "Front", kAll));
    EXPECT_TRUE(EditUserGroup(session_, kDesk, kAll));
    AddAccount(test_.application, {"ann", "x", "a@x", kDesk, {}});
    AddAccount(test_.application, {"bob", "x", "b@x", "Back", {}});
    EXPECT_TRUE(CanLogIn("ann", "x"));
    EXPECT_EQ(session_.CurrentAccess, kAll);
    DeleteUserGroup(session_, kDesk);
    EXPECT_THAT(LoadUserGroups(session_), ElementsAre("Back"));
    EXPECT_TRUE(CanLogIn("ann", "x"));
    EXPECT_EQ(session_.CurrentAccess, AccessOfNewAccount());
    EXPECT_EQ(ReadAccount(session_, "Bob").group, "Back");
    EXPECT_THROW(DeleteUserGroup(session_, "x' OR \"x\"=\"x"), DatabaseError);
    EXPECT_THAT(LoadUserGroups(session_), ElementsAre("Back"));
}

INSTANTIATE_TEST_SUITE_P(Engines, AccountsTest, testing::ValuesIn(test::kSessionEngines));

TEST(AccountRulesTest, RefuseInTheirOrder) {
    const std::string longest(44, 'x');
    struct Case {
        Account account;
        std::string title;
    };
    const Case cases[] = {
        {{"", "", "", "", {}}, "Username Incorrect"},
        {{longest + "x", "", "", "", {}}, "Username Incorrect"},
        {{longest, "", "", "", {}}, "Password Incorrect"},
        {{"a", longest, longest + "@", "", {}}, "Email Address Incorrect"},
        {{"a", "b", "c", "", {}}, "Bad Email Address"},
        {{"a", "b", "@", "", {}}, ""},
        {{"a", "ä" + longest.substr(1), "@", "", {}}, ""},
    };
    for (const Case& c : cases) {
        const auto refusal = RefusalOf(c.account);
        EXPECT_EQ(refusal ? refusal->title : "", c.title);
    }
}

}  // namespace
}  // namespace tallix
