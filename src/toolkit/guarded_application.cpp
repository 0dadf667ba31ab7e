#include "toolkit/guarded_application.h"

#include <utility>

namespace tallix::toolkit {

GuardedApplication::GuardedApplication(int& argumentCount, char** arguments, FailureHandler onFailure)
    : QApplication(argumentCount, arguments), onFailure_(std::move(onFailure)) {
    setQuitOnLastWindowClosed(false);  // hidden forms keep the process; toolkit::Forms ends it
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        Fail(failure);
    }
    return false;
}

void GuardedApplication::Fail(const std::exception& failure) {
    if (failed_) return;
    failed_ = true;
    onFailure_(failure);
    exit(1);
}

}  // namespace tallix::toolkit
