// The pages of extensions, their groups and the address book.
#include <gmock/gmock.h>

#include <fstream>

#include "admin/address_book_page.h"
#include "admin/extension_groups_page.h"
#include "admin/extensions_page.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using ui::ListRow;

class AdminPagesTest : public test::WindowTest {
protected:
    template <typename Page>
    Page& Open() {
        auto page = std::make_unique<Page>(test_.application, nullptr);
        Page& opened = *page;
        page_ = std::move(page);
        page_->Load();
        page_->show();
        return opened;
    }

    void Click(const QString& caption) { test::Captioned<QPushButton>(*page_, caption).click(); }

    void Enter(const QString& label, const QString& text) {
        dynamic_cast<QLineEdit&>(*test::Captioned<QLabel>(*page_, label).buddy()).setText(text);
    }

    ui::ListView& List(const QString& name) { return *page_->findChild<ui::ListView*>(name); }

    void Select(const QString& list, int row) {
        List(list).setCurrentIndex(List(list).model()->index(row, 0));
    }

    const std::vector<ListRow>& Rows(const QString& list) { return List(list).Rows().All(); }

    test::TestApplication test_;
    std::unique_ptr<OptionsPage> page_;
};

TEST_F(AdminPagesTest, ExtensionsAreEditedOnTheScreenAlone) {
    test_.Execute("INSERT INTO tblextensions(ExtensionNo, Name) VALUES ('202', 'Ann')");
    for (const char* number : {"201", "202"}) test_.InsertCall({{"Extension", number}});
    ExtensionsPage& page = Open<ExtensionsPage>();
    Click("Get From Data");  // answered No
    EXPECT_FALSE(page.Changed());
    test_.prompts.answers = {Answer::Yes};
    Click("Get From Data");
    EXPECT_TRUE(page.Changed());
    Click("Delete");
    Click("Edit");
    EXPECT_FALSE(page.findChild<ui::EntryPanel*>()->isVisible());
    Click("Add");
    for (const char* number : {"203", "201"}) {  // the second is there already
        Enter("Number:", number);
        Enter("Name:", "Bob");
        Click("Save");
        EXPECT_EQ(page.findChild<QLineEdit*>()->text(), "");
    }
    Click("Cancel");
    Select("Extensions Data", 1);
    Click("Edit");
    EXPECT_FALSE(test::Captioned<QLabel>(page, "Number:").buddy()->isEnabled());
    Enter("Name:", "Cid");
    Click("Save");
    Select("Extensions Data", 2);
    Click("Delete");
    EXPECT_THAT(page.Extensions(), ElementsAre(Extension{"202", "Ann"}, Extension{"201", "Cid"}));
    EXPECT_THAT(LoadExtensions(test_.application.session), ElementsAre(Extension{"202", "Ann"}));
}

TEST_F(AdminPagesTest, ButtonsOfExtensionsFollowTheRights) {
    auto& page = Open<ExtensionsPage>();
    const char* const captions[] = {"Get From Data", "Add", "Edit", "Delete"};
    for (std::size_t granted = 0; granted < std::size(captions); ++granted) {
        std::string access(42, '0');
        access.at(21 + granted) = '1';
        page.ApplyRights(access);
        for (const char* caption : captions) {
            EXPECT_EQ(test::Captioned<QPushButton>(page, caption).isVisible(), caption == captions[granted]);
        }
    }
}

TEST_F(AdminPagesTest, GroupsShowTheirMembers) {
    Open<ExtensionGroupsPage>();
    for (const char* nothing : {"Add Member", "Delete Group", "Delete Member"}) Click(nothing);
    EXPECT_FALSE(page_->findChild<ui::EntryPanel*>()->isVisible());
    for (const char* name : {"Sales", "Stores"}) {
        Click("Add Group");
        Enter("Group Name:", name);
        Click("Save");
    }
    for (const int group : {0, 1}) {
        Select("Add Group", group);
        Click("Add Member");
        Enter("Extension Number:", QString::number(201 + group));
        Click("Save");
    }
    EXPECT_THAT(Rows("Group Members"), ElementsAre(ListRow{"202"}));
    test_.prompts.answers = {Answer::Yes, Answer::Yes};
    Select("Add Group", 0);
    Click("Delete Group");
    EXPECT_THAT(Rows("Add Group"), ElementsAre(ListRow{"Stores"}));
    EXPECT_THAT(Rows("Group Members"), IsEmpty());
    Select("Add Group", 0);
    EXPECT_THAT(Rows("Group Members"), ElementsAre(ListRow{"201"}));
    Select("Group Members", 0);
    Click("Delete Member");
    EXPECT_THAT(Rows("Group Members"), IsEmpty());
    EXPECT_EQ(test_.prompts.messages.at(1).title, "Delete Extension");
}

TEST_F(AdminPagesTest, TheAddressBookIsWrittenAtOnce) {
    const std::filesystem::path file = test_.Folder() / "numbers.csv";
    std::ofstream(file) << "2001,Front Desk, Reception";
    Open<AddressBookPage>();
    Click("Import CSV");  // no file chosen
    test_.prompts.paths = {file};
    Click("Import CSV");
    EXPECT_EQ(test_.prompts.messages.back().text, "Import complete!");
    Click("Add Number");
    Enter("Number: ", "2001");
    Click("Save");
    EXPECT_EQ(test_.prompts.messages.back().icon, MessageIcon::Critical);
    Enter("Number: ", "2002");
    Enter("Name: ", "Ann");
    Click("Save");
    Select("Current Numbers", 0);
    Click("Edit Number");
    Enter("Number: ", "2002");
    Enter("Name: ", "Bob");
    Click("Save");
    test_.prompts.answers = {Answer::Yes};
    Click("Delete Number");
    EXPECT_EQ(test_.prompts.messages.back().text, "Are you sure you wish to delete 2001?");
    EXPECT_THAT(Rows("Current Numbers"), ElementsAre(ListRow{"Bob", "2002"}));
    EXPECT_THAT(LoadAddressBook(test_.application.session), ElementsAre(KnownNumber{"Bob", "2002"}));
}

}  // namespace
}  // namespace tallix
