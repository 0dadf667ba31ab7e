// What the pages of the Options window with lists are put together of.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "toolkit/list_view.h"

namespace tallix {

/// A button that runs a method of its page.
template <typename Page>
QPushButton* ActionButton(Page* page, const QString& caption, const QString& tip, void (Page::*action)()) {
    auto* button = new QPushButton(caption);
    button->setToolTip(tip);
    QObject::connect(button, &QPushButton::clicked, page, action);
    return button;
}

/// The list of a page whose title says what is listed.
QBoxLayout* OnlyList(const QString& name, toolkit::ListView& list);

/// A list below the label that names it.
QBoxLayout* NamedList(const QString& name, toolkit::ListView& list);

/// Enter and a double click on a row press the button, where it shows.
void PressOnActivation(const toolkit::ListView& list, QPushButton& button);

/// Buttons side by side: what concerns the whole list, then, at the far end, what concerns
/// a row of it.
QBoxLayout* ListButtons(const QList<QPushButton*>& forList, const QList<QPushButton*>& forRow);

/// The rows of a page: its parts below each other, the first of which takes the room.
void ArrangePage(QWidget& page, const QList<QLayout*>& parts);

}  // namespace tallix
