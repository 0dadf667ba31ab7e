// The row of buttons below a window's contents.
#pragma once

#include <QBoxLayout>
#include <QList>
#include <QPushButton>

namespace tallix::toolkit {

/// Buttons that act on the contents are at the left, those that close the window at the
/// right. The caller owns the layout.
QBoxLayout* ButtonRow(const QList<QPushButton*>& left, const QList<QPushButton*>& right);

}  // namespace tallix::toolkit
