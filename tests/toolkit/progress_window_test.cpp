#include <gmock/gmock.h>

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <stdexcept>
#include <thread>

#include "support/test_application.h"
#include "support/window_test.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/progress_panel.h"
#include "toolkit/qt_events.h"

namespace tallix::toolkit {
namespace {

class PaintCount : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};

class ProgressTest : public test::WindowTest {
protected:
    static QString TextOf(const ProgressLine& line) { return line.findChild<QLabel*>()->text(); }
};

TEST_F(ProgressTest, ALineFollowsItsRecordsAndServesEventsAtEachOfThem) {
    QWidget window;
    test::TestEvents events;
    int served = 0;
    events.onServe = [&] { ++served; };
    ProgressPanel panel(window, "Please Wait", "Working.");
    ProgressLine& line = panel.AddLine(events, "Record %1 Of %2");
    window.show();
    panel.show();
    line.Record(1, 30000);
    EXPECT_EQ(TextOf(line), "Record 1 Of 30000");
    for (int record = 2; record < 30000; ++record) line.Record(record, 30000);
    line.Record(30000, 30000);
    EXPECT_EQ(TextOf(line), "Record 30000 Of 30000");
    EXPECT_EQ(line.findChild<QProgressBar*>()->value(), 30000);
    EXPECT_EQ(served, 30000);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel));
    PaintCount count;
    line.findChild<QLabel*>()->installEventFilter(&count);
    line.ShowText("Done");
    EXPECT_EQ(TextOf(line), "Done");
    EXPECT_EQ(count.paints, 1) << "before the event loop runs again";
    line.Reset();
    EXPECT_EQ(TextOf(line), "");
}

TEST_F(ProgressTest, WindowsAnswerWhileAStatementRuns) {
    QtEvents events;
    bool answered = false;
    bool answeredInTime = false;
    QTimer::singleShot(20, [&] { answered = true; });
    events.ServeDuring([&] {
        for (int i = 0; i < 500 && !answeredInTime; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
            QMetaObject::invokeMethod(
                qApp, [&] { answeredInTime = answered; }, Qt::BlockingQueuedConnection);
        }
    });
    EXPECT_TRUE(answeredInTime);
    EXPECT_THROW(events.ServeDuring([] { throw std::runtime_error("refused"); }), std::runtime_error);
}

TEST_F(ProgressTest, EnterAndEscapePressTheirButtonsUnlessAnotherHasTheFocus) {
    QWidget window;
    auto* rows = new QVBoxLayout(&window);
    std::vector<std::string> pressed;
    std::vector<QPushButton*> buttons;
    for (const char* caption : {"Run", "Help", "Cancel"}) {
        buttons.push_back(new QPushButton(caption));
        rows->addWidget(buttons.back());
        QObject::connect(buttons.back(), &QPushButton::clicked,
                         [&pressed, caption] { pressed.emplace_back(caption); });
    }
    auto* field = new QWidget;
    rows->addWidget(field);
    new DialogKeys(window, buttons[0], buttons[2]);
    window.show();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Escape);
    QTest::keyClick(buttons[1], Qt::Key_Enter);
    buttons[0]->setEnabled(false);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_THAT(pressed, testing::ElementsAre("Run", "Cancel", "Help"));
}

}  // namespace
}  // namespace tallix::toolkit
