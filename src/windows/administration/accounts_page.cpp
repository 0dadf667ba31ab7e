#include "windows/administration/accounts_page.h"

#include "administration/user_groups.h"
#include "session/access_rights.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

enum ListCell : int { kUserName, kEmail };

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
    : OptionsPage(parent),
      application_(application),
      list_(new toolkit::ListView(
          {{"Username", 2 * toolkit::kPlainColumnWidth}, {"Email", 3 * toolkit::kPlainColumnWidth}})),
      add_(ActionButton(this, "Add", "Click to add an account", &AccountsPage::OpenAdd)),
      edit_(ActionButton(this, "Edit", "", &AccountsPage::OpenEdit)),
      delete_(ActionButton(this, "Delete", "", &AccountsPage::Delete)),
      access_(ActionButton(this, "Access", "Click to set account access rights", &AccountsPage::OpenAccess)),
      userName_(new QLineEdit),
      password_(new QLineEdit),
      email_(new QLineEdit),
      group_(new QComboBox),
      permissions_(new toolkit::PermissionList),
      accessUser_(new QLabel),
      accessRights_(new toolkit::PermissionList) {
    ArrangePage(*this, {OnlyList("User Accounts", *list_), ListButtons({access_}, {add_, edit_, delete_})});
    MakeAccountPanel();
    MakeAccessPanel();
    PressOnActivation(*list_, *edit_);
    connect(list_, &toolkit::ListView::SelectionMoved, this, &AccountsPage::EnableButtons);
    EnableButtons();
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
    accessPanel_->AddRow(ListButtons({all, none}, {}));
    accessPanel_->SaveButton().setToolTip("Click here to save changes");
    accessPanel_->CancelButton().setToolTip("Click here to cancel changes");
    connect(accessPanel_, &toolkit::EntryPanel::Saved, this, &AccountsPage::SaveAccess);
}

void AccountsPage::Load() {
    std::vector<toolkit::ListRow> rows;
    for (const Account& account : LoadAccounts(application_.session)) {
        rows.push_back({account.userName, account.email});
    }
    list_->Rows().Set(std::move(rows));
    EnableButtons();
}

void AccountsPage::ApplyRights(std::string_view access) {
    add_->setVisible(Allows(access, AccessRight::AddUser));
    edit_->setVisible(Allows(access, AccessRight::EditUser));
    delete_->setVisible(Allows(access, AccessRight::DeleteUser));
    for (QWidget* widget : {static_cast<QWidget*>(groupLabel_), static_cast<QWidget*>(group_)}) {
        widget->setEnabled(Allows(access, AccessRight::Groups));
    }
}

bool AccountsPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::Users);
}

void AccountsPage::EnableButtons() {
    const bool selected = list_->SelectedRow() >= 0;
    for (QPushButton* button : {edit_, delete_, access_}) button->setEnabled(selected);
}

std::string AccountsPage::SelectedName() const {
    return list_->Rows().Text(list_->SelectedRow(), kUserName).toStdString();
}

// Shows the rights that the account gets, whatever is ticked.
void AccountsPage::OpenAdd() {
    edits_ = false;
    OpenAccount("Add User", {.access = AccessOfNewAccount()});
}

void AccountsPage::OpenEdit() {
    edits_ = true;
    OpenAccount("Edit User", ReadAccount(application_.session, SelectedName()));
}

void AccountsPage::OpenAccount(const char* title, const Account& account) {
    group_->clear();
    group_->addItem("");
    for (const std::string& name : LoadUserGroups(application_.session)) {
        group_->addItem(QString::fromStdString(name));
    }
    userName_->setEnabled(!edits_);
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
        application_.prompts.Show(*refusal);
        return;
    }
    if (edits_) {
        Edit(account);
    } else if (!Add(account)) {
        return;
    }
    accountPanel_->hide();
}

bool AccountsPage::Add(const Account& account) {
    if (!AddAccount(application_, account)) {
        application_.prompts.Show(kNameTaken);
        return false;
    }
    Load();
    return true;
}

// The row stays selected: its rights may be next.
void AccountsPage::Edit(const Account& account) {
    EditAccount(application_, account);
    list_->Rows().SetText(list_->SelectedRow(), kEmail, QString::fromStdString(account.email));
}

// Nothing is asked before.
void AccountsPage::Delete() {
    if (!DeleteAccount(application_, SelectedName())) {
        application_.prompts.Show(kNotDeleted);
        return;
    }
    list_->Rows().Remove(list_->SelectedRow());
    list_->clearSelection();
    EnableButtons();
}

void AccountsPage::OpenAccess() {
    const std::string name = SelectedName();
    if (name == kAdministrator) {
        application_.prompts.Show(kNotEdited);
        return;
    }
    accessUser_->setText("User: " + QString::fromStdString(name));
    accessRights_->ShowAccess(ReadAccount(application_.session, name).access);
    accessPanel_->Open("Set Access Details");
}

void AccountsPage::SaveAccess() {
    const std::string name = SelectedName();
    const Message question = {"Access Changes", kAccessWarning + name, MessageIcon::Exclamation,
                              MessageButtons::YesNo};
    if (application_.prompts.Show(question) == Answer::Yes) {
        StoreAccess(application_.session, name, accessRights_->Access());
    }
    accessPanel_->hide();
}

}  // namespace tallix
