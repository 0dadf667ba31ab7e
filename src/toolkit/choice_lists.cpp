#include "toolkit/choice_lists.h"

#include "host/clock.h"
#include "toolkit/style.h"

namespace tallix::toolkit {
namespace {

constexpr int kTimeWidth = 20 * kGrid;
constexpr int kShownTimes = 12;

}  // namespace

QStringList Texts(const std::vector<std::string>& list) {
    QStringList texts;
    for (const std::string& text : list) texts << QString::fromStdString(text);
    return texts;
}

QComboBox* MakeTimeList() {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMaxVisibleItems(kShownTimes);
    list->addItems(Texts(MinutesOfTheDay()));
    list->setCurrentIndex(-1);
    list->setFixedWidth(kTimeWidth);
    return list;
}

}  // namespace tallix::toolkit
