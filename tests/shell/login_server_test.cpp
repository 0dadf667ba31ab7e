// The login's statements quote a column name in each server's own way.
#include <gtest/gtest.h>

#include "foundation/database.h"
#include "foundation/encryption_tools.h"
#include "shell/login.h"
#include "support/test_application.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

class LoginOnServers : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Engines, LoginOnServers, testing::ValuesIn(test::kSessionEngines));

TEST_P(LoginOnServers, FindTheAccountAndItsGroup) {
    const test::TestEngine& engine = test::EngineNamed(GetParam());
    test::FreshDatabase(engine);
    test::TestApplication test({engine.dbType, engine.address, engine.user, engine.password});
    test.Insert("tblusergroups", {{"Group_Name", "Readers"}, {"Group_Access", EncipherForStorage("101")}});
    test.Insert("tblusers", {{"Username", EncipherForStorage("Ann")},
                             {"Password", EncipherForStorage("Sesame")},
                             {"AccessType", EncipherForStorage("000")},
                             {"GroupID", "1"}});
    Login login(test.application);

    EXPECT_EQ(login.Try("Bob", "Sesame"), LoginOutcome::Refused);
    EXPECT_EQ(login.Try("ann", "sesame"), LoginOutcome::Refused);
    EXPECT_EQ(login.Try("ann", "Sesame"), LoginOutcome::LoggedIn);
    login.Close();
    EXPECT_EQ(test.application.session.CurrentAccess, "101");
}

}  // namespace
}  // namespace tallix
