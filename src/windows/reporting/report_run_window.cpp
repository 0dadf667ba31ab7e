#include "windows/reporting/report_run_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QLineEdit>

#include "reporting/external_applications.h"
#include "reporting/preset_request.h"
#include "reporting/report_run.h"
#include "toolkit/forms.h"
#include "toolkit/main_menu_form.h"
#include "toolkit/style.h"
#include "toolkit/text.h"
#include "windows/reporting/destinations_window.h"

namespace tallix {

std::string TextOf(const QComboBox& list) {
    return list.currentText().toStdString();
}

std::string TextOf(const QLineEdit& field) {
    return field.text().toStdString();
}

OutputFrame::OutputFrame()
    : QGroupBox("Output Report"),
      onScreen_(new QRadioButton("On Screen")),
      toPrinter_(new QRadioButton("To Printer")),
      inApplication_(new QRadioButton("In External Application")),
      printers_(new QComboBox),
      applications_(new QComboBox) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(toolkit::kSpacing * 2, toolkit::kSpacing * 2, toolkit::kSpacing * 2,
                             toolkit::kSpacing * 2);
    grid->setHorizontalSpacing(toolkit::kSpacing * 2);
    grid->setVerticalSpacing(toolkit::kSpacing);
    grid->addWidget(onScreen_, 0, 0);
    grid->addWidget(toPrinter_, 1, 0);
    grid->addWidget(printers_, 1, 1);
    grid->addWidget(inApplication_, 2, 0);
    grid->addWidget(applications_, 2, 1);
    grid->setColumnStretch(1, 1);
    printers_->setAccessibleName(toPrinter_->text());
    applications_->setAccessibleName(inApplication_->text());
    for (const QRadioButton* option : {onScreen_, toPrinter_, inApplication_}) {
        connect(option, &QRadioButton::toggled, this, &OutputFrame::EnableLists);
    }
    onScreen_->setChecked(true);
}

// No printer and no application is chosen before the person does it.
void OutputFrame::Fill(const toolkit::Printers& printers, const SettingsStore& settings) {
    printers_->addItems(toolkit::ToQStringList(printers.Names()));
    applications_->addItems(toolkit::ToQStringList(ExternalApplications(settings)));
    for (QComboBox* list : {printers_, applications_}) list->setCurrentIndex(-1);
}

DestinationChoice OutputFrame::Choice() const {
    DestinationChoice choice = {.printer = TextOf(*printers_), .application = TextOf(*applications_)};
    if (toPrinter_->isChecked()) choice.destination = Destination::ToPrinter;
    if (inApplication_->isChecked()) choice.destination = Destination::InExternalApplication;
    return choice;
}

void OutputFrame::Choose(Destination destination, const std::string& application) {
    QRadioButton* const options[] = {onScreen_, toPrinter_, inApplication_};
    options[static_cast<std::size_t>(destination)]->setChecked(true);
    applications_->setCurrentIndex(applications_->findText(QString::fromStdString(application)));
}

void OutputFrame::EnableLists() {
    printers_->setEnabled(toPrinter_->isChecked());
    applications_->setEnabled(inApplication_->isChecked());
}

ReportRunWindow::ReportRunWindow(toolkit::Forms& forms, const QString& caption, Application& application,
                                 toolkit::Printers& printers)
    : Form(forms, caption),
      application_(application),
      printers_(printers),
      content_(new QWidget(this)),
      output_(new OutputFrame),
      progress_(new toolkit::ProgressPanel(*this, "Please Wait", "Your selected report is being generated.")),
      records_(&progress_->AddLine(application.events, "Processing Record %1 Of %2")) {
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(content_);
}

void ReportRunWindow::OnUnload() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
}

void ReportRunWindow::closeEvent(QCloseEvent* event) {
    if (running_) return event->ignore();
    Form::closeEvent(event);
}

void ReportRunWindow::Run(const RunDescription& description, ReportFlags& flags,
                          const DestinationChoice& choice) {
    BeginRun();
    switch (ReportRun(application_, flags, *records_).Make(description)) {
        case RunOutcome::Refused:
            return Refuse(*RefusalOf(description));
        case RunOutcome::NoData:
            return TellNoData();
        case RunOutcome::Complete:
            return Deliver(choice);
    }
}

// The person may click and type while a run serves the events: nothing but the window's
// frame answers, and the run works on what was filled in before.
void ReportRunWindow::BeginRun() {
    running_ = true;
    content_->setEnabled(false);
    records_->Reset();
    progress_->show();
    application_.events.Serve();
}

void ReportRunWindow::EndRun() {
    running_ = false;
    progress_->hide();
    content_->setEnabled(true);
}

void ReportRunWindow::Refuse(const Message& refusal) {
    application_.prompts.Show(refusal);
    Unload();
}

void ReportRunWindow::TellNoData() {
    const Message message = NoDataMessage();
    Unload();
    application_.prompts.Show(message);
}

// With no printer of the chosen name the window stays, for another choice.
void ReportRunWindow::Deliver(const DestinationChoice& choice) {
    records_->ShowText("Transferring To Report Viewer...");
    toolkit::Forms& forms = OtherForms();
    const QString name = objectName();
    DeliverReport(forms, application_, printers_, choice, name.toUtf8().constData());
    if (forms.Find(name) == this) EndRun();
}

}  // namespace tallix
