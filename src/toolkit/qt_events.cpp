#include "toolkit/qt_events.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <future>
#include <memory>

namespace tallix::toolkit {
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

void QtEvents::ServeDuring(const std::function<void()>& work) {
    std::packaged_task<void()> task(work);  // which keeps what the work throws
    std::future<void> outcome = task.get_future();
    const std::unique_ptr<QThread> thread(QThread::create([&task] { task(); }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    outcome.get();
}

}  // namespace tallix::toolkit
