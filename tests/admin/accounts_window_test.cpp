#include "admin/accounts_page.h"

#include <gtest/gtest.h>

#include <QTest>

#include "admin/user_groups.h"
#include "admin/user_groups_page.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

class AccountsPageTest : public test::WindowTest {
protected:
    template <typename Page>
    std::unique_ptr<Page> Open() {
        auto page = std::make_unique<Page>(test_.application, nullptr);
        page->Load();
        page->show();
        return page;
    }
    static QPushButton& Button(const QWidget& page, const QString& caption) {
        for (QPushButton* button : page.findChildren<QPushButton*>()) {
            if (button->text() == caption && button->isVisible()) return *button;
        }
        throw std::runtime_error(caption.toStdString());
    }
    static void Type(const QWidget& page, const QString& label, const QString& text) {
        dynamic_cast<QLineEdit&>(*test::Captioned<QLabel>(page, label).buddy()).setText(text);
    }
    static void SelectFirst(const QWidget& page) {
        auto& list = *page.findChild<ui::ListView*>();
        list.setCurrentIndex(list.model()->index(0, 0));
    }

    test::TestApplication test_;
};

TEST_F(AccountsPageTest, AnAccountIsMadeAndGivenRights) {
    const auto page = Open<AccountsPage>();
    EXPECT_FALSE(Button(*page, "Access").isEnabled());
    Button(*page, "Add").click();
    const auto& shown =
        dynamic_cast<ui::PermissionList&>(*test::Captioned<QLabel>(*page, "Permissions:").buddy());
    EXPECT_EQ(shown.Access(), AccessOfNewAccount());
    Type(*page, "Username:", "ann");
    Type(*page, "Password:", "secret");
    Type(*page, "Email:", "nowhere");
    Button(*page, "Save").click();
    EXPECT_EQ(test_.prompts.messages.at(0).title, "Bad Email Address");
    Type(*page, "Email:", "ann@example.org");
    Button(*page, "Save").click();
    SelectFirst(*page);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        const std::string before = ReadAccount(test_.application.session, "Ann").access;
        Button(*page, "Access").click();
        Button(*page, "Select All").click();
        test_.prompts.answers = {answer};
        Button(*page, "Save").click();
        const std::string after = ReadAccount(test_.application.session, "Ann").access;
        EXPECT_EQ(after, answer == Answer::Yes ? std::string(42, '1') : before);
    }
    auto& list = *page->findChild<ui::ListView*>();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(Button(*page, "Save").isVisible());
    Type(*page, "Email:", "ann@example.com");
    QTest::keyClick(page->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(list.Rows().All().at(0), (ui::ListRow{"Ann", "ann@example.com"}));
    EXPECT_EQ(page->focusWidget(), &list);
    Button(*page, "Delete").click();
    EXPECT_EQ(list.Rows().Count(), 0);
    EXPECT_FALSE(Button(*page, "Delete").isEnabled());
    page->ApplyRights(std::string(42, '0'));
    EXPECT_THROW(Button(*page, "Add"), std::runtime_error);
}

TEST_F(AccountsPageTest, AGroupKeepsItsRights) {
    AddUserGroup(test_.application.session, "Desk", "01" + std::string(40, '0'));
    const auto page = Open<UserGroupsPage>();
    SelectFirst(*page);
    Button(*page, "Edit").click();
    page->findChild<ui::PermissionList*>()->item(2)->setCheckState(Qt::Checked);
    Type(*page, "Group Name:", "Nobody");
    Button(*page, "Save").click();
    EXPECT_EQ(test_.prompts.messages.at(0).text, "An error has occured whilst editing group!");
    Type(*page, "Group Name:", "Desk");
    Button(*page, "Save").click();
    EXPECT_EQ(ReadGroupAccess(test_.application.session, "Desk"), "011" + std::string(39, '0'));
    test_.prompts.answers = {Answer::Yes};
    Button(*page, "Delete").click();
    EXPECT_TRUE(LoadUserGroups(test_.application.session).empty());
}

}  // namespace
}  // namespace tallix
