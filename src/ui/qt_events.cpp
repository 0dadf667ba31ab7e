#include "ui/qt_events.h"

#include <QCoreApplication>

namespace tallix::ui {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr std::chrono::milliseconds kPause{5};

}  // namespace

void QtEvents::Serve() {
    const Moment now = std::chrono::steady_clock::now();
    const bool afterPause = now - lastCall_ >= kPause;
    lastCall_ = now;
    if (!afterPause && now - lastServed_ < kPaintInterval) return;
    QCoreApplication::processEvents();
    lastCall_ = lastServed_ = std::chrono::steady_clock::now();
}

}  // namespace tallix::ui
