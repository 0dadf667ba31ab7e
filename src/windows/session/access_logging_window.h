// Access Logging ("Form20"): shows who did what, exports the log and clears it.
#pragma once

#include <QPushButton>

#include "session/access_log.h"
#include "session/application.h"
#include "toolkit/form.h"
#include "toolkit/list_view.h"

namespace tallix {

class AccessLoggingWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    AccessLoggingWindow(toolkit::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QWidget* ListFrame();
    QLayout* ButtonRow();
    QPushButton* Button(const QString& caption);

    Application& application_;
    toolkit::RecordModel<AccessLogRow>* log_;
    toolkit::ListView* list_;
};

}  // namespace tallix
