#include "toolkit/list_view.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QTest>

#include "support/window_test.h"
#include "toolkit/label_edit.h"

namespace tallix::toolkit {
namespace {

class ListViewTest : public test::WindowTest {
protected:
    ListViewTest() {
        list = new ListView({{"Destination", 1500}, {"Cost", 750, Qt::AlignHCenter}}, &window);
        list->setObjectName("Costs");
        list->setGeometry(10, 20, 400, 200);
        list->Rows().Set({{"0044", "1.50"}, {"001"}, {"0033", "2.00", "unseen"}});
        window.resize(420, 240);
        window.show();
    }

    QPoint Centre(int row, int column) const {
        return list->visualRect(list->Rows().index(row, column)).center();
    }

    QWidget window;
    ListView* list = nullptr;
};

TEST_F(ListViewTest, ShowsTextInColumnsOfTheirWidthInTheOrderAdded) {
    list->Rows().Append({"z"});
    list->Rows().Append({"a", "0"});
    list->Rows().Remove(0);
    EXPECT_EQ(list->Rows().Count(), 4);
    EXPECT_EQ(list->Rows().Text(2, 0), "z");
    EXPECT_EQ(list->Rows().Text(2, 1), "");
    EXPECT_EQ(list->Rows().All()[1], (ListRow{"0033", "2.00", "unseen"}));

    EXPECT_EQ(list->columnWidth(0), 1500 * list->fontMetrics().horizontalAdvance('0') / 90);
    EXPECT_EQ(list->header()->length(), list->viewport()->width()) << "the last column takes the rest";
    EXPECT_EQ(list->Rows().headerData(1, Qt::Horizontal, Qt::DisplayRole), "Cost");
    const QVariant alignment = list->Rows().data(list->Rows().index(0, 1), Qt::TextAlignmentRole);
    EXPECT_EQ(alignment.toInt(), Qt::AlignHCenter | Qt::AlignVCenter);
}

TEST_F(ListViewTest, OneRowIsSelectedAndCopied) {
    int moves = 0;
    QObject::connect(list, &ListView::SelectionMoved, [&] { ++moves; });
    EXPECT_EQ(list->SelectedRow(), -1);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, Centre(2, 1));
    EXPECT_EQ(list->SelectedRow(), 2);
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "0033\t2.00");
    list->Rows().Set({});
    EXPECT_EQ(list->SelectedRow(), -1);
    EXPECT_EQ(moves, 2);
}

TEST_F(ListViewTest, AHundredThousandRowsShowAtOnce) {
    std::vector<ListRow> rows(100'000,
                              {"09/03/2021", "14:05", "Administrator", "Report Run - Calls By Site"});
    QElapsedTimer watch;
    watch.start();
    list->Rows().Set(std::move(rows));
    list->scrollToBottom();
    QCoreApplication::processEvents();
    EXPECT_LT(watch.elapsed(), 1000);
    EXPECT_TRUE(list->viewport()->rect().intersects(list->visualRect(list->Rows().index(99'999, 0))));
}

class LabelEditTest : public ListViewTest {
protected:
    LabelEditTest() : box(new LabelEdit(*list, window)) {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void Open(int row, int column) const {
        const QPoint place = Centre(row, column);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
    }

    LabelEdit* box;
};

TEST_F(LabelEditTest, LiesOverTheCellWithItsTextSelectedAndWritesBackOnEnter) {
    EXPECT_EQ(window.findChild<QLineEdit*>("txtLabelEdit_Costs"), box);
    EXPECT_FALSE(box->isVisible());
    Open(1, 1);
    EXPECT_TRUE(box->isVisible());
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(box->mapToGlobal(QPoint()),
              list->viewport()->mapToGlobal(list->visualRect(list->Rows().index(1, 1)).topLeft()));
    EXPECT_EQ(box->size(), list->visualRect(list->Rows().index(1, 1)).size());
    QTest::keyClicks(box, "3.25");
    EXPECT_EQ(list->Rows().Text(1, 1), "");
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(list->Rows().All()[1], (ListRow{"001", "3.25"}));

    Open(0, 0);
    EXPECT_EQ(box->selectedText(), "0044");
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, QPoint(20, 150));
    EXPECT_EQ(list->Rows().Text(0, 0), "0044");
}

TEST_F(LabelEditTest, EscapeDoesNotCancelAndGoingElsewhereWritesBack) {
    bool escaped = false;
    QObject::connect(new QShortcut(Qt::Key_Escape, &window), &QShortcut::activated, [&] { escaped = true; });
    Open(0, 0);
    QTest::keyClicks(box, "0049");
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(escaped);
    list->setFocus();
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(list->Rows().Text(0, 0), "0049");

    Open(2, 0);
    QTest::keyClicks(box, "1");
    Open(0, 1);
    EXPECT_EQ(list->Rows().Text(2, 0), "1");
    QTest::keyClicks(box, "9");
    list->setColumnWidth(0, 40);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(list->Rows().Text(0, 1), "9");
}

TEST_F(LabelEditTest, ARowThatGoesTakesItsEditWithIt) {
    Open(2, 0);
    QTest::keyClicks(box, "lost");
    list->Rows().Remove(2);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(list->Rows().Count(), 2);
    Open(1, 0);
    list->Rows().Set({});
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(list->Rows().Count(), 0);
}

}  // namespace
}  // namespace tallix::toolkit
