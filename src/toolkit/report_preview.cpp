#include "toolkit/report_preview.h"

#include <QPainter>

#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kWidth = 60 * kGrid;
constexpr int kTitleHeight = 5 * kGrid;
constexpr int kRowHeight = 3 * kGrid;
constexpr int kCalls = 4;
constexpr double kTitleScale = 1.3;

constexpr std::array<std::array<const char*, 4>, kCalls> kSampleCalls = {{
    {"05/03/2021", "10:15", "201", "00:02:30"},
    {"05/03/2021", "10:21", "204", "00:00:45"},
    {"05/03/2021", "10:40", "201", "00:11:08"},
    {"05/03/2021", "11:02", "210", "00:01:17"},
}};
constexpr std::array<const char*, 4> kHeads = {"Date", "Time", "Extension", "Duration"};

/// White on a dark colour, black on a light one.
QColor TextOn(const QColor& colour) {
    constexpr int kMiddle = 128;
    return qGray(colour.rgb()) < kMiddle ? Qt::white : Qt::black;
}

/// Paints bars of text from the top downwards.
class Sheet {
public:
    Sheet(QPainter& painter, int width, Qt::Alignment alignment)
        : painter_(painter), width_(width), alignment_(alignment) {}

    void Bar(int height, const QColor& colour, const QString& text) {
        const QRect bar = Next(height, colour);
        painter_.drawText(bar.adjusted(kGrid, 0, -kGrid, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
    }
    void Row(const QColor& colour, const std::array<const char*, 4>& cells) {
        const QRect bar = Next(kRowHeight, colour);
        const int cell = bar.width() / static_cast<int>(cells.size());
        for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
            const QRect place(bar.left() + i * cell, bar.top(), cell, bar.height());
            const Qt::Alignment alignment = alignment_ | Qt::AlignVCenter;
            painter_.drawText(place.adjusted(kGrid, 0, -kGrid, 0), static_cast<int>(alignment), cells.at(i));
        }
    }

private:
    QRect Next(int height, const QColor& colour) {
        const QRect bar(0, top_, width_, height);
        painter_.fillRect(bar, colour);
        painter_.setPen(TextOn(colour));
        top_ += height;
        return bar;
    }

    QPainter& painter_;
    int width_;
    Qt::Alignment alignment_;
    int top_ = 0;
};

}  // namespace

ReportPreview::ReportPreview(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName("Report preview");
}

void ReportPreview::SetColour(Part part, const QColor& colour) {
    colours_.at(static_cast<std::size_t>(part)) = colour;
    update();
}

void ReportPreview::SetAlignment(Qt::Alignment alignment) {
    alignment_ = alignment;
    update();
}

QSize ReportPreview::sizeHint() const {
    return {kWidth, kTitleHeight + (kCalls + 2) * kRowHeight};
}

void ReportPreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Sheet sheet(painter, width(), alignment_);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kTitleScale);
    painter.setFont(large);
    sheet.Bar(kTitleHeight, Colour(Part::TitleBar), "All Calls");
    painter.setFont(font());
    sheet.Row(Colour(Part::TableHeader), kHeads);
    for (int call = 0; call < kCalls; ++call) {
        sheet.Row(call % 2 == 0 ? QColor(Qt::white) : Colour(Part::TableDivide), kSampleCalls.at(call));
    }
    sheet.Bar(kRowHeight, Colour(Part::TotalBar), "Total Calls 4");
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace tallix::toolkit
