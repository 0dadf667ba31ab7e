// Long work under a panel that says what is being done.
//
//     toolkit::WorkUnderPanel(*this, application.events, "Calculating Call Costings", "Please Wait...",
//                        [&] { ComputeCosts(session, settings); });
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "host/event_queue.h"
#include "toolkit/held_open.h"
#include "toolkit/progress_panel.h"

namespace tallix::toolkit {

/// The panel over a window, whose inputs are off and which cannot be closed, for as long as
/// this lives.
class WaitPanel {
public:
    /// Covers the window of `widget`, which must outlive the panel. Hidden until Show.
    WaitPanel(QWidget& widget, const QString& title, const QString& text);

    /// For work that counts. The line belongs to the panel.
    ProgressLine& AddLine(EventQueue& events, const QString& pattern);

    /// Shows and paints it.
    void Show();

private:
    QWidget& window_;
    HeldWindow held_;
    ProgressPanel panel_;
};

/// Does work that counts nothing with the panel over the window of `widget`. Until it is over the window is
/// painted, and its inputs are off and it cannot be closed. What the work uses is to be left
/// alone by other windows meanwhile. What it throws is thrown here.
void WorkUnderPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                    const std::function<void()>& work);

}  // namespace tallix::toolkit
