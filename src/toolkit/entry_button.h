// A large entry of a menu: a picture over its label. Under the mouse the picture and the
// label take the entry's colour and a line of that colour appears below them.
#pragma once

#include <QColor>
#include <QPushButton>
#include <QSvgRenderer>

namespace tallix::toolkit {

class EntryButton : public QPushButton {
    Q_OBJECT
public:
    /// `picture` names a pair of pictures that come with the program. Without a hover
    /// effect the entry looks the same under the mouse.
    EntryButton(const QString& label, const QString& picture, QColor colour, bool hasHoverEffect,
                QWidget* parent = nullptr);

    /// Whether the entry shows its colour.
    bool IsHighlighted() const { return hasHoverEffect_ && underMouse(); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer plain_;
    QSvgRenderer coloured_;
    QColor colour_;
    bool hasHoverEffect_;
};

}  // namespace tallix::toolkit
