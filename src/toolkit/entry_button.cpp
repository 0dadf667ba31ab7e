#include "toolkit/entry_button.h"

#include <QPainter>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kWidth = 22 * kGrid;
constexpr int kHeight = 17 * kGrid;
constexpr int kPictureSize = 7 * kGrid;
constexpr int kLineWidth = 6 * kGrid;
constexpr int kLineHeight = 3;
constexpr double kCornerRadius = kGrid;
constexpr double kHairline = 1;
constexpr double kFocusLine = 2;

QString PictureFile(const QString& name) {
    return ":/icons/" + name + ".svg";
}

}  // namespace

EntryButton::EntryButton(const QString& label, const QString& picture, QColor colour, bool hasHoverEffect,
                         QWidget* parent)
    : QPushButton(label, parent),
      plain_(PictureFile(picture)),
      coloured_(PictureFile(picture + "_hover")),
      colour_(colour),
      hasHoverEffect_(hasHoverEffect) {
    setAttribute(Qt::WA_Hover);  // painted anew when the mouse comes and goes
    setAutoDefault(true);        // Enter works as Space does
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    setFont(large);
}

QSize EntryButton::sizeHint() const {
    return {kWidth, kHeight};
}

void EntryButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double frame = hasFocus() ? kFocusLine : kHairline;
    painter.setPen(QPen(hasFocus() ? palette().highlight() : palette().midlight(), frame));
    painter.setBrush(isDown() ? palette().alternateBase() : palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(frame, frame, -frame, -frame), kCornerRadius,
                            kCornerRadius);

    const int top = (height() - kPictureSize - kSpacing - fontMetrics().height()) / 2;
    const QRect picture((width() - kPictureSize) / 2, top, kPictureSize, kPictureSize);
    (IsHighlighted() ? coloured_ : plain_).render(&painter, picture);
    const QRect label(0, picture.bottom() + kSpacing, width(), fontMetrics().height());
    painter.setPen(IsHighlighted() ? colour_ : QColor(Qt::black));
    painter.drawText(label, Qt::AlignCenter, text());
    if (!IsHighlighted()) return;
    painter.fillRect((width() - kLineWidth) / 2, label.bottom() + kSpacing / 2, kLineWidth, kLineHeight,
                     colour_);
}

}  // namespace tallix::toolkit
