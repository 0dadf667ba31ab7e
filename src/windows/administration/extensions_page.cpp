#include "windows/administration/extensions_page.h"

#include <algorithm>

#include "session/access_rights.h"
#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

enum ListCell : int { kNumber, kName };

constexpr char kGetQuestion[] =
    "Tallix will now search all your call history records to determine extension numbers in use, this "
    "process may take some time. It will also clear all current extensions listed below.\r\n"
    "Do you wish to continue?";

toolkit::ListRow RowOf(const Extension& extension) {
    return {extension.number, extension.name};
}

}  // namespace

ExtensionsPage::ExtensionsPage(Application& application, QWidget* parent)
    : OptionsPage(parent),
      application_(application),
      list_(new toolkit::ListView({{"Extension Number", 2 * toolkit::kPlainColumnWidth}, {"Name"}})),
      getFromData_(ActionButton(this, "Get From Data", "Click to get extensions from call data",
                                &ExtensionsPage::GetFromData)),
      add_(ActionButton(this, "Add", "Click to add an extension", &ExtensionsPage::OpenAdd)),
      edit_(ActionButton(this, "Edit", "", &ExtensionsPage::OpenEdit)),
      delete_(ActionButton(this, "Delete", "", &ExtensionsPage::Delete)),
      number_(new QLineEdit),
      name_(new QLineEdit) {
    ArrangePage(*this,
                {NamedList("Extensions Data", *list_), ListButtons({getFromData_}, {add_, edit_, delete_})});
    PressOnActivation(*list_, *edit_);
    panel_ = new toolkit::EntryPanel(*this);
    panel_->AddInput("Number:", number_);
    panel_->AddInput("Name:", name_);
    connect(panel_, &toolkit::EntryPanel::Saved, this, &ExtensionsPage::Save);
}

void ExtensionsPage::Load() {
    std::vector<toolkit::ListRow> rows;
    for (const Extension& extension : LoadExtensions(application_.session)) {
        rows.push_back(RowOf(extension));
    }
    list_->Rows().Set(std::move(rows));
    changed_ = false;
}

void ExtensionsPage::ApplyRights(std::string_view access) {
    getFromData_->setVisible(Allows(access, AccessRight::GetFromData));
    add_->setVisible(Allows(access, AccessRight::AddExtension));
    edit_->setVisible(Allows(access, AccessRight::EditExtension));
    delete_->setVisible(Allows(access, AccessRight::DeleteExtension));
}

bool ExtensionsPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::Extensions);
}

std::vector<Extension> ExtensionsPage::Extensions() const {
    std::vector<Extension> extensions;
    for (const toolkit::ListRow& row : list_->Rows().All()) {
        extensions.push_back({row.at(kNumber), row.at(kName)});
    }
    return extensions;
}

// The question speaks of clearing the list, and yet what is listed stays, with its names.
void ExtensionsPage::GetFromData() {
    toolkit::WaitPanel wait(*this, "Please Wait...", "Building Extension List");
    toolkit::ProgressLine& calls = wait.AddLine(application_.events, "Processing Record %1 Of %2");
    wait.Show();
    const Answer answer = application_.prompts.Show(
        {"Get Extensions", kGetQuestion, MessageIcon::Information, MessageButtons::YesNo});
    if (answer != Answer::Yes) return;
    for (const Extension& extension : FindNewExtensions(application_, Extensions(), calls)) {
        list_->Rows().Append(RowOf(extension));
    }
    changed_ = true;
}

void ExtensionsPage::OpenAdd() {
    number_->clear();
    name_->clear();
    number_->setEnabled(true);
    panel_->Open("Add Extension");
}

void ExtensionsPage::OpenEdit() {
    const int row = list_->SelectedRow();
    if (row < 0) return;
    number_->setText(list_->Rows().Text(row, kNumber));
    name_->setText(list_->Rows().Text(row, kName));
    number_->setEnabled(false);
    panel_->Open("Edit Extension");
}

void ExtensionsPage::Delete() {
    if (const int row = list_->SelectedRow(); row >= 0) list_->Rows().Remove(row);
}

void ExtensionsPage::Save() {
    if (number_->isEnabled()) return AddLine();
    if (const int row = list_->SelectedRow(); row >= 0) list_->Rows().SetText(row, kName, name_->text());
    panel_->hide();
}

// The panel stays for the next one. A number that is listed already is not added, without a
// word.
void ExtensionsPage::AddLine() {
    const Extension extension{number_->text().toStdString(), name_->text().toStdString()};
    if (!IsListed(extension.number)) list_->Rows().Append(RowOf(extension));
    number_->clear();
    name_->clear();
    number_->setFocus();
}

bool ExtensionsPage::IsListed(const std::string& number) const {
    return std::ranges::any_of(list_->Rows().All(),
                               [&](const toolkit::ListRow& row) { return row.at(kNumber) == number; });
}

}  // namespace tallix
