#include "toolkit/wait_panel.h"

namespace tallix::toolkit {

WaitPanel::WaitPanel(QWidget& widget, const QString& title, const QString& text)
    : held_(*widget.window()), panel_(*widget.window(), title, text) {}

ProgressLine& WaitPanel::AddLine(EventQueue& events, const QString& pattern) {
    return panel_.AddLine(events, pattern);
}

void RunWithPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                  const std::function<void()>& work) {
    WaitPanel panel(widget, title, text);
    panel.Show();
    events.ServeDuring(work);
}

}  // namespace tallix::toolkit
