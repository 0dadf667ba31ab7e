#include "toolkit/artwork.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <array>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kTickSize = 3 * kGrid;
constexpr int kBarWidth = kGrid;
constexpr int kBarGap = kGrid / 2;
constexpr int kMarkHeight = 8 * kGrid;

// Heights of the bars in grid steps.
constexpr std::array<int, kEntryColours.size()> kBarHeights = {3, 5, 4, 7, 6, 8};

}  // namespace

TickMark::TickMark(QColor colour, QWidget* parent) : QWidget(parent), colour_(colour) {
    setFixedSize(kTickSize, kTickSize);
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
}

void TickMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    const double unit = kTickSize / 24.0;
    QPen stroke(Qt::white, 2.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.setPen(stroke);
    painter.drawPolyline(
        QPolygonF({{7 * unit, 12.5 * unit}, {10.5 * unit, 16 * unit}, {17 * unit, 8.5 * unit}}));
}

ProductMark::ProductMark(QWidget* parent) : QWidget(parent) {
    const int bars = static_cast<int>(kBarHeights.size());
    setFixedSize(bars * (kBarWidth + kBarGap) - kBarGap, kMarkHeight);
}

void ProductMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    int left = 0;
    for (std::size_t bar = 0; bar < kBarHeights.size(); ++bar) {
        const int barHeight = kBarHeights.at(bar) * kGrid;
        painter.setBrush(QColor(kEntryColours.at(bar)));
        painter.drawRoundedRect(QRect(left, height() - barHeight, kBarWidth, barHeight), 2, 2);
        left += kBarWidth + kBarGap;
    }
}

QLayout* ProductTitle(QWidget* window, const QString& heading, QLabel* below) {
    auto* title = new QLabel(heading, window);
    MakeHeading(*title);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(title);
    texts->addWidget(below);
    auto* row = new QHBoxLayout;
    row->setSpacing(kMargin);
    row->addWidget(new ProductMark(window));
    row->addLayout(texts, 1);
    return row;
}

}  // namespace tallix::toolkit
