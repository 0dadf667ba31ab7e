#include "windows/reporting/report_output_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <system_error>

#include "reporting/report_run.h"
#include "session/access_log.h"
#include "session/access_rights.h"
#include "settings/page_setup.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"

namespace tallix {
namespace {

constexpr int kWidth = 120 * toolkit::kGrid;
constexpr int kHeight = 90 * toolkit::kGrid;
constexpr int kWaitingWidth = 44 * toolkit::kGrid;
constexpr std::chrono::milliseconds kBusyInterval{100};
constexpr char kDocumentName[] = "rpt.pdf";

void Delete(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
}

}  // namespace

ReportOutputWindow::ReportOutputWindow(toolkit::Forms& forms, Application& application,
                                       toolkit::Printers& printers)
    : Form(forms, "Tallix Reports Tool - Report Output"),
      application_(application),
      browser_(new toolkit::BrowserControl(application.settings, printers, this)),
      waitingText_(new QLabel("Your report is being displayed", this)),
      waiting_(WaitingFrame()),
      print_(Button("Print Report", "Click here to print this report")),
      exportAsPdf_(Button("Export As PDF", "")),
      close_(Button("Close", "Click here to close")) {
    resize(kWidth, kHeight);
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(0, 0, 0, toolkit::kSpacing * 2);
    rows->setVerticalSpacing(toolkit::kSpacing * 2);
    rows->setRowStretch(0, 1);
    rows->addWidget(browser_, 0, 0);
    rows->addWidget(waiting_, 0, 0, Qt::AlignCenter);
    rows->addLayout(ButtonRow(), 1, 0);
    connect(browser_, &toolkit::BrowserControl::NavigateError, this, &ReportOutputWindow::ShowLoadFailure);
    connect(print_, &QPushButton::clicked, this, &ReportOutputWindow::PrintReport);
    connect(exportAsPdf_, &QPushButton::clicked, this, &ReportOutputWindow::Unload);
    connect(close_, &QPushButton::clicked, this, &ReportOutputWindow::Unload);
    connect(&busyTimer_, &QTimer::timeout, this, &ReportOutputWindow::LookWhetherBusy);
    busyTimer_.setInterval(kBusyInterval);
    new toolkit::DialogKeys(*this, nullptr, close_);
    close_->setShortcut(Qt::Key_Escape);  // the browser keeps the keys that it gets
}

QFrame* ReportOutputWindow::WaitingFrame() {
    auto* frame = new QFrame(this);
    frame->setObjectName("WaitingFrame");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setFixedWidth(kWaitingWidth);
    auto* heading = new QLabel("Please Wait...", frame);
    toolkit::MakeSubheading(*heading);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(toolkit::kMargin, toolkit::kMargin, toolkit::kMargin, toolkit::kMargin);
    rows->setSpacing(toolkit::kSpacing);
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
    row->setContentsMargins(toolkit::kMargin, 0, toolkit::kMargin, 0);
    row->setSpacing(toolkit::kSpacing);
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
    toolkit::ShowMainMenu(OtherForms(), application_.session);
    Delete(PageFile(application_));
}

void ReportOutputWindow::LookWhetherBusy() {
    if (browser_->Busy()) return;
    waiting_->hide();
    busyTimer_.stop();
}

// The frame stays, to say why the window is empty.
void ReportOutputWindow::ShowLoadFailure() {
    busyTimer_.stop();
    waitingText_->setText("Report Failed to Load!");
    waiting_->show();
    waiting_->raise();
}

void ReportOutputWindow::Print(toolkit::PrintOption option) {
    const ReportPageSetup setup(application_.settings);
    browser_->ExecWB(toolkit::BrowserCommand::Print, option);
}

// The row is written whether or not the person went through with it.
void ReportOutputWindow::PrintReport() {
    Print(toolkit::PrintOption::AskUser);
    LogOnItsOwn(application_.session, application_.clock, "Report Printed");
}

}  // namespace tallix
