// A small coloured report: title bar, table head, rows with every second one shaded, and
// the bar of the totals.
#pragma once

#include <QColor>
#include <QWidget>
#include <array>

namespace tallix::toolkit {

class ReportPreview : public QWidget {
    Q_OBJECT
public:
    /// The parts whose colour can be set, from top to bottom.
    enum class Part { TitleBar, TableHeader, TableDivide, TotalBar };

    explicit ReportPreview(QWidget* parent = nullptr);

    void SetColour(Part part, const QColor& colour);
    QColor Colour(Part part) const { return colours_.at(static_cast<std::size_t>(part)); }

    void SetAlignment(Qt::Alignment alignment);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<QColor, 4> colours_;
    Qt::Alignment alignment_ = Qt::AlignHCenter;
};

}  // namespace tallix::toolkit
