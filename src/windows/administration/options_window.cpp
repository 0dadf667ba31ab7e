#include "windows/administration/options_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <type_traits>

#include "session/access_rights.h"
#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/forms.h"
#include "toolkit/held_window.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"
#include "windows/administration/accounts_page.h"
#include "windows/administration/address_book_page.h"
#include "windows/administration/email_page.h"
#include "windows/administration/extension_groups_page.h"
#include "windows/administration/folders_page.h"
#include "windows/administration/language_page.h"
#include "windows/administration/network_page.h"
#include "windows/administration/report_design_page.h"
#include "windows/administration/serial_page.h"
#include "windows/administration/site_summary_page.h"
#include "windows/administration/system_page.h"
#include "windows/administration/user_groups_page.h"

namespace tallix {
namespace {

constexpr int kListWidth = 24 * toolkit::kGrid;
constexpr QSize kWindowSize{120 * toolkit::kGrid, 80 * toolkit::kGrid};
constexpr int kPage = Qt::UserRole;  ///< an entry's place in the stack; none for a group

bool IsGroup(const QListWidgetItem& entry) {
    return !entry.data(kPage).isValid();
}

}  // namespace

OptionsWindow::OptionsWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Options"),
      application_(application),
      entries_(new QListWidget),
      title_(new QLabel),
      stack_(new QStackedWidget),
      save_(new QPushButton("Save and Exit")),
      exit_(new QPushButton("Exit Without Saving")) {
    entries_->setFixedWidth(kListWidth);
    entries_->setAccessibleName("Pages");
    entries_->setSpacing(toolkit::kGrid / 4);
    entries_->ensurePolished();  // entries that are chosen before they show are measured with the right style
    MakePages();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(3 * toolkit::kSpacing);
    columns->addWidget(entries_);
    columns->addLayout(PageColumn(), 1);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(2 * toolkit::kSpacing);
    rows->addLayout(columns, 1);
    auto* line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);  // above it are the buttons of the page
    rows->addWidget(line);
    rows->addLayout(ButtonRow());
    connect(entries_, &QListWidget::currentItemChanged, this, &OptionsWindow::ShowPage);
    new toolkit::DialogKeys(*this, nullptr, exit_);
    resize(kWindowSize);
}

QLayout* OptionsWindow::PageColumn() {
    toolkit::MakeSubheading(*title_);
    auto* column = new QVBoxLayout;
    column->setSpacing(2 * toolkit::kSpacing);
    column->addWidget(title_);
    column->addWidget(stack_, 1);
    return column;
}

QLayout* OptionsWindow::ButtonRow() {
    save_->setToolTip("Close and save changes");
    exit_->setToolTip("Close without saving changes");
    connect(save_, &QPushButton::clicked, this, &OptionsWindow::SaveAndExit);
    connect(exit_, &QPushButton::clicked, this, &OptionsWindow::close);
    return toolkit::ButtonRow({}, {save_, exit_});
}

// The side list is ordered by subject. The order of loading is that of `lists_`.
void OptionsWindow::MakePages() {
    AddGroup("Organisation");
    auto* sites = AddPage<SiteSummaryPage>("Sites");
    extensions_ = AddPage<ExtensionsPage>("Extensions");
    auto* groups = AddPage<ExtensionGroupsPage>("Extension Groups");
    auto* addresses = AddPage<AddressBookPage>("Address Book");
    AddGroup("People");
    auto* userGroups = AddPage<UserGroupsPage>("User Groups");
    auto* accounts = AddPage<AccountsPage>("User Accounts");
    AddGroup("Call collection");
    AddPage<SerialPage>("Serial Port");
    AddPage<NetworkPage>("Network");
    AddGroup("Reports");
    AddPage<ReportDesignPage>("Report Design");
    AddPage<FoldersPage>("Folders");
    AddGroup("System");
    AddPage<SystemPage>("System Settings");
    AddPage<LanguagePage>("Language and Currency");
    AddPage<EmailPage>("Email");
    tools_ = AddPage<ToolsPage>("Tools");
    lists_ = {sites, extensions_, groups, addresses, userGroups, accounts};
    connect(sites, &SiteSummaryPage::WindowWanted, this, &OptionsWindow::Open);
    connect(tools_, &ToolsPage::WindowWanted, this, &OptionsWindow::Open);
}

