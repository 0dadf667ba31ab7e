// Tallix_Setup from outside, on the embedded database.
#include <gmock/gmock.h>

#include "programs/setup/setup_installation.h"
#include "setup/demo_company.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

using test::ProgramRun;
using testing::HasSubstr;

class SetupSystem : public testing::Test, protected test::SetupInstallation {};

TEST_F(SetupSystem, LaysDownAllThatTheProgramNeeds) {
    const ProgramRun run = RunSetup({"--admin-password", "Größe 9", "--demo", "500", "--seed", "6"});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    const std::string hive = test::ReadBytes(Hive());
    for (const char* line :
         {"\"DBType\"=\"1\"", "\"SQLUser\"=\"Tallix\"", "\"SQLPass\"=\"norvadat\"", "\"rptTC\"=\"002001118\"",
          "\"rptTHC\"=\"180003000\"", "\"rptTDC\"=\"254254170\"", "\"rptTBC\"=\"162196091\""}) {
        EXPECT_THAT(hive, HasSubstr(line));
    }
    EXPECT_THAT(hive, HasSubstr("sqlite:" + (Home() / "tallix.db").string()));
    EXPECT_EQ(Rows("SELECT Username, Password, AccessType, GroupID FROM tblusers"),
              EncipherForStorage("Administrator") + '|' + EncipherForStorage("Größe 9") + '|' +
                  EncipherForStorage(std::string(42, '1')) + "|0|\n");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM tblphonedata"), "500|\n");
    EXPECT_EQ(Rows("SELECT ID, Area, VM FROM tblsite"), "001|01604|299|\n002|01522|599|\n003|01392|6099|\n");
    EXPECT_EQ(Rows("SELECT Name FROM tblextensions WHERE ExtensionNo = \"6011\""), "André Lefèvre|\n");
    EXPECT_EQ(Rows("SELECT COUNT(*) FROM tblareaproviders WHERE Provider <> Area"), "0|\n");
    EXPECT_THAT(Rows("SELECT Code, Area FROM tblareaproviders"), HasSubstr("01604|Northampton|\n"));
    EXPECT_THAT(Rows("SELECT Number, Cost, CostID FROM tblcosts"),
                testing::AllOf(HasSubstr("0906|60.00|99|\n"), testing::EndsWith("Default|1.20|21|\n")));
}

// Reports follow the map to the key of the name. The most called of the address book are
// among the numbers dialled.
TEST_F(SetupSystem, MapsGroupsByTheKeysOfTheirNamesAndNamesNumbersThatAreCalled) {
    ASSERT_EQ(RunSetup({"--demo", "3000"}).status, 0);
    for (const DemoGroup& group : DemoGroups()) {
        std::string members;
        for (const int member : group.members) members += DemoExtensions()[member].number + "|\n";
        const std::string key =
            "(SELECT ID FROM tblgroupnames WHERE Name = '" + std::string(group.name) + "')";
        EXPECT_EQ(Rows("SELECT Extension FROM tblgroupmap WHERE GroupID = " + key), members);
    }
    EXPECT_NE(Rows("SELECT COUNT(*) FROM tblphonedata WHERE DestNum IN (SELECT Number FROM tbladdressbook)"),
              "0|\n");
}

TEST_F(SetupSystem, ChangesNothingTheSecondTime) {
    const std::string database = "other.db";
    ASSERT_EQ(RunSetup({"--demo", "40", "--address", "sqlite:" + (Home() / database).string()}).status, 0);
    const auto everything = [&] {
        std::string rows = test::ReadBytes(Hive());
        for (const char* table :
             {"tblphonedata", "tblusers", "tblsite", "tblextensions", "tblgroupnames", "tblgroupmap",
              "tblcosts", "tbladdressbook", "tblareaproviders", "tblcommproviders", "tblintcodes"}) {
            rows += Rows(std::string("SELECT * FROM ") + table, database);
        }
        return rows;
    };
    const std::string before = everything();
    const ProgramRun second =
        RunSetup({"--demo", "90", "--seed", "3", "--admin-password", "other", "--user", "other"});
    EXPECT_EQ(second.status, 0) << second.err;
    EXPECT_EQ(everything(), before);
    EXPECT_THAT(second.out, HasSubstr("Demonstration: 40 calls there already, nothing added\n"));
}

TEST_F(SetupSystem, StoresNoAddressThatItDidNotReach) {
    Folder().Write("text.db", "This file is a letter and no database at all.\n");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{"--address", "sqlite:/nowhere/at/all.db"}, "/nowhere/at/all.db"},
        {{"--address", "sqlite:" + (Home() / "text.db").string()}, "text.db"},
        {{"--address", "sqlite:"}, "database file"},
        {{"--address", "127.0.0.1:1"}, "127.0.0.1"},
        {{"--type", "3", "--address", "127.0.0.1:1"}, "127.0.0.1"},
        {{"--type", "2", "--address", "127.0.0.1:1"}, ""},
        {{"--bogus"}, "\"--bogus\""},
    };
    for (const auto& [arguments, why] : cases) {
        SCOPED_TRACE(arguments.back());
        ExpectFailure(RunSetup(arguments), why);
        EXPECT_FALSE(std::filesystem::exists(Hive()));
    }
}

TEST_F(SetupSystem, ReportsWhatIsMissingOrCannotBeWritten) {
    Folder().Write("file", "");
    ExpectFailure(RunSetup({}, "file"), "setting DBType cannot be written");
    EXPECT_FALSE(std::filesystem::exists(Home() / "tallix.db"));
    Folder().Write("reference.broken/areaproviders.csv", "Code,Area\n0113;Leeds\n");
    std::filesystem::remove(Home() / "reference");
    ExpectFailure(RunSetup({}), "reference data cannot be read: ");
    std::filesystem::rename(Home() / "reference.broken", Home() / "reference");
    ExpectFailure(RunSetup({}), "not a code and a name: 0113;Leeds");
    std::filesystem::remove(Home() / "schema");
    ExpectFailure(RunSetup({}), "schema");
}

}  // namespace
}  // namespace tallix
