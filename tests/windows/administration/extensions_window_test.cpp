// The pages of extensions, their groups and the address book.
#include <gmock/gmock.h>

#include <fstream>

#include "support/form_test.h"
#include "windows/administration/address_book_page.h"
#include "windows/administration/extension_groups_page.h"
#include "windows/administration/extensions_page.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Row = std::vector<std::string>;

class AdminPagesTest : public test::FormTest {};

TEST_F(AdminPagesTest, ExtensionsAreEditedOnTheScreenOnly) {
    world.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES ('202', 'Ann')");
    for (const char* number : {"201", "202"}) world.InsertCall({{"Extension", number}});
    ExtensionsPage& page = OpenPage<ExtensionsPage>();
    Click("Get From Data");  // answered No
    EXPECT_FALSE(page.Changed());
    world.prompts.answers = {Answer::Yes};
    Click("Get From Data");
    EXPECT_TRUE(page.Changed());
    Click("Delete");
    Click("Edit");
    EXPECT_FALSE(page.findChild<toolkit::EntryPanel*>()->isVisible());
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
    EXPECT_THAT(LoadExtensions(world.application.session), ElementsAre(Extension{"202", "Ann"}));
}

TEST_F(AdminPagesTest, ButtonsOfExtensionsFollowTheRights) {
    auto& page = OpenPage<ExtensionsPage>();
    const char* const captions[] = {"Get From Data", "Add", "Edit", "Delete"};
    const AccessRight rights[] = {AccessRight::GetFromData, AccessRight::AddExtension,
                                  AccessRight::EditExtension, AccessRight::DeleteExtension};
    for (std::size_t granted = 0; granted < std::size(captions); ++granted) {
        page.ApplyRights({rights[granted]});
        for (const char* caption : captions) {
            EXPECT_EQ(Button(caption).isVisible(), caption == captions[granted]);
        }
    }
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
    EXPECT_EQ(world.prompts.messages.at(1).title, "Delete Extension");
}

TEST_F(AdminPagesTest, TheAddressBookIsWrittenAtOnce) {
    const std::filesystem::path file = world.Folder() / "numbers.csv";
    std::ofstream(file) << "2001,Front Desk, Reception";
    OpenPage<AddressBookPage>();
    Click("Import CSV");  // no file chosen
    world.prompts.paths = {file};
    Click("Import CSV");
    EXPECT_EQ(world.prompts.messages.back().text, "Import complete!");
    Click("Add Number");
    Type("Number: ", "2001");
    Click("Save");
    EXPECT_EQ(world.prompts.messages.back().icon, MessageIcon::Critical);
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
    EXPECT_EQ(world.prompts.messages.back().text, "Are you sure you wish to delete 2001?");
    EXPECT_THAT(Rows("Current Numbers"), ElementsAre(Row{"Bob", "2002"}));
    EXPECT_THAT(LoadAddressBook(world.application.session), ElementsAre(KnownNumber{"Bob", "2002"}));
}

}  // namespace
}  // namespace tallix
