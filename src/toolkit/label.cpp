#include "toolkit/label.h"

namespace tallix::toolkit {

QLabel* LabelOf(const QString& text, QWidget* input) {
    auto* label = new QLabel(text);
    label->setBuddy(input);
    if (input->accessibleName().isEmpty()) input->setAccessibleName(text);
    return label;
}

}  // namespace tallix::toolkit
