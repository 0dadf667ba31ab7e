#include "toolkit/browser_control.h"

#include "settings/page_setup.h"
#include "toolkit/print_job.h"

namespace tallix::toolkit {

// A visible page is laid out again and again while it loads, which takes several times as
// long as everything else. It is shown when it has been loaded.
BrowserControl::BrowserControl(const SettingsStore& settings, Printers& printers, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      printers_(printers),
      page_(std::make_shared<LocalPage>()),
      view_(new QWebEngineView(this)) {
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(view_);
    view_->setPage(&page_->Page());
    view_->setContextMenuPolicy(Qt::NoContextMenu);
    view_->hide();
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    connect(page_.get(), &LocalPage::Loaded, this, &BrowserControl::ShowPage);
    connect(page_.get(), &LocalPage::Failed, this, &BrowserControl::NavigateError);
}

// A print job may still own the page.
BrowserControl::~BrowserControl() {
    view_->setPage(nullptr);
}

void BrowserControl::Navigate(const std::filesystem::path& file) {
    view_->hide();
    page_->Load(file);
}

void BrowserControl::ShowPage() {
    view_->show();
}

void BrowserControl::ExecWB(BrowserCommand, PrintOption option) {
    const PageSetup setup = ReadPageSetup(settings_);
    PrintTicket ticket{.printer = printers_.Current()};
    if (option == PrintOption::AskUser) {
        const std::optional<PrintTicket> chosen = printers_.Ask(this);
        if (!chosen) return;
        ticket = *chosen;
    }
    PrintJob::Start(page_, setup, ticket);
}

}  // namespace tallix::toolkit
