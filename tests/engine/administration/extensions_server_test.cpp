// Extensions, their groups and the address book, alike on every engine.
#include "administration/extensions.h"

#include <gmock/gmock.h>

#include <fstream>

#include "administration/address_book.h"
#include "administration/extension_groups.h"
#include "database/database_scope.h"
#include "failures/errors.h"
#include "support/engine_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AdministrationLists : public test::EngineTest {
protected:
    void Store(const std::vector<Extension>& extensions) {
        StoreExtensions(DatabaseScope(session_.database), extensions);
    }

    void Import(const std::string& bytes) {
        const std::filesystem::path file = test_.Folder() / "numbers.csv";
        std::ofstream(file, std::ios::binary) << bytes;
        ImportAddressBook(session_, file);
    }
};

TEST_P(AdministrationLists, CallsGiveTheNumbersThatTheListLacks) {
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
    EXPECT_THAT(LoadExtensions(session_), testing::UnorderedElementsAreArray(list));
}

TEST_P(AdministrationLists, ARefusedExtensionEndsTheStoreAndKeepsThoseBeforeIt) {
    const Extension ann{"201", "Ann \"O'Neil\""};
    EXPECT_THROW(Store({ann, {"201", "Bob"}, {"202", "Cid"}}), DatabaseError);
    EXPECT_THAT(LoadExtensions(session_), ElementsAre(ann));
}

TEST_P(AdministrationLists, DeletingAGroupRemovesTheMembersOfTheOneAbove) {
    for (const char* name : {"Sales", "Stores", "Works"}) AddExtensionGroup(session_, name);
    for (const int line : {1, 2, 3}) AddGroupMember(session_, line, "20" + std::to_string(line));
    AddGroupMember(session_, 1, "299");
    AddGroupMember(session_, 3, "299");
    DeleteGroupMember(session_, "299");
    DeleteExtensionGroup(session_, "Works", 3);
    EXPECT_THAT(LoadExtensionGroups(session_), ElementsAre("Sales", "Stores"));
    EXPECT_THAT(LoadGroupMembers(session_, 1), ElementsAre("201"));
    EXPECT_THAT(LoadGroupMembers(session_, 2), IsEmpty());
    EXPECT_THAT(LoadGroupMembers(session_, 3), ElementsAre("203"));
    EXPECT_EQ(test_.Rows("select GroupID from tblgroupmap where Extension = '203'"), "4|\n");
}

TEST_P(AdministrationLists, NumbersAreAddedOnceRenamedAndDeleted) {
    EXPECT_TRUE(AddKnownNumber(session_, {"Ann", "2001"}));
    EXPECT_FALSE(AddKnownNumber(session_, {"Bob", "2001"}));
    EXPECT_TRUE(RenameKnownNumber(session_, {"Cid", "2001"}));
    EXPECT_FALSE(RenameKnownNumber(session_, {"Dan", "2002"}));
    EXPECT_THAT(LoadAddressBook(session_), ElementsAre(KnownNumber{"Cid", "2001"}));
    DeleteKnownNumber(session_, "2002");
    DeleteKnownNumber(session_, "2001");
    EXPECT_THAT(LoadAddressBook(session_), IsEmpty());
}

TEST_P(AdministrationLists, LinesOfAFileBecomeNumbers) {
    Import("");
    EXPECT_THAT(LoadAddressBook(session_), IsEmpty());
    Import("2001,Front Desk, Reception\r\n\n,Nobody\n2001,\"Caf\xE9\"\nNo comma\n2002,Zo\xC3\xAB");
    EXPECT_THAT(
        LoadAddressBook(session_),
        testing::UnorderedElementsAre(KnownNumber{"Front Desk, Reception", "2001"}, KnownNumber{"", ""},
                                      KnownNumber{"Nobody", ""}, KnownNumber{"\"Caf\xC3\xA9\"", "2001"},
                                      KnownNumber{"o comma", ""}, KnownNumber{"Zo\xC3\xAB", "2002"}));
    EXPECT_THROW(ImportAddressBook(session_, test_.Folder() / "absent.csv"), std::runtime_error);
}

TEST_P(AdministrationLists, ARefusedLineEndsTheImportAndKeepsThoseBeforeIt) {
    connection_->Execute("CREATE UNIQUE INDEX OnlyOnce ON tbladdressbook (Number)");
    EXPECT_THROW(Import("1,One\n2,Two\n1,Again\n3,Three\n"), DatabaseError);
    connection_->Execute(engine_.name == "mariadb" ? "DROP INDEX OnlyOnce ON tbladdressbook"
                                                   : "DROP INDEX OnlyOnce");
    EXPECT_THAT(LoadAddressBook(session_), ElementsAre(KnownNumber{"One", "1"}, KnownNumber{"Two", "2"}));
}

INSTANTIATE_TEST_SUITE_P(Engines, AdministrationLists, testing::ValuesIn(test::kSessionEngines));

}  // namespace
}  // namespace tallix
