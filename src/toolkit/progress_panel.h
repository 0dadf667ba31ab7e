// Says what a window is at work on: a title, a text, and a bar for each kind of record that
// is counted. It blocks the window, and cannot be closed.
//
//     ProgressPanel panel(window, "Please Wait", "Your selected report is being generated.");
//     ProgressLine& records = panel.AddLine(application.events, "Processing Record %1 Of %2");
//     panel.show();
//     ... records.Record(n, m) ...
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <chrono>

#include "host/event_queue.h"
#include "host/run_progress.h"
#include "toolkit/panel.h"

namespace tallix::toolkit {

/// A bar and its text. Both follow every record; they are painted 20 times a second at
/// most, since a person sees no more and painting costs as much as the work.
class ProgressLine : public QWidget, public RunProgress {
    Q_OBJECT
public:
    /// `pattern` may have "%1" for the record and "%2" for the bound. `events` are served at
    /// every record and must outlive the line.
    ProgressLine(EventQueue& events, const QString& pattern, QWidget* parent = nullptr);

    void Record(std::int64_t record, std::int64_t bound) override;

    /// A text in place of the record's, painted at once: what follows may not return to
    /// the event loop for a while.
    void ShowText(const QString& text);

    /// Back to the beginning, with no text.
    void Reset();

private:
    using Moment = std::chrono::steady_clock::time_point;

    EventQueue& events_;
    QString pattern_;
    QLabel* text_;
    QProgressBar* bar_;
    Moment shown_{};
};

class ProgressPanel : public Panel {
    Q_OBJECT
public:
    /// Hidden until shown. An empty `text` takes no room.
    ProgressPanel(QWidget& window, const QString& title, const QString& text);

    /// The line belongs to the panel.
    ProgressLine& AddLine(EventQueue& events, const QString& pattern);

    /// Escape and the window manager do not close it.
    void reject() override {}
};

}  // namespace tallix::toolkit
