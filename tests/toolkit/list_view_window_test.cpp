#include "toolkit/list_view.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>

#include "support/window_test.h"

namespace tallix::toolkit {
namespace {

struct Cost {
    std::string destination;
    std::string pence;
};

std::string KindOf(const Cost& cost) {
    return cost.destination.starts_with("00") ? "abroad" : "at home";
}

class ListViewTest : public test::WindowTest {
protected:
    ListViewTest() {
        list->setObjectName("Costs");
        list->setGeometry(10, 20, 400, 200);
        costs.Set({{"0044", "1.50"}, {"01", ""}, {"0033", "2.00"}});
        window.resize(420, 240);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QPoint Centre(int row, int column) const { return list->visualRect(costs.index(row, column)).center(); }

    /// Opens a cell as a person does it. Null where it does not open.
    QLineEdit* Edit(int row, int column) {
        const QPoint place = Centre(row, column);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        return qobject_cast<QLineEdit*>(QApplication::focusWidget());
    }

    RecordModel<Cost> costs{
        {{"Destination", &Cost::destination, 1500}, {"Cost", &Cost::pence, 750}, {"Kind", KindOf, 750}},
        nullptr};
    QWidget window;
    ListView* list = new ListView(costs, &window);
};

TEST_F(ListViewTest, OneRowIsSelectedAndCopied) {
    EXPECT_EQ(list->header()->length(), list->viewport()->width()) << "the last column takes the rest";
    int moves = 0;
    QObject::connect(list, &ListView::SelectionMoved, [&] { ++moves; });
    EXPECT_EQ(list->SelectedRow(), -1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Centre(2, 1));
    EXPECT_EQ(list->SelectedRow(), 2);
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "0033\t2.00\tabroad");
    costs.Set({});
    EXPECT_EQ(list->SelectedRow(), -1);
    EXPECT_EQ(moves, 2);
}

TEST_F(ListViewTest, AHundredThousandRowsShowAtOnce) {
    std::vector<Cost> records(100'000, {"01632960123", "1.50"});
    QElapsedTimer watch;
    watch.start();
    costs.Set(std::move(records));
    list->scrollToBottom();
    QCoreApplication::processEvents();
    EXPECT_LT(watch.elapsed(), 1000);
    EXPECT_TRUE(list->viewport()->rect().intersects(list->visualRect(costs.index(99'999, 0))));
}

TEST_F(ListViewTest, ACellIsEditedInPlaceAndEnterWritesIt) {
    EXPECT_EQ(Edit(1, 1), nullptr) << "before editing is enabled";
    list->EnableEditing();
    EXPECT_EQ(Edit(0, 2), nullptr) << "a column that is computed";
    QLineEdit* box = Edit(1, 1);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->objectName(), "txtLabelEdit_Costs");
    EXPECT_EQ(box->geometry(), list->visualRect(costs.index(1, 1)));
    QTest::keyClicks(box, "3.25");
    EXPECT_EQ(costs.At(1).pence, "");
    QTest::keyClick(box, Qt::Key_Return);
    QCoreApplication::processEvents();  // what Enter does to the cell comes next
    EXPECT_EQ(costs.At(1).pence, "3.25");
    EXPECT_TRUE(list->hasFocus());

    QTest::keyClick(list, Qt::Key_Home);
    for (const char* text : {"0044", "1.50"}) {
        QTest::keyClick(list, Qt::Key_F2);
        box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(box, nullptr) << text;
        EXPECT_EQ(box->selectedText(), text);
        QTest::keyClick(box, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
}

TEST_F(ListViewTest, EscapeDoesNotCancelAnEditAndGoingElsewhereWritesIt) {
    list->EnableEditing();
    bool escaped = false;
    QObject::connect(new QShortcut(Qt::Key_Escape, &window), &QShortcut::activated, [&] { escaped = true; });
    QLineEdit* box = Edit(0, 0);
    QTest::keyClicks(box, "0049");
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(escaped);
    list->setFocus();
    EXPECT_EQ(costs.At(0).destination, "0049");

    QTest::keyClicks(Edit(2, 0), "1");
    box = Edit(0, 1);
    EXPECT_EQ(costs.At(2).destination, "1");
    QTest::keyClicks(box, "lost");
    costs.Remove(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(costs.At(0).pence, "") << "the edit goes with its row";
}

}  // namespace
}  // namespace tallix::toolkit
