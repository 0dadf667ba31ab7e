#include "windows/administration/address_book_page.h"

#include <algorithm>

#include "session/access_rights.h"
#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

enum ListCell : int { kName, kNumber };

constexpr char kAddTitle[] = "Add Number";
constexpr char kDeleteTitle[] = "Delete Number";
constexpr char kDeleteQuestion[] = "Are you sure you wish to delete ";
constexpr char kInUse[] = "Number is already in use! Please delete it before trying to add a new value";

const FileQuestion kImportFile = {"Import Address Book", "Comma Seperated Values", "*.csv"};

toolkit::ListRow CellsOf(const KnownNumber& entry) {
    return {entry.name, entry.number};
}

}  // namespace

AddressBookPage::AddressBookPage(Application& application, QWidget* parent)
    : OptionsPage(parent),
      application_(application),
      list_(new toolkit::ListView({{"Name", 3 * toolkit::kPlainColumnWidth}, {"Number"}})),
      name_(new QLineEdit),
      number_(new QLineEdit) {
    list_->setToolTip("Click to select number");
    auto* import =
        ActionButton(this, "Import CSV", "Click to import CSV of numbers", &AddressBookPage::Import);
    auto* add = ActionButton(this, "Add Number", "Click to add a number", &AddressBookPage::OpenAdd);
    auto* edit =
        ActionButton(this, "Edit Number", "Click to edit selected number", &AddressBookPage::OpenEdit);
    auto* remove =
        ActionButton(this, "Delete Number", "Click to delete selected number", &AddressBookPage::Delete);
    ArrangePage(*this, {NamedList("Current Numbers", *list_), ListButtons({import}, {add, edit, remove})});
    PressOnActivation(*list_, *edit);
    name_->setToolTip("Enter a name");
    number_->setToolTip("Enter a number");
    panel_ = new toolkit::EntryPanel(*this);
    panel_->AddInput("Name: ", name_);
    panel_->AddInput("Number: ", number_);
    connect(panel_, &toolkit::EntryPanel::Saved, this, &AddressBookPage::Save);
}

void AddressBookPage::Load() {
    std::vector<toolkit::ListRow> rows;
    for (const KnownNumber& entry : LoadAddressBook(application_.session)) rows.push_back(CellsOf(entry));
    list_->Rows().Set(std::move(rows));
}

bool AddressBookPage::IsGranted(std::string_view access) const {
    return Allows(access, AccessRight::AddressBook);
}

void AddressBookPage::OpenAdd() {
    edits_ = false;
    name_->clear();
    number_->clear();
    panel_->Open(kAddTitle);
}

void AddressBookPage::OpenEdit() {
    const int row = list_->SelectedRow();
    if (row < 0) return;
    edits_ = true;
    name_->setText(list_->Rows().Text(row, kName));
    number_->setText(list_->Rows().Text(row, kNumber));
    panel_->Open("Edit Number");
}

void AddressBookPage::Save() {
    const KnownNumber entry{name_->text().toStdString(), number_->text().toStdString()};
    edits_ ? Rename(entry) : Add(entry);
}

void AddressBookPage::Add(const KnownNumber& entry) {
    if (!AddKnownNumber(application_.session, entry)) {
        application_.prompts.Show({kAddTitle, kInUse, MessageIcon::Critical});
        return;
    }
    list_->Rows().Append(CellsOf(entry));
    panel_->hide();
}

// The number tells which entry gets the name; one that was altered tells another, or none.
void AddressBookPage::Rename(const KnownNumber& entry) {
    const bool isStored = RenameKnownNumber(application_.session, entry);
    const int row = RowOf(entry.number);
    if (isStored && row >= 0) list_->Rows().SetText(row, kName, QString::fromStdString(entry.name));
    panel_->hide();
}

/// The first of several; -1 where no line has the number.
int AddressBookPage::RowOf(const std::string& number) const {
    const std::vector<toolkit::ListRow>& rows = list_->Rows().All();
    const auto found =
        std::ranges::find_if(rows, [&](const toolkit::ListRow& row) { return row.at(kNumber) == number; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void AddressBookPage::Delete() {
    const int row = list_->SelectedRow();
    if (row < 0) return;
    const std::string number = list_->Rows().Text(row, kNumber).toStdString();
    const Message question{kDeleteTitle, kDeleteQuestion + number + "?", MessageIcon::None,
                           MessageButtons::YesNo};
    if (application_.prompts.Show(question) != Answer::Yes) return;
    DeleteKnownNumber(application_.session, number);
    list_->Rows().Remove(row);
}

void AddressBookPage::Import() {
    const auto file = application_.prompts.AskOpenFile(kImportFile);
    if (!file) return;
    toolkit::WorkUnderPanel(*this, application_.events, "Please Wait...", "Import CSV",
                            [&] { ImportAddressBook(application_.session, *file); });
    Load();
    application_.prompts.Show({"Tallix Reports", "Import complete!", MessageIcon::Information});
}

}  // namespace tallix
