#include "session/login.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "failures/errors.h"
#include "session/access_log.h"
#include "session/logout.h"
#include "support/test_application.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LoginTest : public testing::Test {
protected:
    LoginTest() {
        AddAccount("Admin", "Sesame", kOwnAccess, "0");
        test_.application.session.CurrentUser.clear();
    }

    void AddAccount(const std::string& name, const std::string& password, const std::string& access,
                    const std::string& groupId) {
        test_.Insert("tblusers", {{"Username", EncipherForStorage(name)},
                                  {"Password", EncipherForStorage(password)},
                                  {"AccessType", EncipherForStorage(access)},
                                  {"GroupID", groupId}});
    }

    LoginOutcome Try(const std::string& userName, const std::string& password) {
        const LoginOutcome outcome = login_.Try(userName, password);
        login_.Close();
        return outcome;
    }

    /// User and event of every row of the access log.
    std::vector<std::string> Log() {
        std::vector<std::string> lines;
        for (const AccessLogRow& row : ReadAccessLog(session_)) lines.push_back(row[2] + " " + row[3]);
        return lines;
    }

    const std::string kOwnAccess = std::string(20, '1') + std::string(22, '0');
    test::TestApplication test_;
    Session& session_ = test_.application.session;
    Login login_{test_.application};
};

TEST_F(LoginTest, OpensTheSessionOfAnAccountHoweverItsNameIsWritten) {
    session_.UseStatsMain = true;
    for (const char* name : {"admin", "ADMIN", "aDmIn"}) {
        session_.CurrentUser.clear();
        EXPECT_EQ(Try(name, "Sesame"), LoginOutcome::LoggedIn) << name;
        EXPECT_EQ(session_.CurrentUser, "Admin");
    }
    EXPECT_EQ(session_.CurrentAccess.Text(), kOwnAccess);
    EXPECT_FALSE(session_.UseStatsMain);
    EXPECT_THAT(Log(), ElementsAre("Admin Logged In", "Admin Logged In", "Admin Logged In"));
}

TEST_F(LoginTest, ThreeRefusalsOfAnyKindExhaustIt) {
    const std::vector<std::pair<std::string, std::string>> wrong = {
        {"admin", "sesame"}, {"nobody", "Sesame"}, {"\" or \"1\"=\"1", ""}};
    for (const auto& [name, password] : wrong) {
        EXPECT_FALSE(login_.IsExhausted());
        EXPECT_EQ(Try(name, password), LoginOutcome::Refused) << name;
    }
    EXPECT_TRUE(login_.IsExhausted());
    EXPECT_EQ(session_.CurrentUser, "");
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(LoginTest, GuardedWordsReachNoDatabaseAndCountAsNoAttempt) {
    session_.database.server = "sqlite:/nowhere/at/all.db";
    for (const auto& [name, password] : std::vector<std::pair<std::string, std::string>>{
             {"Dropbox", "x"}, {"x", "myUpDaTe1"}, {"SELECT", ""}, {"re-insert", ""}, {"", "deleted"}}) {
        EXPECT_EQ(Try(name, password), LoginOutcome::HeldBack) << name << password;
    }
    EXPECT_FALSE(login_.IsExhausted());
    EXPECT_THROW(Try("admin", "Sesame"), DatabaseError) << "a database that is gone is not caught";
}

TEST_F(LoginTest, AGroupThatIsThereReplacesThePersonsOwnRights) {
    const std::string groupAccess(42, '1');
    test_.Insert("tblusergroups", {{"GroupID", "5"}, {"Group_Access", EncipherForStorage(groupAccess)}});
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"5", groupAccess}, {"6", kOwnAccess}, {"", kOwnAccess}, {"-5", kOwnAccess}, {"none", kOwnAccess}};
    for (const auto& [groupId, access] : cases) {
        const std::string name = "user" + groupId;
        AddAccount(NormalUserName(name), "x", kOwnAccess, groupId);
        ASSERT_EQ(Try(name, "x"), LoginOutcome::LoggedIn);
        EXPECT_EQ(session_.CurrentAccess.Text(), access) << "group " << groupId;
    }
}

TEST_F(LoginTest, NamesTakeTheirNormalFormCharacterByCharacter) {
    EXPECT_EQ(NormalUserName("aNNE-MARIE"), "Anne-marie");
    EXPECT_EQ(NormalUserName("\u00E9LODIE"), "\u00C9lodie");
    EXPECT_EQ(NormalUserName(""), "");
}

TEST_F(LoginTest, LeavingIsNotedAndWorksWithTheDatabaseGone) {
    session_.CurrentUser = "Admin";
    NoteLoggedOut(test_.application);
    EXPECT_THAT(Log(), ElementsAre("Admin Logged Out"));
    session_.database.server = "sqlite:/nowhere/at/all.db";
    EXPECT_NO_THROW(NoteLoggedOut(test_.application));
}

}  // namespace
}  // namespace tallix
