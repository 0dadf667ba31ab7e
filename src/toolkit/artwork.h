// What the windows draw themselves, in the entry colours, sharp at every scale.
#pragma once

#include <QWidget>

class QLabel;
class QLayout;

namespace tallix::toolkit {

/// A round tick of 3 grid steps. Keeps its place while hidden.
class TickMark : public QWidget {
public:
    explicit TickMark(QColor colour, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
};

/// The mark of the product: six rising bars in the entry colours.
class ProductMark : public QWidget {
public:
    explicit ProductMark(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The first row of a window: the mark, and next to it a heading above `below`.
QLayout* ProductTitle(QWidget* window, const QString& heading, QLabel* below);

}  // namespace tallix::toolkit
