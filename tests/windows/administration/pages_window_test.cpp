// The pages of accounts, extensions, the groups of both, and the address book.
#include <fstream>

#include "administration/user_groups.h"
#include "support/form_test.h"
#include "windows/administration/accounts_page.h"
#include "windows/administration/address_book_page.h"
#include "windows/administration/extension_groups_page.h"
#include "windows/administration/extensions_page.h"
#include "windows/administration/user_groups_page.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Row = std::vector<std::string>;

class AdminPagesTest : public test::FormTest {
protected:
    Session& session_ = world.application.session;
};

TEST_F(AdminPagesTest, AnAccountIsMadeAndGivenRights) {
    auto& page = OpenPage<AccountsPage>();
    EXPECT_FALSE(Button("Access").isEnabled());
    Click("Add");
    Type("Username:", "ann");
    Type("Password:", "secret");
    Type("Email:", "nowhere");
    Click("Save");
    EXPECT_EQ(LastMessage().title, "Bad Email Address");
    Type("Email:", "ann@example.org");
    Click("Save");
    SelectRow(0);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        const AccessRights before = ReadAccount(session_, "Ann").access;
        Click("Access");
        Click("Select All");
        world.prompts.answers = {answer};
        Click("Save");
        EXPECT_EQ(ReadAccount(session_, "Ann").access, answer == Answer::Yes ? AccessRights::All() : before);
    }
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Return);
    Type("Email:", "ann@example.com");
    QTest::keyClick(&Labelled("Email:"), Qt::Key_Return);
    EXPECT_THAT(Rows(), ElementsAre(Row{"Ann", "ann@example.com"}));
    EXPECT_EQ(page.focusWidget(), &List());
    page.ApplyRights({AccessRight::DeleteUser});
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_FALSE(Button("Add").isVisible() || Button("Save").isVisible()) << "Enter opens what may be edited";
    Click("Delete");
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(AdminPagesTest, AGroupKeepsItsRights) {
    AddUserGroup(session_, "Desk", {AccessRight::CustomReports});
    auto& page = OpenPage<UserGroupsPage>();
    SelectRow(0);
    Click("Edit");
    page.findChild<toolkit::PermissionList*>()->item(2)->setCheckState(Qt::Checked);
    Type("Group Name:", "Nobody");
    Click("Save");
    EXPECT_EQ(LastMessage().text, "An error has occured whilst editing group!");
    Type("Group Name:", "Desk");
    Click("Save");
    EXPECT_EQ(ReadGroupAccess(session_, "Desk"),
              (AccessRights{AccessRight::CustomReports, AccessRight::Archive}));
    world.prompts.answers = {Answer::Yes};
    Click("Delete");
    EXPECT_THAT(LoadUserGroups(session_), IsEmpty());
}

TEST_F(AdminPagesTest, ExtensionsAreEditedOnTheScreenOnly) {
    world.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES ('202', 'Ann')");
    for (const char* number : {"201", "202"}) world.InsertCall({{"Extension", number}});
    ExtensionsPage& page = OpenPage<ExtensionsPage>();
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        world.prompts.answers = {answer};
        Click("Get From Data");
        EXPECT_EQ(page.Changed(), answer == Answer::Yes);
    }
    Click("Add");
    for (const char* number : {"203", "201"}) {  // the second is there already
        Type("Number:", number);
        Type("Name:", "Bob");
        Click("Save");
        EXPECT_EQ(page.findChild<QLineEdit*>()->text(), "");
    }
    Click("Cancel");
    SelectRow(1, "Extensions Data");
    Click("Edit");
    EXPECT_FALSE(Labelled("Number:").isEnabled());
    Type("Name:", "Cid");
    Click("Save");
    SelectRow(2, "Extensions Data");
    Click("Delete");
    EXPECT_THAT(page.Extensions(), ElementsAre(Extension{"202", "Ann"}, Extension{"201", "Cid"}));
    EXPECT_THAT(LoadExtensions(session_), ElementsAre(Extension{"202", "Ann"}));

    page.ApplyRights({AccessRight::EditExtension});
    EXPECT_TRUE(Button("Edit").isVisible());
    for (const char* caption : {"Get From Data", "Add", "Delete"}) EXPECT_FALSE(Button(caption).isVisible());
}

TEST_F(AdminPagesTest, GroupsShowTheirMembers) {
    OpenPage<ExtensionGroupsPage>();
    for (const char* nothing : {"Add Member", "Delete Group", "Delete Member"}) Click(nothing);
    EXPECT_FALSE(Window().findChild<toolkit::EntryPanel*>()->isVisible());
    for (const char* name : {"Sales", "Stores"}) {
        Click("Add Group");
        Type("Group Name:", name);
        Click("Save");
    }
    for (const int group : {0, 1}) {
        SelectRow(group, "Add Group");
        Click("Add Member");
        Type("Extension Number:", QString::number(201 + group));
        Click("Save");
    }
    EXPECT_THAT(Rows("Group Members"), ElementsAre(Row{"202"}));
    world.prompts.answers = {Answer::Yes, Answer::Yes};
    SelectRow(0, "Add Group");
    Click("Delete Group");
    EXPECT_THAT(Rows("Add Group"), ElementsAre(Row{"Stores"}));
    EXPECT_FALSE(Button("Add Member").isEnabled()) << "nothing is selected after a removal";
    EXPECT_THAT(Rows("Group Members"), IsEmpty());
    SelectRow(0, "Add Group");
    EXPECT_THAT(Rows("Group Members"), ElementsAre(Row{"201"}));
    SelectRow(0, "Group Members");
    Click("Delete Member");
    EXPECT_THAT(Rows("Group Members"), IsEmpty());
    EXPECT_EQ(LastMessage().title, "Delete Extension");
}

TEST_F(AdminPagesTest, TheAddressBookIsWrittenAtOnce) {
    const std::filesystem::path file = world.Folder() / "numbers.csv";
    std::ofstream(file) << "2001,Front Desk, Reception";
    OpenPage<AddressBookPage>();
    Click("Import CSV");  // no file chosen
    world.prompts.paths = {file};
    Click("Import CSV");
    EXPECT_EQ(LastMessage().text, "Import complete!");
    Click("Add Number");
    Type("Number: ", "2001");
    Click("Save");
    EXPECT_EQ(LastMessage().icon, MessageIcon::Critical);
    Type("Number: ", "2002");
    Type("Name: ", "Ann");
    Click("Save");
    SelectRow(0, "Current Numbers");
    Click("Edit Number");
    Type("Number: ", "2002");
    Type("Name: ", "Bob");
    Click("Save");
    world.prompts.answers = {Answer::Yes};
    Click("Delete Number");
    EXPECT_EQ(LastMessage().text, "Are you sure you wish to delete 2001?");
    EXPECT_THAT(Rows("Current Numbers"), ElementsAre(Row{"Bob", "2002"}));
    EXPECT_THAT(LoadAddressBook(session_), ElementsAre(KnownNumber{"Bob", "2002"}));
}

}  // namespace
}  // namespace tallix
