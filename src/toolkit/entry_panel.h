// A small form over a page: inputs with their labels, and the buttons "Save" and "Cancel".
// Enter saves where the input does not take Enter itself, Escape cancels, and the keyboard
// then goes back to where it was.
//
//     panel_ = new toolkit::EntryPanel(*this);
//     panel_->AddInput("Number:", number_);
//     connect(panel_, &toolkit::EntryPanel::Saved, this, &AddressBookPage::SaveNumber);
//     ... panel_->Open("Add Number"); ... panel_->hide();
#pragma once

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

#include "toolkit/panel.h"

namespace tallix::toolkit {

class EntryPanel : public Panel {
    Q_OBJECT
public:
    explicit EntryPanel(QWidget& page);

    /// Adds an input below the others. It becomes the panel's, and the label its buddy.
    QLabel& AddInput(const QString& label, QWidget* input);

    /// A widget or a row of buttons over the whole width.
    void AddRow(QWidget* row);
    void AddRow(QLayout* row);

    QPushButton& SaveButton() const { return *save_; }
    QPushButton& CancelButton() const { return *cancel_; }

    /// Shows the panel and gives the focus to its first enabled input. "Cancel" and Escape
    /// hide it and emit QDialog::rejected.
    void Open(const QString& title);

signals:
    /// "Save" was pressed. The panel stays open: the slot hides it unless it refuses the
    /// inputs.
    void Saved();

private:
    void FocusFirstInput();

    QFormLayout* inputs_;
    QDialogButtonBox* buttons_;
    QPushButton* save_;
    QPushButton* cancel_;
};

}  // namespace tallix::toolkit
