// Extensions, their groups and the address book, alike on every engine.
#include "admin/extensions.h"

#include <gmock/gmock.h>

#include <fstream>

#include "admin/address_book.h"
#include "admin/extension_groups.h"
#include "foundation/ado/recordset.h"
#include "foundation/database.h"
#include "foundation/errors.h"
#include "support/test_application.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AdminLists : public testing::TestWithParam<const char*> {
protected:
    AdminLists()
        : engine_(test::EngineNamed(GetParam())),
          connection_(test::FreshDatabase(engine_)),
          test_({engine_.dbType, engine_.address, engine_.user, engine_.password}) {}

    void Store(const std::vector<Extension>& extensions) {
        OpenDatabase(session);
        StoreExtensions(session, extensions);
        CloseDatabase(session);
    }

    void Import(const std::string& bytes) {
        const std::filesystem::path file = test_.Folder() / "numbers.csv";
        std::ofstream(file, std::ios::binary) << bytes;
        ImportAddressBook(session, file);
    }

    const test::TestEngine& engine_;
    std::unique_ptr<ado::Connection> connection_;
    test::TestApplication test_;
    Session& session = test_.application.session;
};

TEST_P(AdminLists, CallsGiveTheNumbersThatTheListLacks) {
    for (const char* number : {"201", "T123", "t123", "  ", "", "202", "201", " T9"}) {
        test_.InsertCall({{"Extension", number}});
    }
    NoProgress nobody;
    std::vector<Extension> list = {{"202", "Ann"}};
    const std::vector<Extension> found = FindNewExtensions(test_.application, list, nobody);
    EXPECT_THAT(found, ElementsAre(Extension{"201", ""}, Extension{"t123", ""}, Extension{" T9", ""}));
    list.insert(list.end(), found.begin(), found.end());
    EXPECT_THAT(FindNewExtensions(test_.application, list, nobody), IsEmpty());
    Store(list);
    EXPECT_THAT(LoadExtensions(session), testing::UnorderedElementsAreArray(list));
}

TEST_P(AdminLists, ARefusedExtensionEndsTheStoreAndKeepsThoseBeforeIt) {
    const Extension ann{"201", "Ann \"O'Neil\""};
    EXPECT_THROW(Store({ann, {"201", "Bob"}, {"202", "Cid"}}), DatabaseError);
    EXPECT_THAT(LoadExtensions(session), ElementsAre(ann));
}

TEST_P(AdminLists, AGroupThatGoesTakesTheMembersOfTheOneAbove) {
    for (const char* name : {"Sales", "Stores", "Works"}) AddExtensionGroup(session, name);
    for (const int line : {1, 2, 3}) AddGroupMember(session, line, "20" + std::to_string(line));
    AddGroupMember(session, 1, "299");
    AddGroupMember(session, 3, "299");
    DeleteGroupMember(session, "299");
    DeleteExtensionGroup(session, "Works", 3);
    EXPECT_THAT(LoadExtensionGroups(session), ElementsAre("Sales", "Stores"));
    EXPECT_THAT(LoadGroupMembers(session, 1), ElementsAre("201"));
    EXPECT_THAT(LoadGroupMembers(session, 2), IsEmpty());
    EXPECT_THAT(LoadGroupMembers(session, 3), ElementsAre("203"));
    ado::Recordset members;
    members.Open("select * from tblgroupmap where Extension = '203'", *connection_);
    EXPECT_EQ(members.Text("GroupID"), "4");
}

TEST_P(AdminLists, NumbersAreAddedOnceRenamedAndDeleted) {
    EXPECT_TRUE(AddKnownNumber(session, {"Ann", "2001"}));
    EXPECT_FALSE(AddKnownNumber(session, {"Bob", "2001"}));
    EXPECT_TRUE(RenameKnownNumber(session, {"Cid", "2001"}));
    EXPECT_FALSE(RenameKnownNumber(session, {"Dan", "2002"}));
    EXPECT_THAT(LoadAddressBook(session), ElementsAre(KnownNumber{"Cid", "2001"}));
    DeleteKnownNumber(session, "2002");
    DeleteKnownNumber(session, "2001");
    EXPECT_THAT(LoadAddressBook(session), IsEmpty());
}

TEST_P(AdminLists, LinesOfAFileBecomeNumbers) {
    Import("");
    EXPECT_THAT(LoadAddressBook(session), IsEmpty());
    Import("2001,Front Desk, Reception\r\n\n,Nobody\n2001,\"Caf\xE9\"\nNo comma\n2002,Zo\xC3\xAB");
    EXPECT_THAT(
        LoadAddressBook(session),
        testing::UnorderedElementsAre(KnownNumber{"Front Desk, Reception", "2001"}, KnownNumber{"", ""},
                                      KnownNumber{"Nobody", ""}, KnownNumber{"\"Caf\xC3\xA9\"", "2001"},
                                      KnownNumber{"o comma", ""}, KnownNumber{"Zo\xC3\xAB", "2002"}));
    EXPECT_THROW(ImportAddressBook(session, test_.Folder() / "absent.csv"), std::runtime_error);
}

TEST_P(AdminLists, ARefusedLineEndsTheImportAndKeepsThoseBeforeIt) {
    connection_->Execute("CREATE UNIQUE INDEX OnlyOnce ON tbladdressbook (Number)");
    EXPECT_THROW(Import("1,One\n2,Two\n1,Again\n3,Three\n"), DatabaseError);
    connection_->Execute(engine_.name == "mariadb" ? "DROP INDEX OnlyOnce ON tbladdressbook"
                                                   : "DROP INDEX OnlyOnce");
    EXPECT_THAT(LoadAddressBook(session), ElementsAre(KnownNumber{"One", "1"}, KnownNumber{"Two", "2"}));
}

INSTANTIATE_TEST_SUITE_P(Engines, AdminLists, testing::ValuesIn(test::kSessionEngines));

}  // namespace
}  // namespace tallix
