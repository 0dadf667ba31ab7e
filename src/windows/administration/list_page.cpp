#include "windows/administration/list_page.h"

#include "toolkit/button_row.h"
#include "toolkit/style.h"

namespace tallix {

QBoxLayout* OnlyList(const QString& name, toolkit::ListView& list) {
    list.setObjectName(name);
    list.setAccessibleName(name);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(toolkit::kSpacing);
    rows->addWidget(&list, 1);
    return rows;
}

QBoxLayout* NamedList(const QString& name, toolkit::ListView& list) {
    auto* label = new QLabel(name);
    label->setBuddy(&list);
    QBoxLayout* rows = OnlyList(name, list);
    rows->insertWidget(0, label);
    return rows;
}

// A hidden button can be clicked by the program.
void PressOnActivation(const toolkit::ListView& list, QPushButton& button) {
    QObject::connect(&list, &toolkit::ListView::activated, &button, [&button] {
        if (button.isVisible()) button.click();
    });
}

QBoxLayout* ListButtons(const QList<QPushButton*>& forList, const QList<QPushButton*>& forRow) {
    return toolkit::ButtonRow(forList, forRow);
}

void ArrangePage(QWidget& page, const QList<QLayout*>& parts) {
    auto* rows = new QVBoxLayout(&page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(2 * toolkit::kSpacing);
    for (QLayout* part : parts) rows->addLayout(part, part == parts.first() ? 1 : 0);
}

}  // namespace tallix
