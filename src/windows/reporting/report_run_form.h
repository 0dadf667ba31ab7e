// The base of the windows that run reports: the progress of a run, and how a run ends.
// However it ends, the window is unloaded with it, and the main menu shows again.
#pragma once

#include "reporting/run_description.h"
#include "session/application.h"
#include "toolkit/choice_lists.h"
#include "toolkit/form.h"
#include "toolkit/printers.h"
#include "toolkit/progress_panel.h"
#include "windows/reporting/output_frame.h"

namespace tallix {

class ReportRunForm : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` and `printers` must outlive the window.
    ReportRunForm(toolkit::Forms& forms, const QString& caption, Application& application,
                  toolkit::Printers& printers);

protected:
    void OnUnload() override;

    /// Ignored during a run, which ends by unloading the window.
    void closeEvent(QCloseEvent* event) override;

    /// What a person reads when there is nothing to show.
    virtual Message NoDataMessage() const = 0;

    Application& Program() const { return application_; }

    /// All inputs; disabled during a run.
    QWidget* Content() const { return content_; }
    OutputFrame& Output() const { return *output_; }
    void FillOutput() { output_->Fill(printers_, application_.settings); }

    /// Makes the report, delivers it and unloads the window. An unknown printer leaves the
    /// window loaded.
    void Run(const RunDescription& description, const DestinationChoice& choice);

private:
    void BeginRun();
    void EndRun();
    void Refuse(const Message& refusal);
    void ShowNoData();
    void Deliver(const DestinationChoice& choice);

    Application& application_;
    toolkit::Printers& printers_;
    QWidget* content_;
    OutputFrame* output_;
    toolkit::ProgressPanel* progress_;
    toolkit::ProgressLine* records_;
    bool running_ = false;
};

}  // namespace tallix
