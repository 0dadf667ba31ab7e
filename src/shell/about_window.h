// About the program ("Form13"): its name and version. Leads back to the main menu.
#pragma once

#include "foundation/application.h"
#include "ui/form.h"

namespace tallix {

class AboutWindow : public ui::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    AboutWindow(ui::Forms& forms, Application& application);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLayout* TextColumn();
    void Return();

    Application& application_;
};

}  // namespace tallix
