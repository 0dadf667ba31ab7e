// What the windows that run reports have in common: the frame "Output Report", the progress
// of a run, and how a run ends. However it ends, the window is unloaded with it, and
// the main menu shows again.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>

#include "reporting/catalogue.h"
#include "reporting/destinations.h"
#include "reporting/run_description.h"
#include "session/application.h"
#include "toolkit/choice_lists.h"
#include "toolkit/form.h"
#include "toolkit/printers.h"
#include "toolkit/progress_panel.h"

namespace tallix {

/// The frame "Output Report": where a report goes.
class OutputFrame : public QGroupBox {
    Q_OBJECT
public:
    OutputFrame();

    /// Fills the lists. None of their entries is chosen.
    void Fill(const toolkit::Printers& printers, const SettingsStore& settings);

    DestinationChoice Choice() const;
    void Choose(Destination destination, const std::string& application);

private:
    void EnableLists();

    QRadioButton* onScreen_;
    QRadioButton* toPrinter_;
    QRadioButton* inApplication_;
    QComboBox* printers_;
    QComboBox* applications_;
};

class ReportRunWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` and `printers` must outlive the window.
    ReportRunWindow(toolkit::Forms& forms, const QString& caption, Application& application,
                    toolkit::Printers& printers);

protected:
    void OnUnload() override;

    /// Not followed while a run is going: it ends by unloading the window.
    void closeEvent(QCloseEvent* event) override;

    /// What a person is told when there is nothing to show.
    virtual Message NoDataMessage() const = 0;

    Application& Program() const { return application_; }

    /// All inputs; disabled during a run.
    QWidget* Content() const { return content_; }
    OutputFrame& Output() const { return *output_; }
    void FillOutput() { output_->Fill(printers_, application_.settings); }

    /// Makes the report, delivers it and unloads the window. Unknown printers leave it.
    void Run(const RunDescription& description, ReportFlags& flags, const DestinationChoice& choice);

private:
    void BeginRun();
    void EndRun();
    void Refuse(const Message& refusal);
    void TellNoData();
    void Deliver(const DestinationChoice& choice);

    Application& application_;
    toolkit::Printers& printers_;
    QWidget* content_;
    OutputFrame* output_;
    toolkit::ProgressPanel* progress_;
    toolkit::ProgressLine* records_;
    bool running_ = false;
};

std::string TextOf(const QComboBox& list);
std::string TextOf(const QLineEdit& field);

}  // namespace tallix
