#include "windows/administration/extension_groups_page.h"

#include <functional>

#include "administration/extension_groups.h"

namespace tallix {

ExtensionGroupsPage::ExtensionGroupsPage(Application& application, QWidget* parent)
    : ListPage(application, AccessRight::Groups, parent),
      groups_(*AddList<std::string>("Add Group", {{"Group Name", std::identity()}})),
      members_(*AddList<std::string>("Group Members", {{"Extension", std::identity()}})),
      panel_(new toolkit::EntryPanel(*this)),
      entry_(new QLineEdit),
      entryLabel_(&panel_->AddInput("Group Name:", entry_)) {
    AddButtons();
    Arrange({groups_.Layout(Heading::Shown), members_.Layout(Heading::Shown)});
    connect(panel_, &toolkit::EntryPanel::Saved, this, &ExtensionGroupsPage::Save);
    connect(&groups_, &ButtonedList::SelectionMoved, this, &ExtensionGroupsPage::ShowMembers);
    ShowMembers();
}

void ExtensionGroupsPage::AddButtons() {
    groups_.AddButton({"Add Group", "Click to add a group"}, [this] { Open(Added::Group); });
    groups_.AddButton({.caption = "Delete Group", .actsOn = ActsOn::Record}, [this] { DeleteGroup(); });
    addMember_ =
        &members_.AddButton({"Add Member", "Click to add a group member"}, [this] { Open(Added::Member); });
    members_.AddButton({.caption = "Delete Member", .actsOn = ActsOn::Record}, [this] { DeleteMember(); });
}

void ExtensionGroupsPage::Load() {
    groups_.Set(LoadExtensionGroups(Program().session));
}

/// Groups are filed by their line in the list, which counts from 1.
std::int64_t ExtensionGroupsPage::SelectedLine() const {
    return groups_.View().SelectedRow() + 1;
}

void ExtensionGroupsPage::ShowMembers() {
    const bool isSelected = groups_.HasSelection();
    members_.Set(isSelected ? LoadGroupMembers(Program().session, SelectedLine())
                            : std::vector<std::string>{});
    addMember_->setEnabled(isSelected);
}

void ExtensionGroupsPage::Open(Added added) {
    const bool isGroup = added == Added::Group;
    added_ = added;
    entry_->clear();
    entryLabel_->setText(isGroup ? "Group Name:" : "Extension Number:");
    entry_->setToolTip(isGroup ? "" : "Enter an extension number");
    panel_->Open(isGroup ? "Add Group" : "Add Extension");
}

void ExtensionGroupsPage::Save() {
    const std::string text = entry_->text().toStdString();
    if (added_ == Added::Group) {
        AddExtensionGroup(Program().session, text);
        Load();
    } else {
        AddGroupMember(Program().session, SelectedLine(), text);
        ShowMembers();
    }
    panel_->hide();
}

void ExtensionGroupsPage::DeleteGroup() {
    if (!Confirms({"Delete Group", "Are you sure you wish to delete this group?", MessageIcon::None})) return;
    DeleteExtensionGroup(Program().session, *groups_.Selected(), SelectedLine());
    groups_.RemoveSelected();
}

void ExtensionGroupsPage::DeleteMember() {
    const Message question{"Delete Extension", "Are you sure you wish to delete this extension?",
                           MessageIcon::None};
    if (!Confirms(question)) return;
    DeleteGroupMember(Program().session, *members_.Selected());
    members_.RemoveSelected();
}

}  // namespace tallix
