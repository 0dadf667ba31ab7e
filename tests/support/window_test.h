// The ground of every window test: one toolkit application on the offscreen platform,
// whose event loop a test runs until the last form is gone.
#pragma once

#include <gtest/gtest.h>

#include <QTimer>
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/forms.h"
#include "toolkit/guarded_application.h"

namespace tallix::test {

class WindowTest : public testing::Test {
protected:
    WindowTest() {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        toolkit_ = std::make_unique<toolkit::GuardedApplication>(
            argumentCount_, arguments_,
            [this](const std::exception& failure) { failures.emplace_back(failure.what()); });
    }

    /// Runs the event loop and returns its status; kNeverEnded when no one ended it.
    int RunToTheEnd(std::chrono::milliseconds limit = std::chrono::seconds(10)) {
        QTimer::singleShot(limit, toolkit_.get(), [] { QCoreApplication::exit(kNeverEnded); });
        return QApplication::exec();
    }

    /// Runs an action from inside the event loop, as a click would.
    template <typename Action>
    void Later(Action action) {
        QTimer::singleShot(0, toolkit_.get(), action);
    }

    static constexpr int kNeverEnded = 99;

    std::vector<std::string> failures;  ///< texts of the failures that no handler caught

private:
    int argumentCount_ = 1;
    std::string programName_ = "window_tests";
    char* arguments_[2] = {programName_.data(), nullptr};
    std::unique_ptr<toolkit::GuardedApplication> toolkit_;

protected:
    toolkit::Forms forms;
};

}  // namespace tallix::test
