// About the program ("Form13"): its name and version. Leads back to the main menu.
#pragma once

#include "session/application.h"
#include "toolkit/form.h"

namespace tallix {

class AboutWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    AboutWindow(toolkit::Forms& forms, Application& application);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLayout* TextColumn();
    void Return();

    Application& application_;
};

}  // namespace tallix
