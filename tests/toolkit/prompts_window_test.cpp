#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QMessageBox>
#include <thread>

#include "support/window_test.h"
#include "toolkit/message_prompts.h"
#include "toolkit/qt_events.h"

namespace tallix::toolkit {
namespace {

class MessagePromptsTest : public test::WindowTest {
protected:
    /// Shows the message and presses a button; NoButton presses Escape.
    Answer Press(const Message& message, QMessageBox::StandardButton button) {
        Later([&, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            shown = box->windowTitle() + "|" + box->text();
            icon = box->icon();
            if (button == QMessageBox::NoButton) return box->reject();
            box->button(button)->click();
        });
        return MessagePrompts().Show(message);
    }

    QString shown;  ///< title and text
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

TEST_F(MessagePromptsTest, AMessageBoxShowsTheMessageToTheLetter) {
    EXPECT_EQ(Press({"fTopKey", "<b>5 & 6</b>", MessageIcon::Exclamation}, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(shown, "fTopKey|<b>5 & 6</b>");
    EXPECT_EQ(icon, QMessageBox::Warning);
}

TEST_F(MessagePromptsTest, AQuestionIsAnsweredByItsButtonsAndEscapeIsNo) {
    const Message question = {"Delete Report?", "Sure?", MessageIcon::Question, MessageButtons::YesNo};
    EXPECT_EQ(Press(question, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(Press(question, QMessageBox::No), Answer::No);
    EXPECT_EQ(Press(question, QMessageBox::NoButton), Answer::No);
}

class QtEventsTest : public test::WindowTest {};

TEST_F(QtEventsTest, ACallAfterAPauseServesAtOnceAndQuickOnesSeldom) {
    QtEvents events;
    bool atOnce = false;
    Later([&] { atOnce = true; });
    events.Serve();
    EXPECT_TRUE(atOnce);
    int served = 0;
    QTimer everyTime;
    everyTime.callOnTimeout([&] { ++served; });
    everyTime.start(0);
    QElapsedTimer watch;
    for (watch.start(); watch.elapsed() < 300;) events.Serve();
    EXPECT_GE(served, 2);
    EXPECT_LE(served, 20);
}

}  // namespace
}  // namespace tallix::toolkit
