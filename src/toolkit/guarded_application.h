// The Qt application object. It catches what no handler caught, since exceptions cannot
// pass through Qt's event loop. The first one is passed to the failure handler and ends
// the event loop with status 1.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace tallix::toolkit {

class GuardedApplication : public QApplication {
    Q_OBJECT
public:
    using FailureHandler = std::function<void(const std::exception&)>;

    /// `argumentCount` must outlive the application.
    GuardedApplication(int& argumentCount, char** arguments, FailureHandler onFailure);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void Fail(const std::exception& failure);

    FailureHandler onFailure_;
    bool failed_ = false;
};

}  // namespace tallix::toolkit
