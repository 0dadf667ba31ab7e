// The base of every window. Its name ("Form7") is its Qt object name and the name by
// which toolkit::Forms knows it.
#pragma once

#include <QString>
#include <QWidget>

namespace tallix::toolkit {

class Forms;

class Form : public QWidget {
    Q_OBJECT
public:
    /// `forms` must outlive the form.
    Form(Forms& forms, const QString& caption);

    /// Unloads this form. It is destroyed when control returns to the event loop, so the
    /// caller may still use it.
    void Unload();

protected:
    /// Called once, when the form has its name.
    virtual void OnLoad() {}

    /// Called once, before the form is destroyed.
    virtual void OnUnload() {}

    /// For opening other windows.
    Forms& OtherForms() const { return forms_; }

    /// Closing the window unloads the form.
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Forms;

    Forms& forms_;
};

}  // namespace tallix::toolkit
