#include "toolkit/choice_lists.h"

#include "host/clock.h"
#include "toolkit/style.h"
#include "toolkit/text.h"

namespace tallix::toolkit {
namespace {

constexpr int kTimeWidth = 20 * kGrid;
constexpr int kShownTimes = 12;

}  // namespace

QComboBox* MakeTimeList() {
    auto* list = new QComboBox;
    list->setEditable(true);
    list->setInsertPolicy(QComboBox::NoInsert);
    list->setMaxVisibleItems(kShownTimes);
    list->addItems(ToQStringList(MinutesOfTheDay()));
    list->setCurrentIndex(-1);
    list->setFixedWidth(kTimeWidth);
    return list;
}

}  // namespace tallix::toolkit
