#include "toolkit/entry_panel.h"

#include "toolkit/label.h"
#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kInputWidth = 36 * kGrid;

bool TakesTab(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) != 0 && widget.focusProxy() == nullptr;
}

}  // namespace

EntryPanel::EntryPanel(QWidget& page)
    : Panel(page, QString()),
      inputs_(new QFormLayout),
      buttons_(new QDialogButtonBox),
      save_(buttons_->addButton("Save", QDialogButtonBox::AcceptRole)),
      cancel_(buttons_->addButton("Cancel", QDialogButtonBox::RejectRole)) {
    inputs_->setSpacing(kSpacing);
    inputs_->setLabelAlignment(Qt::AlignLeft);
    save_->setDefault(true);
    Contents().addLayout(inputs_);
    Contents().addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, &EntryPanel::Saved);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QLabel& EntryPanel::AddInput(const QString& label, QWidget* input) {
    QLabel* words = LabelOf(label, input);
    input->setMinimumWidth(kInputWidth);
    input->ensurePolished();
    const bool isOneLine = input->sizePolicy().verticalPolicy() == QSizePolicy::Fixed;
    if (isOneLine) words->setMinimumHeight(input->sizeHint().height());  // in the middle of its row
    inputs_->addRow(words, input);
    return *words;
}

void EntryPanel::AddRow(QWidget* row) {
    inputs_->addRow(row);
}

void EntryPanel::AddRow(QLayout* row) {
    inputs_->addRow(row);
}

void EntryPanel::Open(const QString& title) {
    SetTitle(title);
    open();
    FocusFirstInput();
}

// The inputs are after the buttons in the chain, which is a ring.
void EntryPanel::FocusFirstInput() {
    QWidget* first = cancel_->nextInFocusChain();
    while (!TakesTab(*first) || !first->isEnabled() || !first->isVisible()) first = first->nextInFocusChain();
    first->setFocus();
}

}  // namespace tallix::toolkit
