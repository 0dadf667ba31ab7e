#include "toolkit/progress_panel.h"

#include <QVBoxLayout>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr int kPanelWidth = 48 * kGrid;

}  // namespace

ProgressLine::ProgressLine(EventQueue& events, const QString& pattern, QWidget* parent)
    : QWidget(parent),
      events_(events),
      pattern_(pattern),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)) {
    bar_->setTextVisible(false);
    bar_->setFixedHeight(kGrid);
    MakeQuiet(*text_);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kSpacing);
    rows->addWidget(bar_);
    rows->addWidget(text_);
    Reset();
}

void ProgressLine::Reset() {
    bar_->setRange(0, 1);
    bar_->setValue(0);
    text_->clear();
}

void ProgressLine::Record(std::int64_t record, std::int64_t bound) {
    const Moment now = std::chrono::steady_clock::now();
    if (record == 1 || record == bound || now - shown_ >= kPaintInterval) {
        shown_ = now;
        bar_->setMaximum(static_cast<int>(bound));
        bar_->setValue(static_cast<int>(record));
        QString text = pattern_;
        text_->setText(text.replace("%1", QString::number(record)).replace("%2", QString::number(bound)));
    }
    events_.Serve();
}

void ProgressLine::ShowText(const QString& text) {
    text_->setText(text);
    text_->repaint();
}

ProgressPanel::ProgressPanel(QWidget& window, const QString& title, const QString& text)
    : Panel(window, title) {
    setCursor(Qt::BusyCursor);
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setFixedWidth(kPanelWidth);
    if (!text.isEmpty()) Contents().addWidget(new QLabel(text));
}

ProgressLine& ProgressPanel::AddLine(EventQueue& events, const QString& pattern) {
    auto* line = new ProgressLine(events, pattern, this);
    Contents().addWidget(line);
    return *line;
}

}  // namespace tallix::toolkit
