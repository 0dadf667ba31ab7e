#include "windows/administration/record_list.h"

#include <gtest/gtest.h>

#include <QTest>
#include <functional>

#include "support/window_test.h"

namespace tallix {
namespace {

class RecordListTest : public test::WindowTest {
protected:
    RecordListTest() {
        list_.AddButton({.caption = "Add"}, [this] { list_.Append("new"); });
        page_.setLayout(list_.Layout(Heading::Shown));
        list_.Set({"one", "two", "three"});
        page_.show();
    }

    void Select(int row) { list_.View().setCurrentIndex(list_.View().Model().index(row, 0)); }

    QWidget page_;
    RecordList<std::string>& list_ =
        *new RecordList<std::string>("Names", {{"Name", std::identity()}}, page_);
    QPushButton& delete_ =
        list_.AddButton({.caption = "Delete", .actsOn = ActsOn::Record, .right = AccessRight::DeleteUser},
                        [this] { list_.RemoveSelected(); });
};

TEST_F(RecordListTest, NothingIsSelectedAfterARemovalOrAReload) {
    EXPECT_FALSE(delete_.isEnabled());
    for (const int row : {1, 1, 0}) {
        Select(row);
        EXPECT_TRUE(delete_.isEnabled());
        const std::size_t before = list_.All().size();
        QTest::mouseClick(&delete_, Qt::LeftButton);
        QTest::mouseDClick(&delete_, Qt::LeftButton);
        QTest::mouseRelease(&delete_, Qt::LeftButton);
        EXPECT_EQ(list_.All().size(), before - 1) << "the second click finds the button off";
        EXPECT_EQ(list_.Selected(), nullptr);
        EXPECT_FALSE(delete_.isEnabled());
    }
    list_.Set({"one"});
    Select(0);
    list_.Set({"two"});
    EXPECT_FALSE(delete_.isEnabled());
}

TEST_F(RecordListTest, AnActivatedRecordPressesOnlyAVisibleButton) {
    list_.PressOnActivation(delete_);
    for (const bool granted : {false, true}) {
        list_.ApplyRights(granted ? AccessRights::All() : AccessRights());
        EXPECT_EQ(delete_.isVisible(), granted);
        Select(0);
        QTest::keyClick(&list_.View(), Qt::Key_Return);
        EXPECT_EQ(list_.All().size(), granted ? 2U : 3U);
    }
}

}  // namespace
}  // namespace tallix
