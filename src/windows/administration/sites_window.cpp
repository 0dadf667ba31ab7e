#include "windows/administration/sites_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "administration/mappings.h"
#include "toolkit/button_row.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/form_names.h"
#include "toolkit/forms.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kWidth = 120 * toolkit::kGrid;
constexpr int kHeight = 64 * toolkit::kGrid;

std::vector<toolkit::Column<SiteRecord>> Columns() {
    return {{"Site", &SiteRecord::id, 700},
            {"Name", &SiteRecord::name, 3000},
            {"Email", &SiteRecord::email, 2600},
            {"Address 1", &SiteRecord::address1, 2000},
            {"Address 2", &SiteRecord::address2, 2000},
            {"Address 3", &SiteRecord::address3},
            {"Address 4", &SiteRecord::address4},
            {"Postcode", &SiteRecord::postcode, 1100},
            {"Area", &SiteRecord::area, 900},
            {"Switch IP", &SiteRecord::switchIp},
            {"Switch Port", &SiteRecord::switchPort, 1200},
            {"Switch Map", &SiteRecord::switchMapping, 2300},
            {"Code", &SiteRecord::systemCode, 700},
            {"3PTDatabase", &SiteRecord::thirdPartyDatabase},
            {"3PTUser", &SiteRecord::thirdPartyUser},
            {"3PTPass", &SiteRecord::thirdPartyPassword},
            {"3PTName", &SiteRecord::thirdPartyName}};
}

}  // namespace

SitesWindow::SitesWindow(toolkit::Forms& forms, Application& application)
    : Form(forms, "Tallix Reports Tool - Site Configuration"),
      application_(application),
      sites_(new toolkit::RecordModel<SiteRecord>(Columns(), this)),
      list_(new toolkit::ListView(*sites_, this)),
      add_(new QPushButton("Add Site", this)),
      edit_(new QPushButton("Edit Site", this)),
      delete_(new QPushButton("Delete Site", this)),
      save_(new QPushButton("Save and Exit", this)),
      exit_(new QPushButton("Exit Without Saving", this)),
      entry_(new SiteEntryPanel(*this)),
      restart_(
          new toolkit::ProgressPanel(*this, "Please Wait", "The Collector Service is being restarted.")) {
    list_->setAccessibleName("Sites");
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing * 2);
    rows->addWidget(list_, 1);
    rows->addLayout(ButtonRow());
    ConnectButtons();
    new toolkit::DialogKeys(*this, nullptr, exit_);
    resize(kWidth, kHeight);
}

QLayout* SitesWindow::ButtonRow() {
    save_->setToolTip("Close and save changes");
    exit_->setToolTip("Close without saving changes");
    return toolkit::ButtonRow({add_, edit_, delete_}, {save_, exit_});
}

void SitesWindow::ConnectButtons() {
    connect(list_, &toolkit::ListView::SelectionMoved, this, &SitesWindow::EnableButtons);
    connect(list_, &toolkit::ListView::activated, this, &SitesWindow::EditSelected);
    connect(add_, &QPushButton::clicked, this, [this] { OpenEntry(SiteEntry::Added, {}); });
    connect(edit_, &QPushButton::clicked, this, &SitesWindow::EditSelected);
    connect(delete_, &QPushButton::clicked, this, &SitesWindow::DeleteSelected);
    connect(save_, &QPushButton::clicked, this, &SitesWindow::SaveAndExit);
    connect(exit_, &QPushButton::clicked, this, &SitesWindow::ExitWithoutSaving);
    connect(entry_, &toolkit::EntryPanel::Saved, this, &SitesWindow::SaveSite);
    connect(entry_, &QDialog::rejected, this, &SitesWindow::CloseEntry);
}

void SitesWindow::OnLoad() {
    ShowSites();
}

void SitesWindow::ShowSites(int selectedRow) {
    sites_->Set(ReadSites(application_.session));
    if (selectedRow >= 0) list_->setCurrentIndex(sites_->index(selectedRow, 0));
    EnableButtons();
}

/// Null without a selected row, and for a row without text.
const SiteRecord* SitesWindow::Selected() const {
    const int row = list_->SelectedRow();
    return row < 0 || sites_->At(row).id.empty() ? nullptr : &sites_->At(row);
}

void SitesWindow::EnableButtons() {
    const bool free = entry_->isHidden() && restart_->isHidden();
    const bool selected = free && Selected() != nullptr;
    for (QPushButton* button : {add_, save_, exit_}) button->setEnabled(free);
    for (QPushButton* button : {edit_, delete_}) button->setEnabled(selected);
    list_->setEnabled(free);
}

void SitesWindow::OpenEntry(SiteEntry entry, const SiteRecord& site) {
    entryKind_ = entry;
    entry_->OpenFor(site, ReadMappingNames(application_.session));
    EnableButtons();
}

void SitesWindow::CloseEntry() {
    entry_->hide();
    EnableButtons();
    list_->setFocus();
}

void SitesWindow::SaveSite() {
    const SiteRecord site = entry_->Entered();
    if (!MaySaveSite(application_.prompts, site, entryKind_, sites_->All().size())) return;
    const bool added = entryKind_ == SiteEntry::Added;
    if (added)
        AddSite(application_.session, site, sites_->All().size());
    else
        UpdateSite(application_.session, site);
    const int row = added ? -1 : list_->SelectedRow();
    entry_->hide();
    ShowSites(row);
    list_->setFocus();
}

void SitesWindow::EditSelected() {
    if (const SiteRecord* site = Selected()) OpenEntry(SiteEntry::Edited, *site);
}

void SitesWindow::DeleteSelected() {
    DeleteSite(application_, *Selected());
    ShowSites();
}

void SitesWindow::SaveAndExit() {
    if (WantsSitesAppliedNow(application_.prompts)) {
        restarting_ = true;
        restart_->show();
        EnableButtons();
        RestartCollector(application_);
        restarting_ = false;
        restart_->hide();
    }
    ReportSitesSaved(application_);
    Unload();
}

void SitesWindow::ExitWithoutSaving() {
    if (WantsToLeaveSites(application_.prompts)) Unload();
}

void SitesWindow::closeEvent(QCloseEvent* event) {
    if (restarting_) return event->ignore();
    Form::closeEvent(event);
}

void SitesWindow::OnUnload() {
    OtherForms().Show(kOptionsForm);
}

}  // namespace tallix
