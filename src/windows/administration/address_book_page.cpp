#include "windows/administration/address_book_page.h"

#include <algorithm>

#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

constexpr char kAddTitle[] = "Add Number";
constexpr char kDeleteTitle[] = "Delete Number";
constexpr char kDeleteQuestion[] = "Are you sure you wish to delete ";
constexpr char kInUse[] = "Number is already in use! Please delete it before trying to add a new value";

const FileQuestion kImportFile = {"Import Address Book", "Comma Seperated Values", "*.csv"};

}  // namespace

AddressBookPage::AddressBookPage(Application& application, QWidget* parent)
    : ListPage(application, AccessRight::AddressBook, parent),
      list_(*AddList<KnownNumber>(
          "Current Numbers",
          {{"Name", &KnownNumber::name, 3 * toolkit::kPlainColumnWidth}, {"Number", &KnownNumber::number}})),
      panel_(new toolkit::EntryPanel(*this)),
      name_(new QLineEdit),
      number_(new QLineEdit) {
    list_.View().setToolTip("Click to select number");
    AddButtons();
    Arrange({list_.Layout(Heading::Shown)});
    name_->setToolTip("Enter a name");
    number_->setToolTip("Enter a number");
    panel_->AddInput("Name: ", name_);
    panel_->AddInput("Number: ", number_);
    connect(panel_, &toolkit::EntryPanel::Saved, this, &AddressBookPage::Save);
}

void AddressBookPage::AddButtons() {
    list_.AddButton({.caption = "Import CSV", .tip = "Click to import CSV of numbers", .side = Side::Left},
                    [this] { Import(); });
    list_.AddButton({"Add Number", "Click to add a number"}, [this] { OpenAdd(); });
    list_.PressOnActivation(list_.AddButton({"Edit Number", "Click to edit selected number", ActsOn::Record},
                                            [this] { OpenEdit(); }));
    list_.AddButton({"Delete Number", "Click to delete selected number", ActsOn::Record},
                    [this] { Delete(); });
}

void AddressBookPage::Load() {
    list_.Set(LoadAddressBook(Program().session));
}

void AddressBookPage::OpenAdd() {
    entry_ = Entry::New;
    name_->clear();
    number_->clear();
    panel_->Open(kAddTitle);
}

void AddressBookPage::OpenEdit() {
    entry_ = Entry::Existing;
    name_->setText(QString::fromStdString(list_.Selected()->name));
    number_->setText(QString::fromStdString(list_.Selected()->number));
    panel_->Open("Edit Number");
}

void AddressBookPage::Save() {
    const KnownNumber entry{name_->text().toStdString(), number_->text().toStdString()};
    entry_ == Entry::New ? Add(entry) : Rename(entry);
}

void AddressBookPage::Add(const KnownNumber& entry) {
    if (!AddKnownNumber(Program().session, entry)) {
        Program().prompts.Show({kAddTitle, kInUse, MessageIcon::Critical});
        return;
    }
    list_.Append(entry);
    panel_->hide();
}

// The number decides which entry gets the name: a changed one renames another, or none.
void AddressBookPage::Rename(const KnownNumber& entry) {
    const bool isStored = RenameKnownNumber(Program().session, entry);
    const auto found = std::ranges::find(list_.All(), entry.number, &KnownNumber::number);
    if (isStored && found != list_.All().end()) {
        list_.Replace(static_cast<int>(found - list_.All().begin()), entry);
    }
    panel_->hide();
}

void AddressBookPage::Delete() {
    const std::string number = list_.Selected()->number;
    if (!Confirms({kDeleteTitle, kDeleteQuestion + number + "?", MessageIcon::None})) return;
    DeleteKnownNumber(Program().session, number);
    list_.RemoveSelected();
}

void AddressBookPage::Import() {
    const auto file = Program().prompts.AskOpenFile(kImportFile);
    if (!file) return;
    toolkit::RunWithPanel(*this, Program().events, "Please Wait...", "Import CSV",
                          [&] { ImportAddressBook(Program().session, *file); });
    Load();
    Program().prompts.Show({"Tallix Reports", "Import complete!", MessageIcon::Information});
}

}  // namespace tallix
