// A small form laid over a page: a title, inputs with their labels, and the buttons "Save"
// and "Cancel". The keyboard stays in it until one of them is pressed and then goes back to
// where it was; Enter saves where the input takes no Enter itself, Escape cancels.
//
//     panel_ = new toolkit::EntryPanel(*this);
//     panel_->AddInput("Number:", number_);
//     connect(panel_, &toolkit::EntryPanel::Saved, this, &AddressBookPage::SaveNumber);
//     ... panel_->Open("Add Number"); ... panel_->hide();
#pragma once

#include <QFormLayout>
#include <QPointer>
#include <QPushButton>

#include "toolkit/overlay.h"

namespace tallix::toolkit {

class EntryPanel : public Overlay {
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

    /// Shows the panel and gives the focus to its first enabled input.
    void Open(const QString& title);

signals:
    /// "Save" was pressed. The panel stays open: whoever saves hides it, or not when the
    /// inputs are refused.
    void Saved();

    /// "Cancel" was pressed, and the panel is hidden.
    void Cancelled();

private:
    void hideEvent(QHideEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    QList<QWidget*> FocusChain() const;

    QFormLayout* inputs_;
    QPushButton* save_;
    QPushButton* cancel_;
    QPointer<QWidget> focusBefore_;  ///< has it again when the panel is gone
};

}  // namespace tallix::toolkit
