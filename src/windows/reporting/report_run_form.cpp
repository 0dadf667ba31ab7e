#include "windows/reporting/report_run_form.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "reporting/report_run.h"
#include "toolkit/forms.h"
#include "toolkit/main_menu_form.h"
#include "windows/reporting/report_delivery.h"

namespace tallix {

ReportRunForm::ReportRunForm(toolkit::Forms& forms, const QString& caption, Application& application,
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

void ReportRunForm::OnUnload() {
    toolkit::ShowMainMenu(OtherForms(), application_.session);
}

void ReportRunForm::closeEvent(QCloseEvent* event) {
    if (running_) return event->ignore();
    Form::closeEvent(event);
}

void ReportRunForm::Run(const RunDescription& description, const DestinationChoice& choice) {
    BeginRun();
    ReportRun run(application_, *records_);
    switch (run.Make(description)) {
        case RunOutcome::Refused:
            return Refuse(*run.Refusal());
        case RunOutcome::NoData:
            return ShowNoData();
        case RunOutcome::Complete:
            return Deliver(choice);
    }
}

// The person may click and type while a run serves the events: nothing but the window's
// frame answers, and the run works on what was filled in before.
void ReportRunForm::BeginRun() {
    running_ = true;
    content_->setEnabled(false);
    records_->Reset();
    progress_->show();
    application_.events.Serve();
}

void ReportRunForm::EndRun() {
    running_ = false;
    progress_->hide();
    content_->setEnabled(true);
}

void ReportRunForm::Refuse(const Message& refusal) {
    application_.prompts.Show(refusal);
    Unload();
}

void ReportRunForm::ShowNoData() {
    const Message message = NoDataMessage();
    Unload();
    application_.prompts.Show(message);
}

// With no printer of the chosen name the window stays, for another choice.
void ReportRunForm::Deliver(const DestinationChoice& choice) {
    records_->ShowText("Transferring To Report Viewer...");
    toolkit::Forms& forms = OtherForms();
    const QString name = objectName();
    DeliverReport(forms, application_, printers_, choice, name.toUtf8().constData());
    if (forms.Find(name) == this) EndRun();
}

}  // namespace tallix
