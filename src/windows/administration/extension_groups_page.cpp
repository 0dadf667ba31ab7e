#include "windows/administration/extension_groups_page.h"

#include "administration/extension_groups.h"
#include "session/access_rights.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kValue = 0;  ///< the one column of both lists

void Fill(toolkit::ListView& list, const std::vector<std::string>& values) {
    std::vector<toolkit::ListRow> rows;
    rows.reserve(values.size());
    for (const std::string& value : values) rows.push_back({value});
    list.Rows().Set(std::move(rows));
}

std::string SelectedText(const toolkit::ListView& list) {
    return list.Rows().Text(list.SelectedRow(), kValue).toStdString();
}

/// Groups are filed by their line in the list, the first one being 1.
std::int64_t SelectedLine(const toolkit::ListView& groups) {
    return groups.SelectedRow() + 1;
}

}  // namespace

ExtensionGroupsPage::ExtensionGroupsPage(Application& application, QWidget* parent)
    : OptionsPage(parent),
      application_(application),
      groups_(new toolkit::ListView({{"Group Name"}})),
      members_(new toolkit::ListView({{"Extension"}})),
      entry_(new QLineEdit) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(toolkit::kMargin);
    columns->addLayout(GroupColumn(), 1);
    columns->addLayout(MemberColumn(), 1);
    ArrangePage(*this, {columns});
    panel_ = new toolkit::EntryPanel(*this);
    entryLabel_ = &panel_->AddInput("Group Name:", entry_);
    connect(panel_, &toolkit::EntryPanel::Saved, this, &ExtensionGroupsPage::Save);
    connect(groups_, &toolkit::ListView::SelectionMoved, this, &ExtensionGroupsPage::ShowMembers);
}

QLayout* ExtensionGroupsPage::GroupColumn() {
    QBoxLayout* column = NamedList("Add Group", *groups_);
    column->addLayout(ListButtons(
        {}, {ActionButton(this, "Add Group", "Click to add a group", &ExtensionGroupsPage::OpenGroup),
             ActionButton(this, "Delete Group", "", &ExtensionGroupsPage::DeleteGroup)}));
    return column;
}

QLayout* ExtensionGroupsPage::MemberColumn() {
    QBoxLayout* column = NamedList("Group Members", *members_);
    column->addLayout(ListButtons(
        {},
        {ActionButton(this, "Add Member", "Click to add a group member", &ExtensionGroupsPage::OpenMember),
         ActionButton(this, "Delete Member", "", &ExtensionGroupsPage::DeleteMember)}));
    return column;
}

void ExtensionGroupsPage::Load() {
    Fill(*groups_, LoadExtensionGroups(application_.session));
}

bool ExtensionGroupsPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::Groups);
}

void ExtensionGroupsPage::ShowMembers() {
    const bool isSelected = groups_->SelectedRow() >= 0;
    Fill(*members_, isSelected ? LoadGroupMembers(application_.session, SelectedLine(*groups_))
                               : std::vector<std::string>{});
}

void ExtensionGroupsPage::OpenGroup() {
    OpenPanel(false);
}

void ExtensionGroupsPage::OpenMember() {
    if (groups_->SelectedRow() >= 0) OpenPanel(true);
}

void ExtensionGroupsPage::OpenPanel(bool forMember) {
    entersMember_ = forMember;
    entry_->clear();
    entryLabel_->setText(forMember ? "Extension Number:" : "Group Name:");
    entry_->setToolTip(forMember ? "Enter an extension number" : "");
    panel_->Open(forMember ? "Add Extension" : "Add Group");
}

void ExtensionGroupsPage::Save() {
    const std::string text = entry_->text().toStdString();
    if (entersMember_) {
        AddGroupMember(application_.session, SelectedLine(*groups_), text);
        ShowMembers();
    } else {
        AddExtensionGroup(application_.session, text);
        Load();
    }
    panel_->hide();
}

// The list would select the next group by itself, and show its members.
void ExtensionGroupsPage::DeleteGroup() {
    const int row = groups_->SelectedRow();
    if (row < 0 || !Confirms("Delete Group", "Are you sure you wish to delete this group?")) return;
    DeleteExtensionGroup(application_.session, SelectedText(*groups_), SelectedLine(*groups_));
    groups_->setCurrentIndex({});
    groups_->Rows().Remove(row);
}

void ExtensionGroupsPage::DeleteMember() {
    const int row = members_->SelectedRow();
    if (row < 0 || !Confirms("Delete Extension", "Are you sure you wish to delete this extension?")) return;
    DeleteGroupMember(application_.session, SelectedText(*members_));
    members_->Rows().Remove(row);
}

bool ExtensionGroupsPage::Confirms(const std::string& title, const std::string& question) {
    const Message message{title, question, MessageIcon::None, MessageButtons::YesNo};
    return application_.prompts.Show(message) == Answer::Yes;
}

}  // namespace tallix
