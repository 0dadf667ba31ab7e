// Long work that counts nothing, under a panel that says what is being done.
//
//     ui::WorkUnderPanel(*this, application.events, "Calculating Call Costings", "Please Wait...",
//                        [&] { ComputeCosts(session, settings); });
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "foundation/event_queue.h"

namespace tallix::ui {

/// Does the work with the panel over the window of `widget`. Until it is over the window is
/// painted, and its inputs are off and it cannot be closed. What the work uses is to be left
/// alone by other windows meanwhile. What it throws is thrown here.
void WorkUnderPanel(QWidget& widget, EventQueue& events, const QString& title, const QString& text,
                    const std::function<void()>& work);

}  // namespace tallix::ui
