#include "windows/administration/record_list.h"

#include <QLabel>

#include "toolkit/button_row.h"
#include "toolkit/style.h"

namespace tallix {

ButtonedList::ButtonedList(const QString& name, toolkit::ListModel& model, QWidget& owner)
    : QObject(&owner), view_(new toolkit::ListView(model, &owner)) {
    view_->setObjectName(name);
    view_->setAccessibleName(name);
    connect(view_, &toolkit::ListView::SelectionMoved, this, &ButtonedList::EnableButtons);
    connect(view_, &toolkit::ListView::SelectionMoved, this, &ButtonedList::SelectionMoved);
}

QPushButton& ButtonedList::AddButton(const ListButton& button, std::function<void()> action) {
    auto* widget = new QPushButton(button.caption, view_->parentWidget());
    widget->setToolTip(button.tip);
    connect(widget, &QPushButton::clicked, this, std::move(action));
    buttons_.push_back({widget, button});
    EnableButtons();
    return *widget;
}

// A hidden button can be clicked by the program.
void ButtonedList::PressOnActivation(QPushButton& button) const {
    connect(view_, &toolkit::ListView::activated, &button, [&button] {
        if (button.isVisible()) button.click();
    });
}

void ButtonedList::ApplyRights(const AccessRights& access) {
    for (const auto& [widget, button] : buttons_) {
        if (button.right) widget->setVisible(Allows(access, *button.right));
    }
}

void ButtonedList::EnableButtons() {
    for (const auto& [widget, button] : buttons_) {
        if (button.actsOn == ActsOn::Record) widget->setEnabled(HasSelection());
    }
}

QList<QPushButton*> ButtonedList::ButtonsAt(Side side) const {
    QList<QPushButton*> found;
    for (const auto& [widget, button] : buttons_) {
        if (button.side == side) found.append(widget);
    }
    return found;
}

QBoxLayout* ButtonedList::Layout(Heading heading) {
    auto* list = new QVBoxLayout;
    list->setSpacing(toolkit::kSpacing);
    if (heading == Heading::Shown) {
        auto* label = new QLabel(view_->objectName());
        label->setBuddy(view_);
        list->addWidget(label);
    }
    list->addWidget(view_, 1);
    auto* rows = new QVBoxLayout;
    rows->setSpacing(2 * toolkit::kSpacing);
    rows->addLayout(list, 1);
    rows->addLayout(toolkit::ButtonRow(ButtonsAt(Side::Left), ButtonsAt(Side::Right)));
    return rows;
}

}  // namespace tallix
