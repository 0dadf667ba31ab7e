// Finds what a person would look for: a button, a box or a label by the words on it.
#pragma once

#include <QString>
#include <QWidget>
#include <stdexcept>

namespace tallix::test {

/// The first widget of that type and text in a window. Throws std::runtime_error where
/// there is none.
template <typename Widget>
Widget& Captioned(const QWidget& window, const QString& caption) {
    for (Widget* widget : window.findChildren<Widget*>()) {
        if (widget->text() == caption) return *widget;
    }
    throw std::runtime_error("no \"" + caption.toStdString() + "\" in " + window.objectName().toStdString());
}

}  // namespace tallix::test
