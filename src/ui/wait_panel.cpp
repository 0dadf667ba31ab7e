#include "ui/wait_panel.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <vector>

namespace tallix::ui {

/// Turns the inputs of a window off and holds it open, for as long as it lives.
class WaitPanel::HeldWindow : public QObject {
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

WaitPanel::WaitPanel(QWidget& widget, const QString& title, const QString& text)
    : window_(*widget.window()), held_(std::make_unique<HeldWindow>(window_)), panel_(window_, title, text) {}

WaitPanel::~WaitPanel() = default;

ProgressLine& WaitPanel::AddLine(EventQueue& events, const QString& pattern) {
    return panel_.AddLine(events, pattern);
}

void WaitPanel::Show() {
    panel_.show();
    window_.repaint();
}

void WorkUnderPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                    const std::function<void()>& work) {
    WaitPanel panel(widget, title, text);
    panel.Show();
    events.ServeDuring(work);
}

}  // namespace tallix::ui
