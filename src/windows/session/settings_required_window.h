// Settings Required ("Form11"): asks for the database's address on the first run.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "session/application.h"
#include "toolkit/form.h"

namespace tallix {

class SettingsRequiredWindow : public toolkit::Form {
    Q_OBJECT
public:
    /// `application` must outlive the window.
    SettingsRequiredWindow(toolkit::Forms& forms, Application& application);

private:
    void MakeInputs();
    void MakeButtons();
    void ArrangeRows();
    QLayout* AddressRow();
    QLayout* ButtonRow();

    void TestAddress();
    void SaveChanges();

    Application& application_;
    QLineEdit* address_;
    QPushButton* test_;
    QLabel* result_;
    QPushButton* save_;
    QPushButton* exit_;
};

}  // namespace tallix
