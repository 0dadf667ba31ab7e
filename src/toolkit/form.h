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

    /// Ends this form. What follows in the caller still runs; the form itself is
    /// destroyed when control is back in the event loop.
    void Unload();

protected:
    /// Run once, when the form has been made and has its name.
    virtual void OnLoad() {}

    /// Run once, before the form goes.
    virtual void OnUnload() {}

    /// The way to the other windows.
    Forms& OtherForms() const { return forms_; }

    /// Closing the window unloads the form.
    void closeEvent(QCloseEvent* event) override;

private:
    friend class Forms;

    Forms& forms_;
};

}  // namespace tallix::toolkit
