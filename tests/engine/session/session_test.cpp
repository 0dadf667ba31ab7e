#include <gmock/gmock.h>

#include "database/database_scope.h"
#include "failures/errors.h"
#include "session/access_log.h"
#include "session/login.h"
#include "support/test_application.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

using testing::ElementsAre;

constexpr char kNowhere[] = "sqlite:/nowhere/at/all.db";

class SessionTest : public testing::Test {
protected:
    std::vector<AccessLogRow> Rows() { return ReadAccessLog(session_); }

    test::TestApplication test_;
    Session& session_ = test_.application.session;
};

class LoginTest : public SessionTest {
protected:
    LoginTest() {
        AddAccount("Admin", "Sesame", "0");
        session_.CurrentUser.clear();
    }

    void AddAccount(const std::string& name, const std::string& password, const std::string& groupId) {
        test_.Insert("tblusers", {{"Username", EncipherForStorage(name)},
                                  {"Password", EncipherForStorage(password)},
                                  {"AccessType", EncipherForStorage(kOwnAccess)},
                                  {"GroupID", groupId}});
    }

    LoginOutcome Try(const std::string& userName, const std::string& password) {
        const LoginOutcome outcome = login_.Try(userName, password);
        login_.Close();
        return outcome;
    }

    const std::string kOwnAccess = std::string(20, '1') + std::string(22, '0');
    Login login_{test_.application};
};

TEST_F(LoginTest, OpensTheSessionOfAnAccountHoweverItsNameIsWritten) {
    session_.UseStatsMain = true;
    AddAccount("Élodie-ann", "Sesame", "0");
    for (const auto& [name, user] :
         {std::pair("admin", "Admin"), {"aDmIn", "Admin"}, {"éLODIE-Ann", "Élodie-ann"}}) {
        EXPECT_EQ(Try(name, "Sesame"), LoginOutcome::LoggedIn) << name;
        EXPECT_EQ(session_.CurrentUser, user);
        EXPECT_EQ(Rows().back(), (AccessLogRow{"09/03/2021", "14:05", user, "Logged In"}));
    }
    EXPECT_EQ(session_.CurrentAccess.Text(), kOwnAccess);
    EXPECT_FALSE(session_.UseStatsMain);
    EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(LoginTest, ThreeRefusalsOfAnyKindExhaustIt) {
    for (const auto& [name, password] :
         {std::pair("admin", "sesame"), {"", "Sesame"}, {"\" or \"1\"=\"1", ""}}) {
        EXPECT_FALSE(login_.IsExhausted());
        EXPECT_EQ(Try(name, password), LoginOutcome::Refused) << name;
    }
    EXPECT_TRUE(login_.IsExhausted());
    EXPECT_EQ(session_.CurrentUser, "");
    EXPECT_TRUE(Rows().empty());
}

TEST_F(LoginTest, GuardedWordsReachNoDatabaseAndCountAsNoAttempt) {
    session_.database.server = kNowhere;
    for (const auto& [name, password] :
         {std::pair("Dropbox", "x"), {"x", "myUpDaTe1"}, {"SELECT", ""}, {"re-insert", ""}, {"", "deleted"}})
        EXPECT_EQ(Try(name, password), LoginOutcome::HeldBack) << name << password;
    EXPECT_FALSE(login_.IsExhausted());
    EXPECT_THROW(Try("admin", "Sesame"), DatabaseError) << "a database that is gone is not caught";
}

TEST_F(LoginTest, AGroupThatIsThereReplacesThePersonsOwnRights) {
    const std::string groupAccess(42, '1');
    test_.Insert("tblusergroups", {{"GroupID", "5"}, {"Group_Access", EncipherForStorage(groupAccess)}});
    for (const std::string groupId : {"5", "6", "", "-5", "none"}) {
        AddAccount(NormalUserName("user" + groupId), "x", groupId);
        ASSERT_EQ(Try("user" + groupId, "x"), LoginOutcome::LoggedIn);
        EXPECT_EQ(session_.CurrentAccess.Text(), groupId == "5" ? groupAccess : kOwnAccess) << groupId;
    }
}

class AccessLogTest : public SessionTest {
protected:
    std::string Export() {
        ExportAccessLog(session_, test_.application.folder);
        return test::ReadBytes(file_);
    }

    const std::filesystem::path file_ = test_.application.folder / "AccessLog.txt";
};

TEST_F(AccessLogTest, WritesARowInEveryDialect) {
    for (const DatabaseKind kind : {DatabaseKind::MySql, DatabaseKind::SqlServer, DatabaseKind::Postgres}) {
        session_.database.kind = kind;
        const DatabaseScope database(session_.database);
        WriteLog(database, session_, test_.clock, "Report Run - Daily");
        const std::string broken = "Report Run - 5" + std::string(StringQuote(kind)) + " x";
        EXPECT_THROW(WriteLog(database, session_, test_.clock, broken), DatabaseError);
        LogOnItsOwn(session_, test_.clock, broken);
    }
    const AccessLogRow row = {"09/03/2021", "14:05", "Ann", "Report Run - Daily"};
    EXPECT_THAT(Rows(), ElementsAre(row, row, row));
    session_.database.server = kNowhere;
    EXPECT_NO_THROW(LogOnItsOwn(session_, test_.clock, "Logged Out"));
}

TEST_F(AccessLogTest, ExportAddsToTheFileAndAnEmptyLogLeavesItAlone) {
    EXPECT_EQ(Export(), "");
    EXPECT_FALSE(std::filesystem::exists(file_));
    const AccessLogRow row = {"09/03/2021", "14:05", "René", "Report Run - a,b"};
    test_.Insert("tbllogging", {{"Date", row[0]}, {"Time", row[1]}, {"User", row[2]}, {"Data", row[3]}});
    test_.Insert("tbllogging", {{"Date", "10/03/2021"}});
    EXPECT_THAT(Rows(), ElementsAre(row, AccessLogRow{"10/03/2021", "", "", ""}));

    const std::string lines = "09/03/2021,14:05,Ren\xE9,Report Run - a,b\r\n10/03/2021,,,\r\n";
    EXPECT_EQ(Export(), lines);
    EXPECT_EQ(Export(), lines + lines);
    std::filesystem::remove(file_);
    std::filesystem::create_directory(file_);
    EXPECT_THROW(Export(), std::runtime_error);
}

}  // namespace
}  // namespace tallix
