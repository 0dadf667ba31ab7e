// Access Logging ("Form20"): shows who did what, exports the log and clears it.
#pragma once

#include <QPushButton>

#include "foundation/application.h"
#include "ui/form.h"
#include "ui/list_view.h"

namespace tallix {

class AccessLoggingWindow : public ui::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    AccessLoggingWindow(ui::Forms& forms, Application& application);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QWidget* ListFrame();
    QLayout* ButtonRow();
    QPushButton* Button(const QString& caption);

    Application& application_;
    ui::ListView* list_;
};

}  // namespace tallix
