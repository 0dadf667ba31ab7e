#include "toolkit/overlay.h"

#include <QEvent>
#include <QPainter>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kVeilOpacity = 160;  ///< of 255

}  // namespace

Overlay::Overlay(QWidget& covered, const QString& title)
    : QWidget(&covered),
      card_(new QFrame(this)),
      title_(new QLabel(title, card_)),
      rows_(new QVBoxLayout(card_)) {
    hide();
    card_->setFrameShape(QFrame::StyledPanel);
    card_->setAutoFillBackground(true);
    card_->setBackgroundRole(QPalette::Base);
    MakeSubheading(*title_);
    rows_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows_->setSpacing(kSpacing * 2);
    rows_->addWidget(title_);
    auto* centre = new QVBoxLayout(this);
    centre->addWidget(card_, 0, Qt::AlignCenter);
    covered.installEventFilter(this);
}

void Overlay::SetTitle(const QString& title) {
    title_->setText(title);
}

bool Overlay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) resize(parentWidget()->size());
    return QWidget::eventFilter(watched, event);
}

void Overlay::showEvent(QShowEvent*) {
    resize(parentWidget()->size());
    raise();
}

void Overlay::paintEvent(QPaintEvent*) {
    QColor veil = palette().window().color();
    veil.setAlpha(kVeilOpacity);
    QPainter(this).fillRect(rect(), veil);
}

}  // namespace tallix::toolkit
