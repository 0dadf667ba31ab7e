#include "toolkit/button_row.h"

#include "toolkit/style.h"

namespace tallix::toolkit {

QBoxLayout* ButtonRow(const QList<QPushButton*>& left, const QList<QPushButton*>& right) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpacing);
    for (QPushButton* button : left) row->addWidget(button);
    row->addStretch();
    for (QPushButton* button : right) row->addWidget(button);
    return row;
}

}  // namespace tallix::toolkit
