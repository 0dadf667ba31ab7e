#include "windows/administration/accounts_page.h"

#include <gtest/gtest.h>

#include <QTest>

#include "administration/user_groups.h"
#include "support/form_test.h"
#include "windows/administration/user_groups_page.h"

namespace tallix {
namespace {

class AccountsPageTest : public test::FormTest {};

TEST_F(AccountsPageTest, AnAccountIsMadeAndGivenRights) {
    auto& page = OpenPage<AccountsPage>();
    EXPECT_FALSE(Button("Access").isEnabled());
    Click("Add");
    EXPECT_EQ(Labelled<toolkit::PermissionList>("Permissions:").Access(), AccessOfNewAccount());
    Type("Username:", "ann");
    Type("Password:", "secret");
    Type("Email:", "nowhere");
    Click("Save");
    EXPECT_EQ(world.prompts.messages.at(0).title, "Bad Email Address");
    Type("Email:", "ann@example.org");
    Click("Save");
    SelectRow(0);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        const AccessRights before = ReadAccount(world.application.session, "Ann").access;
        Click("Access");
        Click("Select All");
        world.prompts.answers = {answer};
        Click("Save");
        const AccessRights after = ReadAccount(world.application.session, "Ann").access;
        EXPECT_EQ(after, answer == Answer::Yes ? AccessRights::All() : before);
    }
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(Button("Save").isVisible());
    Type("Email:", "ann@example.com");
    QTest::keyClick(&Labelled("Email:"), Qt::Key_Return);
    EXPECT_EQ(Rows().at(0), (std::vector<std::string>{"Ann", "ann@example.com"}));
    EXPECT_EQ(page.focusWidget(), &List());
    Click("Delete");
    EXPECT_TRUE(Rows().empty());
    EXPECT_FALSE(Button("Delete").isEnabled());
    page.ApplyRights({});
    EXPECT_FALSE(Button("Add").isVisible());
}

TEST_F(AccountsPageTest, AGroupKeepsItsRights) {
    AddUserGroup(world.application.session, "Desk", {AccessRight::CustomReports});
    auto& page = OpenPage<UserGroupsPage>();
    SelectRow(0);
    Click("Edit");
    page.findChild<toolkit::PermissionList*>()->item(2)->setCheckState(Qt::Checked);
    Type("Group Name:", "Nobody");
    Click("Save");
    EXPECT_EQ(world.prompts.messages.at(0).text, "An error has occured whilst editing group!");
    Type("Group Name:", "Desk");
    Click("Save");
    EXPECT_EQ(ReadGroupAccess(world.application.session, "Desk"),
              (AccessRights{AccessRight::CustomReports, AccessRight::Archive}));
    world.prompts.answers = {Answer::Yes};
    Click("Delete");
    EXPECT_TRUE(LoadUserGroups(world.application.session).empty());
}

}  // namespace
}  // namespace tallix
