// Long work while a panel says what is being done.
//
//     toolkit::RunWithPanel(*this, application.events, "Calculating Call Costings", "Please Wait...",
//                           [&] { ComputeCosts(session, settings); });
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "host/event_queue.h"
#include "toolkit/held_window.h"
#include "toolkit/progress_panel.h"

namespace tallix::toolkit {

/// The panel of a window, whose inputs are off and which cannot be closed, for as long as
/// this lives.
class WaitPanel {
public:
    /// Blocks the window of `widget`, which must outlive the panel. Hidden until Show.
    WaitPanel(QWidget& widget, const QString& title, const QString& text);

    /// For work that counts. The line belongs to the panel.
    ProgressLine& AddLine(EventQueue& events, const QString& pattern);

    void Show() { panel_.show(); }

private:
    HeldWindow held_;
    ProgressPanel panel_;
};

/// Runs work that counts nothing while a panel blocks the window of `widget`. Events are
/// served meanwhile: other windows must leave alone what the work uses. What it throws is
/// thrown here.
void RunWithPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                  const std::function<void()>& work);

}  // namespace tallix::toolkit
