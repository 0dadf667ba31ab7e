#include "toolkit/entry_panel.h"

#include <QHBoxLayout>

#include "toolkit/dialog_keys.h"
#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kInputWidth = 36 * kGrid;

}  // namespace

EntryPanel::EntryPanel(QWidget& page)
    : Overlay(page, QString()),
      inputs_(new QFormLayout),
      save_(new QPushButton("Save", &Card())),
      cancel_(new QPushButton("Cancel", &Card())) {
    inputs_->setSpacing(kSpacing);
    inputs_->setLabelAlignment(Qt::AlignLeft);
    CardRows().addLayout(inputs_);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kSpacing);
    buttons->addStretch();
    buttons->addWidget(save_);
    buttons->addWidget(cancel_);
    CardRows().addLayout(buttons);
    connect(save_, &QPushButton::clicked, this, &EntryPanel::Saved);
    connect(cancel_, &QPushButton::clicked, this, [this] {
        hide();
        emit Cancelled();
    });
    new DialogKeys(*this, save_, cancel_);
}

QLabel& EntryPanel::AddInput(const QString& label, QWidget* input) {
    auto* words = new QLabel(label, &Card());
    words->setBuddy(input);
    input->setMinimumWidth(kInputWidth);
    input->ensurePolished();
    const bool isOneLine = input->sizePolicy().verticalPolicy() == QSizePolicy::Fixed;
    if (isOneLine) words->setMinimumHeight(input->sizeHint().height());  // in the middle of its row
    inputs_->addRow(words, input);
    setTabOrder(input, save_);
    setTabOrder(save_, cancel_);
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
    focusBefore_ = window()->focusWidget();
    show();
    if (const QList<QWidget*> chain = FocusChain(); !chain.isEmpty()) chain.first()->setFocus();
}

QList<QWidget*> EntryPanel::FocusChain() const {
    QList<QWidget*> chain;
    for (QWidget* next = nextInFocusChain(); next != this; next = next->nextInFocusChain()) {
        // The inner field of a list that can be typed in hands the focus back to the list.
        const bool takesTab = (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
        if (isAncestorOf(next) && takesTab && next->isEnabled() && next->isVisible()) chain.append(next);
    }
    return chain;
}

void EntryPanel::hideEvent(QHideEvent* event) {
    Overlay::hideEvent(event);
    const bool isInside = isAncestorOf(window()->focusWidget());
    if (isInside && focusBefore_ != nullptr) focusBefore_->setFocus();
}

// What lies beneath is greyed and cannot be clicked, so the keyboard must not reach it either.
bool EntryPanel::focusNextPrevChild(bool next) {
    if (!isVisible()) return Overlay::focusNextPrevChild(next);
    const QList<QWidget*> chain = FocusChain();
    if (chain.isEmpty()) return false;
    const qsizetype place = chain.indexOf(focusWidget());
    const qsizetype step = next ? 1 : chain.size() - 1;
    chain[(place + step) % chain.size()]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

}  // namespace tallix::toolkit
