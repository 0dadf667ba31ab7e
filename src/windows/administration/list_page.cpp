#include "windows/administration/list_page.h"

#include "toolkit/style.h"

namespace tallix {

ListPage::ListPage(Application& application, AccessRight right, QWidget* parent)
    : OptionsPage(parent), application_(application), right_(right) {}

void ListPage::ApplyRights(const AccessRights& access) {
    for (ButtonedList* list : lists_) list->ApplyRights(access);
}

void ListPage::Arrange(const QList<QLayout*>& columns) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(toolkit::kMargin);
    for (QLayout* column : columns) row->addLayout(column, 1);
}

bool ListPage::Confirms(const Message& question) const {
    Message message = question;
    message.buttons = MessageButtons::YesNo;
    return application_.prompts.Show(message) == Answer::Yes;
}

}  // namespace tallix
