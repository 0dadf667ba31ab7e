#include "toolkit/held_window.h"

#include <QEvent>

namespace tallix::toolkit {

HeldWindow::HeldWindow(QWidget& window) : window_(window), focus_(window.focusWidget()) {
    for (QWidget* part : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (part->isWindow() || !part->isEnabledTo(&window)) continue;
        part->setEnabled(false);
        disabled_.emplace_back(part);
    }
    window.installEventFilter(this);
}

HeldWindow::~HeldWindow() {
    for (const QPointer<QWidget>& part : disabled_) {
        if (part != nullptr) part->setEnabled(true);
    }
    if (focus_ != nullptr) focus_->setFocus();
}

bool HeldWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &window_ || event->type() != QEvent::Close) return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

}  // namespace tallix::toolkit
