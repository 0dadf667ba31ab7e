#include "windows/costing/call_costings_window.h"

#include "costing/costings.h"
#include "support/form_test.h"
#include "windows/costing/call_cost_map_window.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class CallCostingsWindowTest : public test::FormTest {
protected:
    static void EnterInCell(const QString& text) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();  // the cell is written from the event loop
    }
};

TEST_F(CallCostingsWindowTest, EditsTheListAndStoresItOnlyWhenAsked) {
    SaveCostings(world.application.session, world.settings,
                 {"1.20", {{"0845", "5.00"}, {"09", "9.00"}}, BillingUnit::Second});
    UnderTest<CallCostingsWindow>(kCallCostingsForm, world.application);
    Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Click("Delete");
    Type("Number:", "0800");
    Click("Add");
    Type("Cost:", "0.00");
    Click("Add");
    SelectRow(1);
    Click("Delete");
    EXPECT_THAT(Rows(), ElementsAre(ElementsAre("0845", "5.00"), ElementsAre("0800", "0.00")));
    const QPoint cost = List().visualRect(List().model()->index(1, 1)).center();
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, cost);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, cost);
    EnterInCell("7.50");
    QTest::keyClick(&List(), Qt::Key_F2);
    EnterInCell("0801");
    EXPECT_TRUE(world.prompts.messages.empty());
    Click("Save Costings");
    EXPECT_EQ(LastMessage().text, "Costings saved!");
    Click("Create New");
    Click("Exit Costings Screen");
    const Costings stored = LoadCostings(world.application.session, world.settings);
    EXPECT_THAT(stored.rows, ElementsAre(TariffRow{"0845", "5.00"}, TariffRow{"0801", "7.50"}));
    EXPECT_EQ(stored.standardCost, "1.20");
    EXPECT_EQ(stored.unit, BillingUnit::Second);
}

TEST_F(CallCostingsWindowTest, ACostMapWithALongChargeIsRefused) {
    world.Execute("INSERT INTO tblareaproviders(Code, Area) VALUES ('020', 'London')");
    UnderTest<CallCostMapWindow>(kCallCostMapForm, world.application);
    Click("Populate From DB");
    SetCell(0, 1, "LL");
    Click("Save Costings");
    EXPECT_EQ(LastMessage().icon, MessageIcon::Critical);
    SetCell(0, 1, "M");
    Click("Save Costings");
    EXPECT_EQ(LastMessage().text, "Cost map saved!");
}

}  // namespace
}  // namespace tallix
