#include "windows/administration/accounts_page.h"

#include "administration/user_groups.h"
#include "session/access_rights.h"
#include "toolkit/button_row.h"

namespace tallix {
namespace {

const Message kNameTaken = {"Username Taken",
                            "This username has already been taken, please choose another one",
                            MessageIcon::Exclamation};
const Message kNotDeleted = {"Delete Account",
                             "You cannot delete the Administrator user account. Delete cancelled!",
                             MessageIcon::Critical};
const Message kNotEdited = {
    "Access Rights", "You cannot edit the Access rights of the Administrator account. Operation cancelled!",
    MessageIcon::Exclamation};
constexpr char kAccessWarning[] =
    "WARNING! - YOU ARE ABOUT TO MODIFY USER PERMISSIONS\r\n"
    "If you set these permissions incorrectly, you may lock yourself out of the Tallix system. Please ensure "
    "you have an account capable of performing user access changes before commiting these changes.\r\n\r\n"
    "Are you sure you want to set these permissions for the user: ";

}  // namespace

AccountsPage::AccountsPage(Application& application, QWidget* parent)
    : ListPage(application, AccessRight::Users, parent),
      list_(*AddList<Account>("User Accounts",
                              {{"Username", &Account::userName, 2 * toolkit::kPlainColumnWidth},
                               {"Email", &Account::email, 3 * toolkit::kPlainColumnWidth}})),
      userName_(new QLineEdit),
      password_(new QLineEdit),
      email_(new QLineEdit),
      group_(new QComboBox),
      permissions_(new toolkit::PermissionList),
      accessUser_(new QLabel),
      accessRights_(new toolkit::PermissionList) {
    AddButtons();
    Arrange({list_.Layout(Heading::Hidden)});
    MakeAccountPanel();
    MakeAccessPanel();
}

void AccountsPage::AddButtons() {
    using enum AccessRight;
    list_.AddButton({"Access", "Click to set account access rights", ActsOn::Record, Side::Left},
                    [this] { OpenAccess(); });
    list_.AddButton({.caption = "Add", .tip = "Click to add an account", .right = AddUser},
                    [this] { OpenAdd(); });
    list_.PressOnActivation(list_.AddButton({.caption = "Edit", .actsOn = ActsOn::Record, .right = EditUser},
                                            [this] { OpenEdit(); }));
    list_.AddButton({.caption = "Delete", .actsOn = ActsOn::Record, .right = DeleteUser},
                    [this] { Delete(); });
}

void AccountsPage::MakeAccountPanel() {
    password_->setEchoMode(QLineEdit::Password);
    accountPanel_ = new toolkit::EntryPanel(*this);
    accountPanel_->AddInput("Username:", userName_);
    accountPanel_->AddInput("Password:", password_);
    accountPanel_->AddInput("Email:", email_);
    groupLabel_ = &accountPanel_->AddInput("Group or Individual Permissions:", group_);
    accountPanel_->AddInput("Permissions:", permissions_);
    permissions_->setAccessibleName("Permissions:");
    connect(accountPanel_, &toolkit::EntryPanel::Saved, this, &AccountsPage::SaveAccount);
}

void AccountsPage::MakeAccessPanel() {
    accessPanel_ = new toolkit::EntryPanel(*this);
    accessPanel_->AddRow(accessUser_);
    accessRights_->setToolTip("Select access rights");
    accessRights_->setAccessibleName("Access rights");
    accessPanel_->AddRow(accessRights_);
    auto* all = new QPushButton("Select All");
    all->setToolTip("Click here to select all items");
    connect(all, &QPushButton::clicked, this, [this] { accessRights_->TickAll(true); });
    auto* none = new QPushButton("Unselect All");
    none->setToolTip("Click here to clear all items");
    connect(none, &QPushButton::clicked, this, [this] { accessRights_->TickAll(false); });
    accessPanel_->AddRow(toolkit::ButtonRow({all, none}, {}));
    accessPanel_->SaveButton().setToolTip("Click here to save changes");
    accessPanel_->CancelButton().setToolTip("Click here to cancel changes");
    connect(accessPanel_, &toolkit::EntryPanel::Saved, this, &AccountsPage::SaveAccess);
}

void AccountsPage::Load() {
    list_.Set(LoadAccounts(Program().session));
}

void AccountsPage::ApplyRights(const AccessRights& access) {
    ListPage::ApplyRights(access);
    for (QWidget* widget : {static_cast<QWidget*>(groupLabel_), static_cast<QWidget*>(group_)}) {
        widget->setEnabled(Allows(access, AccessRight::Groups));
    }
}

// Shows the rights that the account gets, whatever is ticked.
void AccountsPage::OpenAdd() {
    entry_ = Entry::New;
    OpenAccount("Add User", {.access = AccessOfNewAccount()});
}

void AccountsPage::OpenEdit() {
    entry_ = Entry::Existing;
    OpenAccount("Edit User", ReadAccount(Program().session, list_.Selected()->userName));
}

void AccountsPage::OpenAccount(const char* title, const Account& account) {
    group_->clear();
    group_->addItem("");
    for (const std::string& name : LoadUserGroups(Program().session)) {
        group_->addItem(QString::fromStdString(name));
    }
    userName_->setEnabled(entry_ == Entry::New);
    userName_->setText(QString::fromStdString(account.userName));
    password_->setText(QString::fromStdString(account.password));
    email_->setText(QString::fromStdString(account.email));
    group_->setCurrentText(QString::fromStdString(account.group));
    permissions_->ShowAccess(account.access);
    accountPanel_->Open(title);
}

Account AccountsPage::Typed() const {
    return {.userName = userName_->text().toStdString(),
            .password = password_->text().toStdString(),
            .email = email_->text().toStdString(),
            .group = group_->currentText().toStdString(),
            .access = permissions_->Access()};
}

void AccountsPage::SaveAccount() {
    const Account account = Typed();
    if (const auto refusal = RefusalOf(account)) {
        Program().prompts.Show(*refusal);
        return;
    }
    if (entry_ == Entry::Existing) {
        Edit(account);
    } else if (!Add(account)) {
        return;
    }
    accountPanel_->hide();
}

bool AccountsPage::Add(const Account& account) {
    if (!AddAccount(Program(), account)) {
        Program().prompts.Show(kNameTaken);
        return false;
    }
    Load();
    return true;
}

// The account stays selected: its rights may be next.
void AccountsPage::Edit(const Account& account) {
    EditAccount(Program(), account);
    list_.ReplaceSelected({.userName = list_.Selected()->userName, .email = account.email});
}

// Nothing is asked before.
void AccountsPage::Delete() {
    if (!DeleteAccount(Program(), list_.Selected()->userName)) {
        Program().prompts.Show(kNotDeleted);
        return;
    }
    list_.RemoveSelected();
}

void AccountsPage::OpenAccess() {
    const std::string name = list_.Selected()->userName;
    if (name == kAdministrator) {
        Program().prompts.Show(kNotEdited);
        return;
    }
    accessUser_->setText("User: " + QString::fromStdString(name));
    accessRights_->ShowAccess(ReadAccount(Program().session, name).access);
    accessPanel_->Open("Set Access Details");
}

void AccountsPage::SaveAccess() {
    const std::string name = list_.Selected()->userName;
    if (Confirms({"Access Changes", kAccessWarning + name, MessageIcon::Exclamation})) {
        StoreAccess(Program().session, name, accessRights_->Access());
    }
    accessPanel_->hide();
}

}  // namespace tallix
