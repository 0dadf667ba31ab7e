#include "windows/administration/user_groups_page.h"

#include <functional>

#include "administration/user_groups.h"

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
    MessageIcon::Question};

}  // namespace

UserGroupsPage::UserGroupsPage(Application& application, QWidget* parent)
    : ListPage(application, AccessRight::Groups, parent),
      list_(*AddList<std::string>("User Groups",
                                  {{"Group Name", std::identity(), 4 * toolkit::kPlainColumnWidth}})),
      panel_(new toolkit::EntryPanel(*this)),
      name_(new QLineEdit),
      rights_(new toolkit::PermissionList) {
    AddButtons();
    Arrange({list_.Layout(Heading::Hidden)});
    MakePanel();
}

void UserGroupsPage::AddButtons() {
    list_.AddButton({"Add", "Add a user group"}, [this] { OpenAdd(); });
    list_.PressOnActivation(
        list_.AddButton({.caption = "Edit", .actsOn = ActsOn::Record}, [this] { OpenEdit(); }));
    list_.AddButton({.caption = "Delete", .actsOn = ActsOn::Record}, [this] { Delete(); });
}

void UserGroupsPage::MakePanel() {
    name_->setToolTip("Enter a group name");
    rights_->setToolTip("Select access rights");
    panel_->AddInput("Group Name:", name_);
    panel_->AddInput("Group Access:", rights_);
    rights_->setAccessibleName("Group Access:");
    panel_->SaveButton().setToolTip("Save changes to user group");
    panel_->CancelButton().setToolTip("Cancel user group changes");
    connect(panel_, &toolkit::EntryPanel::Saved, this, &UserGroupsPage::Save);
}

void UserGroupsPage::Load() {
    list_.Set(LoadUserGroups(Program().session));
}

void UserGroupsPage::OpenAdd() {
    entry_ = Entry::New;
    name_->clear();
    rights_->TickAll(false);
    panel_->Open(kAddTitle);
}

void UserGroupsPage::OpenEdit() {
    entry_ = Entry::Existing;
    const std::string& name = *list_.Selected();
    name_->setText(QString::fromStdString(name));
    rights_->ShowAccess(ReadGroupAccess(Program().session, name));
    panel_->Open(kEditTitle);
}

void UserGroupsPage::Save() {
    const std::string name = name_->text().toStdString();
    if (entry_ == Entry::New ? Add(name) : Edit(name)) panel_->hide();
}

bool UserGroupsPage::Add(const std::string& name) {
    if (!AddUserGroup(Program().session, name, rights_->Access())) {
        Program().prompts.Show(kNameTaken);
        return false;
    }
    list_.Append(name);
    return true;
}

bool UserGroupsPage::Edit(const std::string& name) {
    if (EditUserGroup(Program().session, name, rights_->Access())) return true;
    Program().prompts.Show(kNoSuchGroup);
    return false;
}

void UserGroupsPage::Delete() {
    if (!Confirms(kDeleteQuestion)) return;
    DeleteUserGroup(Program().session, *list_.Selected());
    list_.RemoveSelected();
}

}  // namespace tallix
