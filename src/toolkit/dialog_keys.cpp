#include "toolkit/dialog_keys.h"

#include <QKeyEvent>
#include <QPushButton>

namespace tallix::toolkit {

DialogKeys::DialogKeys(QWidget& window, QPushButton* onEnter, QPushButton* onEscape)
    : QObject(&window), onEnter_(onEnter), onEscape_(onEscape) {
    window.installEventFilter(this);
    for (QPushButton* button : window.findChildren<QPushButton*>()) button->setAutoDefault(true);
    if (onEnter_ != nullptr) onEnter_->setDefault(true);
}

QPushButton* DialogKeys::ButtonOf(int key) const {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return onEnter_;
    return key == Qt::Key_Escape ? onEscape_ : nullptr;
}

// What arrives at the window was ignored by the input that has the focus.
bool DialogKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    QPushButton* button = ButtonOf(key);
    if (button == nullptr) return key == Qt::Key_Escape && static_cast<QWidget*>(watched)->close();
    button->click();
    return true;
}

}  // namespace tallix::toolkit
