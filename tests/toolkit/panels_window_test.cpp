#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>

#include "support/test_application.h"
#include "support/window_test.h"
#include "toolkit/entry_panel.h"
#include "toolkit/permission_list.h"
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
    EntryPanelTest()
        : panel(*page),
          name(new QLineEdit),
          group(new QComboBox),
          rights(new PermissionList),
          all(new QPushButton("All")) {
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

    EntryPanel panel;
    QLineEdit* name;
    QComboBox* group;
    PermissionList* rights;
    QPushButton* all;
    int saved = 0;
};

TEST_F(EntryPanelTest, BlocksItsWindowAndGivesTheFocusBack) {
    auto* outside = new QPushButton("Outside", &window);
    outside->show();
    int pressed = 0;
    QObject::connect(outside, &QPushButton::clicked, [&] { ++pressed; });
    name->setEnabled(false);
    Open();
    EXPECT_EQ(panel.windowTitle(), "Add User");
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

TEST_F(EntryPanelTest, GoesWithItsPage) {
    Open();
    window.hide();
    EXPECT_FALSE(panel.isVisible());
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

}  // namespace
}  // namespace tallix::toolkit
