#include "ui/wait_panel.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <vector>

#include "ui/progress_panel.h"

namespace tallix::ui {
namespace {

/// Turns the inputs of a window off and holds it open, for as long as it lives.
class HeldWindow : public QObject {
public:
    explicit HeldWindow(QWidget& window) : window_(window), focus_(window.focusWidget()) {
        for (QWidget* part : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!part->isEnabledTo(&window)) continue;
            part->setEnabled(false);
            disabled_.emplace_back(part);
        }
        window.installEventFilter(this);
    }
    ~HeldWindow() override {
        for (const QPointer<QWidget>& part : disabled_) {
            if (part != nullptr) part->setEnabled(true);
        }
        if (focus_ != nullptr) focus_->setFocus();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != &window_ || event->type() != QEvent::Close)
            return QObject::eventFilter(watched, event);
        event->ignore();
        return true;
    }

private:
    QWidget& window_;
    QPointer<QWidget> focus_;
    std::vector<QPointer<QWidget>> disabled_;
};

}  // namespace

void WorkUnderPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                    const std::function<void()>& work) {
    QWidget& window = *widget.window();
    const HeldWindow held(window);
    ProgressPanel panel(window, title, text);
    panel.show();
    window.repaint();
    events.ServeDuring(work);
}

}  // namespace tallix::ui
