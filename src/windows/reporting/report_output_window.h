// The window that shows a finished report ("Form8"). While it is open the main window
// is hidden; the page is deleted when it closes.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "session/application.h"
#include "toolkit/browser_control.h"
#include "toolkit/form.h"

namespace tallix {

class ReportOutputWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` and `printers` must outlive the window.
    ReportOutputWindow(toolkit::Forms& forms, Application& application, toolkit::Printers& printers);

    /// Begins to show the page of the latest run.
    void Navigate();

    /// Prints with the page setup of reports, which is in the settings only during the call.
    void Print(toolkit::PrintOption option);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QFrame* WaitingFrame();
    QLayout* ButtonRow();
    QPushButton* Button(const QString& caption, const QString& tip);
    void LookWhetherBusy();
    void ShowLoadFailure();
    void PrintReport();

    Application& application_;
    toolkit::BrowserControl* browser_;
    QLabel* waitingText_;
    QFrame* waiting_;
    QPushButton* print_;
    QPushButton* exportAsPdf_;
    QPushButton* close_;
    QTimer busyTimer_;
};

}  // namespace tallix
