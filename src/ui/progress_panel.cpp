#include "ui/progress_panel.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "ui/style.h"

namespace tallix::ui {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr int kCardWidth = 48 * kGrid;
constexpr int kVeilOpacity = 160;  ///< of 255

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
        text_->setText(pattern_.arg(record).arg(bound));
    }
    events_.Serve();
}

void ProgressLine::ShowText(const QString& text) {
    text_->setText(text);
    text_->repaint();
}

ProgressPanel::ProgressPanel(QWidget& window, const QString& title, const QString& text)
    : QWidget(&window), card_(new QFrame(this)) {
    hide();
    setCursor(Qt::BusyCursor);
    card_->setFrameShape(QFrame::StyledPanel);
    card_->setAutoFillBackground(true);
    card_->setBackgroundRole(QPalette::Base);
    card_->setFixedWidth(kCardWidth);
    auto* heading = new QLabel(title, card_);
    MakeSubheading(*heading);
    auto* rows = new QVBoxLayout(card_);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kSpacing * 2);
    rows->addWidget(heading);
    rows->addWidget(new QLabel(text, card_));
    auto* centre = new QVBoxLayout(this);
    centre->addWidget(card_, 0, Qt::AlignCenter);
    window.installEventFilter(this);
}

ProgressLine& ProgressPanel::AddLine(EventQueue& events, const QString& pattern) {
    auto* line = new ProgressLine(events, pattern, card_);
    card_->layout()->addWidget(line);
    return *line;
}

bool ProgressPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void ProgressPanel::showEvent(QShowEvent*) {
    resize(parentWidget()->size());
    raise();
}

void ProgressPanel::paintEvent(QPaintEvent*) {
    QColor veil = palette().window().color();
    veil.setAlpha(kVeilOpacity);
    QPainter(this).fillRect(rect(), veil);
}

}  // namespace tallix::ui
