// The row of buttons below a window's contents.
#pragma once

#include <QBoxLayout>
#include <QList>
#include <QPushButton>

namespace tallix::toolkit {

/// What acts on the contents stands at the left, what ends with them at the right. The
/// layout belongs to whoever adds it to another.
QBoxLayout* ButtonRow(const QList<QPushButton*>& left, const QList<QPushButton*>& right);

}  // namespace tallix::toolkit
