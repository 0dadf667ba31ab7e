#include "reporting/report_output_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <system_error>

#include "foundation/access_log.h"
#include "foundation/access_rights.h"
#include "foundation/page_setup.h"
#include "reporting/report_run.h"
#include "ui/dialog_keys.h"
#include "ui/main_menu_form.h"
#include "ui/style.h"

namespace tallix {
namespace {

constexpr int kWidth = 120 * ui::kGrid;
constexpr int kHeight = 90 * ui::kGrid;
constexpr int kWaitingWidth = 44 * ui::kGrid;
constexpr std::chrono::milliseconds kBusyInterval{100};
constexpr char kDocumentName[] = "rpt.pdf";

void Delete(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

}  // namespace

ReportOutputWindow::ReportOutputWindow(ui::Forms& forms, Application& application, ui::Printers& printers)
    : Form(forms, "Tallix Reports Tool - Report Output"),
      application_(application),
      browser_(new ui::BrowserControl(application.settings, printers, this)),
      waitingText_(new QLabel("Your report is being displayed", this)),
      waiting_(WaitingFrame()),
      print_(Button("Print Report", "Click here to print this report")),
      exportAsPdf_(Button("Export As PDF", "")),
      close_(Button("Close", "Click here to close")) {
    resize(kWidth, kHeight);
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(0, 0, 0, ui::kSpacing * 2);
    rows->setVerticalSpacing(ui::kSpacing * 2);
    rows->setRowStretch(0, 1);
    rows->addWidget(browser_, 0, 0);
    rows->addWidget(waiting_, 0, 0, Qt::AlignCenter);
    rows->addLayout(ButtonRow(), 1, 0);
    connect(browser_, &ui::BrowserControl::NavigateError, this, &ReportOutputWindow::ShowLoadFailure);
    connect(print_, &QPushButton::clicked, this, &ReportOutputWindow::PrintReport);
    connect(exportAsPdf_, &QPushButton::clicked, this, &ReportOutputWindow::Unload);
    connect(close_, &QPushButton::clicked, this, &ReportOutputWindow::Unload);
    connect(&busyTimer_, &QTimer::timeout, this, &ReportOutputWindow::LookWhetherBusy);
    busyTimer_.setInterval(kBusyInterval);
    new ui::DialogKeys(*this, nullptr, close_);
    close_->setShortcut(Qt::Key_Escape);  // the browser gives no key back that it was given
}

QFrame* ReportOutputWindow::WaitingFrame() {
    auto* frame = new QFrame(this);
    frame->setObjectName("WaitingFrame");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setFixedWidth(kWaitingWidth);
    auto* heading = new QLabel("Please Wait...", frame);
    ui::MakeSubheading(*heading);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(ui::kMargin, ui::kMargin, ui::kMargin, ui::kMargin);
    rows->setSpacing(ui::kSpacing);
    rows->addWidget(heading, 0, Qt::AlignHCenter);
    rows->addWidget(waitingText_, 0, Qt::AlignHCenter);
    return frame;
}

QPushButton* ReportOutputWindow::Button(const QString& caption, const QString& tip) {
    auto* button = new QPushButton(caption, this);
    button->setToolTip(tip);
    return button;
}

// From right to left: Close, Print Report. Exporting was never offered.
QLayout* ReportOutputWindow::ButtonRow() {
    exportAsPdf_->setEnabled(false);
    exportAsPdf_->hide();
    auto* row = new QHBoxLayout;
    row->setContentsMargins(ui::kMargin, 0, ui::kMargin, 0);
    row->setSpacing(ui::kSpacing);
    row->addStretch();
    row->addWidget(exportAsPdf_);
    row->addWidget(print_);
    row->addWidget(close_);
    return row;
}

void ReportOutputWindow::OnLoad() {
    Delete(application_.tempFolder / kDocumentName);
    print_->setVisible(Allows(application_.session.CurrentAccess, AccessRight::PrintReport));
    Navigate();
}

void ReportOutputWindow::Navigate() {
    browser_->Navigate(PageFile(application_));
    busyTimer_.start();
}

void ReportOutputWindow::OnUnload() {
    busyTimer_.stop();
    ui::ShowMainMenu(OtherForms(), application_.session);
    Delete(PageFile(application_));
}

void ReportOutputWindow::LookWhetherBusy() {
    if (browser_->Busy()) return;
    waiting_->hide();
    busyTimer_.stop();
}

// The control is not busy any more either; the frame stays to tell why nothing is seen.
void ReportOutputWindow::ShowLoadFailure() {
    busyTimer_.stop();
    waitingText_->setText("Report Failed to Load!");
    waiting_->show();
    waiting_->raise();
}

void ReportOutputWindow::Print(ui::PrintOption option) {
    const ReportPageSetup setup(application_.settings);
    browser_->ExecWB(ui::BrowserCommand::Print, option);
}

// The row is written whether or not the person went through with it.
void ReportOutputWindow::PrintReport() {
    Print(ui::PrintOption::AskUser);
    LogOnItsOwn(application_.session, application_.clock, "Report Printed");
}

}  // namespace tallix
