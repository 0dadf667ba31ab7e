#include "toolkit/qt_events.h"

#include <QCoreApplication>
#include <future>

namespace tallix::toolkit {
namespace {

constexpr std::chrono::milliseconds kPaintInterval{50};
constexpr std::chrono::milliseconds kPause{5};
constexpr std::chrono::milliseconds kWorkInterval{10};

}  // namespace

void QtEvents::Serve() {
    const Moment now = std::chrono::steady_clock::now();
    const bool afterPause = now - lastCall_ >= kPause;
    lastCall_ = now;
    if (!afterPause && now - lastServed_ < kPaintInterval) return;
    QCoreApplication::processEvents();
    lastCall_ = lastServed_ = std::chrono::steady_clock::now();
}

void QtEvents::ServeDuring(const std::function<void()>& work) {
    std::future<void> outcome = std::async(std::launch::async, work);
    while (outcome.wait_for(kWorkInterval) != std::future_status::ready) QCoreApplication::processEvents();
    outcome.get();
}

}  // namespace tallix::toolkit
