#include "toolkit/panel.h"

#include <QEvent>
#include <QPainter>

#include "toolkit/style.h"

namespace tallix::toolkit {

Panel::Panel(QWidget& owner, const QString& title)
    : QDialog(&owner), heading_(new QLabel(this)), contents_(new QVBoxLayout(this)) {
    setWindowModality(Qt::WindowModal);
    MakeSubheading(*heading_);
    contents_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    contents_->setSpacing(kSpacing * 2);
    contents_->addWidget(heading_);
    SetTitle(title);
    owner.installEventFilter(this);
}

Panel::~Panel() {
    if (isVisible()) hide();
}

void Panel::SetTitle(const QString& title) {
    heading_->setText(title);
    setWindowTitle(title);
}

bool Panel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parent() && event->type() == QEvent::Hide && !event->spontaneous()) hide();
    return QDialog::eventFilter(watched, event);
}

void Panel::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    activateWindow();
}

void Panel::hideEvent(QHideEvent* event) {
    QDialog::hideEvent(event);
    QWidget* blocked = parentWidget()->window();
    if (blocked->isVisible()) blocked->activateWindow();
}

void Panel::paintEvent(QPaintEvent* event) {
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tallix::toolkit
