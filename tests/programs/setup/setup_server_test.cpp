// Tallix_Setup from outside, on every engine that can be started here.
#include "programs/setup/setup_installation.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

// The servers know the user and the password that are the defaults.
std::string DemonstrationOn(const test::TestEngine& engine) {
    const auto connection = test::FreshDatabase(engine);
    const test::SetupInstallation installation;
    EXPECT_EQ(
        installation.RunSetup({"--type", engine.dbType, "--address", engine.address, "--demo", "1200"}).err,
        "");
    std::string rows;
    for (const char* table : {"tblphonedata", "tblsite", "tblextensions", "tblcosts", "tbladdressbook",
                              "tblgroupmap", "tblgroupnames ORDER BY ID"}) {
        rows += test::AllRows(*connection, std::string("SELECT * FROM ") + table);
    }
    return rows;
}

TEST(SetupServers, GiveTheSameDemonstrationOnEveryEngine) {
    const std::string embedded = DemonstrationOn(test::EngineNamed("sqlite"));
    EXPECT_EQ(std::count(embedded.begin(), embedded.end(), '\n'), 1200 + 3 + 60 + 152 + 36 + 58 + 7);
    EXPECT_EQ(DemonstrationOn(test::EngineNamed("mariadb")), embedded);
    EXPECT_EQ(DemonstrationOn(test::EngineNamed("postgres")), embedded);
}

TEST(SetupServers, RefuseAWrongPasswordInOneLine) {
    for (const char* name : {"mariadb", "postgres"}) {
        const test::TestEngine& engine = test::EngineNamed(name);
        const test::SetupInstallation installation;
        ExpectFailure(installation.RunSetup(
                          {"--type", engine.dbType, "--address", engine.address, "--password", "wrong"}),
                      engine.address);
        EXPECT_FALSE(std::filesystem::exists(installation.Hive()));
    }
}

}  // namespace
}  // namespace tallix
