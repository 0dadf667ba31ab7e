// What is shown over a window: panels and messages, and the events that are served meanwhile.
#include <QAbstractButton>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <thread>

#include "support/test_application.h"
#include "support/window_test.h"
#include "toolkit/dialog_keys.h"
#include "toolkit/entry_panel.h"
#include "toolkit/message_prompts.h"
#include "toolkit/permission_list.h"
#include "toolkit/progress_panel.h"
#include "toolkit/qt_events.h"
#include "toolkit/wait_panel.h"

namespace tallix::toolkit {
namespace {

using testing::ElementsAre;

class PanelTest : public test::WindowTest {
protected:
    PanelTest() : page(new QWidget(&window)), below(new QLineEdit(page)) {
        page->setGeometry(100, 50, 200, 150);
        window.resize(640, 240);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        below->setFocus();
    }

    QWidget window;
    QWidget* page;  ///< smaller than the panel
    QLineEdit* below;
    test::TestEvents events;
};

class EntryPanelTest : public PanelTest {
protected:
    EntryPanelTest() {
        group->setEditable(true);
        panel.AddInput("Name:", name);
        panel.AddInput("Group:", group);
        panel.AddInput("Rights:", rights);
        panel.AddRow(all);
        QObject::connect(&panel, &EntryPanel::Saved, [this] { ++saved; });
    }

    void Open() {
        panel.Open("Add User");
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &panel; }));
    }

    EntryPanel panel{*page};
    QLineEdit* name = new QLineEdit;
    QComboBox* group = new QComboBox;
    PermissionList* rights = new PermissionList;
    QPushButton* all = new QPushButton("All");
    int saved = 0;
};

TEST_F(EntryPanelTest, BlocksItsWindowAndGivesTheFocusBack) {
    auto* outside = new QPushButton("Outside", &window);
    outside->show();
    int pressed = 0;
    QObject::connect(outside, &QPushButton::clicked, [&] { ++pressed; });
    name->setEnabled(false);
    Open();
    EXPECT_TRUE(group->hasFocus()) << "the first enabled input";
    ClickOn(*outside);
    EXPECT_EQ(pressed, 0);
    ClickOn(panel.SaveButton());
    EXPECT_EQ(saved, 1);
    EXPECT_TRUE(panel.isVisible());
    ClickOn(panel.CancelButton());
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(below->hasFocus());
    ClickOn(*outside);
    EXPECT_EQ(pressed, 1);
    Open();
    window.hide();
    EXPECT_FALSE(panel.isVisible()) << "it goes with its page";
}

TEST_F(EntryPanelTest, EnterSavesAndEscapeCancels) {
    Open();
    EXPECT_TRUE(name->hasFocus());
    QTest::keyClick(name, Qt::Key_Return);
    QTest::keyClick(rights, Qt::Key_Enter);
    EXPECT_EQ(saved, 2);
    EXPECT_TRUE(panel.isVisible());
    QTest::keyClick(&panel.CancelButton(), Qt::Key_Return);
    EXPECT_FALSE(panel.isVisible());
    Open();
    QTest::keyClick(rights, Qt::Key_Escape);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(saved, 2);
}

TEST_F(EntryPanelTest, TabFollowsTheInputsAndThenTheButtons) {
    for (int time = 0; time < 2; ++time) {
        Open();
        std::vector<QWidget*> stops;
        for (int i = 0; i < 7; ++i) {
            stops.push_back(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_THAT(stops,
                    ElementsAre(name, group, rights, all, &panel.SaveButton(), &panel.CancelButton(), name));
        panel.hide();
    }
}

TEST_F(PanelTest, AWaitPanelHoldsItsWindowAndCannotBeClosed) {
    auto* off = new QPushButton("Off", page);
    off->setEnabled(false);
    {
        WaitPanel wait(*page, "Please Wait...", "Building");
        wait.Show();
        auto& panel = *window.findChild<ProgressPanel*>();
        QTest::keyClick(&panel, Qt::Key_Escape);
        panel.close();
        window.close();
        EXPECT_TRUE(panel.isVisible() && window.isVisible());
        EXPECT_FALSE(below->isEnabled());
    }
    EXPECT_TRUE(below->isEnabled() && below->hasFocus());
    EXPECT_FALSE(off->isEnabled());
    EXPECT_TRUE(window.close());
}

class PaintCount : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};

TEST_F(PanelTest, ALineOfProgressServesEventsAtEachRecordAndIsPaintedAtOnce) {
    int served = 0;
    events.onServe = [&] { ++served; };
    ProgressPanel panel(window, "Please Wait", "Working.");
    ProgressLine& line = panel.AddLine(events, "Record %1 Of %2");
    auto* text = line.findChild<QLabel*>();
    panel.show();
    for (int record = 1; record <= 30000; ++record) line.Record(record, 30000);
    EXPECT_EQ(text->text(), "Record 30000 Of 30000");
    EXPECT_EQ(line.findChild<QProgressBar*>()->value(), 30000);
    EXPECT_EQ(served, 30000);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&panel));
    PaintCount count;
    text->installEventFilter(&count);
    line.ShowText("Done");
    EXPECT_EQ(text->text(), "Done");
    EXPECT_EQ(count.paints, 1) << "before the event loop runs again";
}

TEST_F(PanelTest, EnterAndEscapePressTheirButtonsUnlessAnotherHasTheFocus) {
    QWidget dialog;
    std::vector<std::string> pressed;
    std::vector<QPushButton*> buttons;
    for (const char* caption : {"Run", "Help", "Cancel"}) {
        buttons.push_back(new QPushButton(caption, &dialog));
        QObject::connect(buttons.back(), &QPushButton::clicked,
                         [&pressed, caption] { pressed.emplace_back(caption); });
    }
    auto* field = new QWidget(&dialog);
    new DialogKeys(dialog, buttons[0], buttons[2]);
    dialog.show();
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Escape);
    QTest::keyClick(buttons[1], Qt::Key_Enter);
    buttons[0]->setEnabled(false);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_THAT(pressed, ElementsAre("Run", "Cancel", "Help"));
}

class PromptsTest : public test::WindowTest {
protected:
    /// Shows the message and presses a button; NoButton presses Escape.
    Answer Press(const Message& message, QMessageBox::StandardButton button) {
        Later([&, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_EQ((box->windowTitle() + box->text()).toStdString(), message.title + message.text);
            icon = box->icon();
            if (button == QMessageBox::NoButton) return box->reject();
            box->button(button)->click();
        });
        return MessagePrompts().Show(message);
    }

    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QtEvents events;
};

TEST_F(PromptsTest, AMessageIsShownToTheLetterAndEscapeAnswersNo) {
    EXPECT_EQ(Press({"fTopKey", "<b>5 & 6</b>", MessageIcon::Exclamation}, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(icon, QMessageBox::Warning);
    const Message question = {"Delete Report?", "Sure?", MessageIcon::Question, MessageButtons::YesNo};
    EXPECT_EQ(Press(question, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(Press(question, QMessageBox::No), Answer::No);
    EXPECT_EQ(Press(question, QMessageBox::NoButton), Answer::No);
}

TEST_F(PromptsTest, ACallAfterAPauseServesAtOnceAndQuickOnesSeldom) {
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

TEST_F(PromptsTest, WindowsAnswerWhileAStatementRuns) {
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

}  // namespace
}  // namespace tallix::toolkit
