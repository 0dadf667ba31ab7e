// The label of an input.
#pragma once

#include <QLabel>

namespace tallix::toolkit {

/// A label whose buddy is `input`. It also becomes the accessible name of an input that has
/// none yet: a list would otherwise be announced by what is chosen in it.
QLabel* LabelOf(const QString& text, QWidget* input);

}  // namespace tallix::toolkit