void OptionsWindow::AddGroup(const QString& title) {
    auto* entry = new QListWidgetItem(title, entries_);
    entry->setFlags(Qt::NoItemFlags);
    QFont bold = entries_->font();
    bold.setBold(true);
    entry->setFont(bold);
    entry->setForeground(palette().shadow());
}

template <typename Page>
Page* OptionsWindow::AddPage(const QString& title) {
    auto* page = new Page(application_, stack_);
    auto* entry = new QListWidgetItem(title, entries_);
    entry->setData(kPage, stack_->addWidget(page));
    if constexpr (std::is_base_of_v<SettingsPage, Page>) settings_.push_back(page);
    return page;
}

void OptionsWindow::ShowPage(const QListWidgetItem* entry) {
    if (entry == nullptr || IsGroup(*entry)) return;
    title_->setText(entry->text());
    stack_->setCurrentIndex(entry->data(kPage).toInt());
}

void OptionsWindow::OnLoad() {
    for (OptionsPage* page : lists_) page->Load();
    const OptionsValues values = LoadOptions(application_);
    for (SettingsPage* page : settings_) page->ShowValues(values);
    ApplyRights();
    ShowFirstPage();
}

void OptionsWindow::ApplyRights() {
    const AccessRights& access = application_.session.CurrentAccess;
    for (int row = 0; row < entries_->count(); ++row) {
        QListWidgetItem& entry = *entries_->item(row);
        if (IsGroup(entry)) continue;
        auto* page = static_cast<OptionsPage*>(stack_->widget(entry.data(kPage).toInt()));
        page->ApplyRights(access);
        entry.setHidden(!page->IsGranted(access));
    }
    HideEmptyGroups();
    save_->setEnabled(Allows(access, AccessRight::SaveAndExit));
}

// From the bottom up: a group shows when an entry between it and the next one does.
void OptionsWindow::HideEmptyGroups() {
    bool hasEntries = false;
    for (int row = entries_->count() - 1; row >= 0; --row) {
        QListWidgetItem& entry = *entries_->item(row);
        if (!IsGroup(entry)) {
            hasEntries = hasEntries || !entry.isHidden();
            continue;
        }
        entry.setHidden(!hasEntries);
        hasEntries = false;
    }
}

void OptionsWindow::ShowFirstPage() {
    for (int row = 0; row < entries_->count(); ++row) {
        if (IsGroup(*entries_->item(row)) || entries_->item(row)->isHidden()) continue;
        entries_->setCurrentRow(row);
        return;
    }
}

void OptionsWindow::Open(const QString& form) {
    OtherForms().Show(form);
    if (OtherForms().Find(form) != nullptr) hide();
}

OptionsOnScreen OptionsWindow::OnScreen() const {
    OptionsOnScreen screen;
    for (const SettingsPage* page : settings_) page->TakeValues(screen.values);
    screen.extensions = extensions_->Extensions();
    screen.automaticBackup = tools_->BackupChoice();
    return screen;
}

// The save serves waiting events: a second click, or closing the window, must not start
// anything meanwhile.
void OptionsWindow::SaveAndExit() {
    const toolkit::HeldWindow held(*this);
    SaveOptions(application_, OnScreen());
    extensions_->ClearChanged();
    Unload();
}

bool OptionsWindow::MayBeLeft() {
    if (!extensions_->Changed()) return true;
    const Answer answer = application_.prompts.Show(
        {"Settings Changed",
         "Any changes that you have made will be discarded. Are you sure you want to exit?",
         MessageIcon::Question, MessageButtons::YesNo});
    return answer == Answer::Yes;
}

void OptionsWindow::closeEvent(QCloseEvent* event) {
    if (MayBeLeft()) {
        Form::closeEvent(event);
    } else {
        event->ignore();
    }
}

void OptionsWindow::OnUnload() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
}

}  // namespace tallix
