#include "windows/administration/user_groups_page.h"

#include "administration/user_groups.h"
#include "session/access_rights.h"

namespace tallix {
namespace {

constexpr char kAddTitle[] = "Add Group";
constexpr char kEditTitle[] = "Edit Group";

const Message kNameTaken = {kAddTitle, "Group already exists! Please check the group name.",
                            MessageIcon::Exclamation};
const Message kNoSuchGroup = {kEditTitle, "An error has occured whilst editing group!",
                              MessageIcon::Exclamation};
const Message kDeleteQuestion = {
    "Delete Group?",
    "This will delete the selected group from the system. Doing so will revert all group members to their "
    "original access permissions. Are you sure you wish to do this?",
    MessageIcon::Question, MessageButtons::YesNo};

}  // namespace

UserGroupsPage::UserGroupsPage(Application& application, QWidget* parent)
    : OptionsPage(parent),
      application_(application),
      list_(new toolkit::ListView({{"Group Name", 4 * toolkit::kPlainColumnWidth}})),
      edit_(ActionButton(this, "Edit", "", &UserGroupsPage::OpenEdit)),
      delete_(ActionButton(this, "Delete", "", &UserGroupsPage::Delete)),
      name_(new QLineEdit),
      rights_(new toolkit::PermissionList) {
    auto* add = ActionButton(this, "Add", "Add a user group", &UserGroupsPage::OpenAdd);
    ArrangePage(*this, {OnlyList("User Groups", *list_), ListButtons({}, {add, edit_, delete_})});
    MakePanel();
    PressOnActivation(*list_, *edit_);
    connect(list_, &toolkit::ListView::SelectionMoved, this, &UserGroupsPage::EnableButtons);
    EnableButtons();
}

void UserGroupsPage::MakePanel() {
    name_->setToolTip("Enter a group name");
    rights_->setToolTip("Select access rights");
    panel_ = new toolkit::EntryPanel(*this);
    panel_->AddInput("Group Name:", name_);
    panel_->AddInput("Group Access:", rights_);
    rights_->setAccessibleName("Group Access:");
    panel_->SaveButton().setToolTip("Save changes to user group");
    panel_->CancelButton().setToolTip("Cancel user group changes");
    connect(panel_, &toolkit::EntryPanel::Saved, this, &UserGroupsPage::Save);
}

void UserGroupsPage::Load() {
    std::vector<toolkit::ListRow> rows;
    for (const std::string& name : LoadUserGroups(application_.session)) rows.push_back({name});
    list_->Rows().Set(std::move(rows));
    EnableButtons();
}

bool UserGroupsPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::Groups);
}

std::string UserGroupsPage::SelectedName() const {
    return list_->Rows().Text(list_->SelectedRow(), 0).toStdString();
}

void UserGroupsPage::EnableButtons() {
    const bool selected = list_->SelectedRow() >= 0;
    for (QPushButton* button : {edit_, delete_}) button->setEnabled(selected);
}

void UserGroupsPage::OpenAdd() {
    edits_ = false;
    name_->clear();
    rights_->TickAll(false);
    panel_->Open(kAddTitle);
}

void UserGroupsPage::OpenEdit() {
    edits_ = true;
    name_->setText(QString::fromStdString(SelectedName()));
    rights_->ShowAccess(ReadGroupAccess(application_.session, SelectedName()));
    panel_->Open(kEditTitle);
}

void UserGroupsPage::Save() {
    const std::string name = name_->text().toStdString();
    if (edits_ ? Edit(name) : Add(name)) panel_->hide();
}

bool UserGroupsPage::Add(const std::string& name) {
    if (!AddUserGroup(application_.session, name, rights_->Access())) {
        application_.prompts.Show(kNameTaken);
        return false;
    }
    list_->Rows().Append({name});
    return true;
}

bool UserGroupsPage::Edit(const std::string& name) {
    if (EditUserGroup(application_.session, name, rights_->Access())) return true;
    application_.prompts.Show(kNoSuchGroup);
    return false;
}

void UserGroupsPage::Delete() {
    if (application_.prompts.Show(kDeleteQuestion) != Answer::Yes) return;
    DeleteUserGroup(application_.session, SelectedName());
    list_->Rows().Remove(list_->SelectedRow());
    list_->clearSelection();
    EnableButtons();
}

}  // namespace tallix
