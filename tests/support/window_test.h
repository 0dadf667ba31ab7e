// The base of every window test: one toolkit application on the offscreen platform, whose
// event loop a test runs until the last form is gone.
#pragma once

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <memory>
#include <stdexcept>
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

    /// Presses a button with the mouse, at its place on its window, and serves nothing but the
    /// press. Throws std::runtime_error where the mouse does not reach the button.
    static void ClickOn(QAbstractButton& button) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        for (QWidget* part = &button; part != nullptr; part = part->parentWidget()) {
            if (auto* area = qobject_cast<QScrollArea*>(part)) area->ensureWidgetVisible(&button);
        }
        QWidget& window = *button.window();
        const QPoint place = button.mapTo(&window, PressedPlace(button));
        const QWidget* reached = window.childAt(place);
        if (!button.isVisible() || (reached != &button && !button.isAncestorOf(reached))) {
            throw std::runtime_error("the mouse does not reach \"" + button.text().toStdString() + "\"");
        }
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            qt_handleMouseEvent(window.windowHandle(), place, window.mapToGlobal(place), held, Qt::LeftButton,
                                type, {}, QTest::lastMouseTimestamp);
        }
        QTest::lastMouseTimestamp += QTest::mouseDoubleClickInterval;  // the next is a click again
    }

    static constexpr int kNeverEnded = 99;

    std::vector<std::string> failures;  ///< texts of the failures that no handler caught

private:
    /// Boxes and options are pressed at their mark: they may be wider than their text.
    static QPoint PressedPlace(const QAbstractButton& button) {
        const QPoint centre = button.rect().center();
        const bool hasMark =
            qobject_cast<const QCheckBox*>(&button) || qobject_cast<const QRadioButton*>(&button);
        constexpr int kInMark = 8;
        return hasMark ? QPoint(kInMark, centre.y()) : centre;
    }

    int argumentCount_ = 1;
    std::string programName_ = "window_tests";
    char* arguments_[2] = {programName_.data(), nullptr};
    std::unique_ptr<toolkit::GuardedApplication> toolkit_;

protected:
    toolkit::Forms forms;
};

}  // namespace tallix::test
