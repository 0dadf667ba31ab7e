#include "windows/administration/extensions_page.h"

#include <algorithm>

#include "toolkit/wait_panel.h"

namespace tallix {
namespace {

constexpr char kGetQuestion[] =
    "Tallix will now search all your call history records to determine extension numbers in use, this "
    "process may take some time. It will also clear all current extensions listed below.\r\n"
    "Do you wish to continue?";

}  // namespace

ExtensionsPage::ExtensionsPage(Application& application, QWidget* parent)
    : ListPage(application, AccessRight::Extensions, parent),
      list_(*AddList<Extension>("Extensions Data",
                                {{"Extension Number", &Extension::number, 2 * toolkit::kPlainColumnWidth},
                                 {"Name", &Extension::name}})),
      panel_(new toolkit::EntryPanel(*this)),
      number_(new QLineEdit),
      name_(new QLineEdit) {
    AddButtons();
    Arrange({list_.Layout(Heading::Shown)});
    panel_->AddInput("Number:", number_);
    panel_->AddInput("Name:", name_);
    connect(panel_, &toolkit::EntryPanel::Saved, this, &ExtensionsPage::Save);
}

void ExtensionsPage::AddButtons() {
    list_.AddButton({"Get From Data", "Click to get extensions from call data", ActsOn::List, Side::Left,
                     AccessRight::GetFromData},
                    [this] { GetFromData(); });
    list_.AddButton(
        {.caption = "Add", .tip = "Click to add an extension", .right = AccessRight::AddExtension},
        [this] { OpenAdd(); });
    list_.PressOnActivation(
        list_.AddButton({.caption = "Edit", .actsOn = ActsOn::Record, .right = AccessRight::EditExtension},
                        [this] { OpenEdit(); }));
    list_.AddButton({.caption = "Delete", .actsOn = ActsOn::Record, .right = AccessRight::DeleteExtension},
                    [this] { list_.RemoveSelected(); });
}

void ExtensionsPage::Load() {
    list_.Set(LoadExtensions(Program().session));
    changed_ = false;
}

// The question mentions clearing the list, but what is listed stays, with its names.
void ExtensionsPage::GetFromData() {
    toolkit::WaitPanel wait(*this, "Please Wait...", "Building Extension List");
    toolkit::ProgressLine& calls = wait.AddLine(Program().events, "Processing Record %1 Of %2");
    wait.Show();
    if (!Confirms({"Get Extensions", kGetQuestion, MessageIcon::Information})) return;
    for (const Extension& extension : FindNewExtensions(Program(), Extensions(), calls)) {
        list_.Append(extension);
    }
    changed_ = true;
}

void ExtensionsPage::OpenAdd() {
    entry_ = Entry::New;
    number_->clear();
    name_->clear();
    number_->setEnabled(true);
    panel_->Open("Add Extension");
}

void ExtensionsPage::OpenEdit() {
    entry_ = Entry::Existing;
    number_->setText(QString::fromStdString(list_.Selected()->number));
    name_->setText(QString::fromStdString(list_.Selected()->name));
    number_->setEnabled(false);
    panel_->Open("Edit Extension");
}

void ExtensionsPage::Save() {
    const Extension extension{number_->text().toStdString(), name_->text().toStdString()};
    if (entry_ == Entry::New) return Add(extension);
    list_.ReplaceSelected(extension);
    panel_->hide();
}

// The panel stays open for the next one. A number that is listed already is ignored.
void ExtensionsPage::Add(const Extension& extension) {
    const bool isListed = std::ranges::count(list_.All(), extension.number, &Extension::number) > 0;
    if (!isListed) list_.Append(extension);
    number_->clear();
    name_->clear();
    number_->setFocus();
}

}  // namespace tallix
