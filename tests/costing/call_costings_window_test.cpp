#include "costing/call_costings_window.h"

#include <gmock/gmock.h>

#include <QLabel>
#include <QTest>

#include "costing/call_cost_map_window.h"
#include "costing/costings.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/label_edit.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class CallCostingsWindowTest : public test::WindowTest {
protected:
    template <typename Window>
    void Open(const char* name) {
        forms.Register(name, [this] { return std::make_unique<Window>(forms, test_.application); });
        forms.Show(name);
        window_ = forms.Find(name);
        window_->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    }

    void Click(const QString& caption) { test::Captioned<QPushButton>(*window_, caption).click(); }

    void Type(const QString& label, const QString& text) {
        dynamic_cast<QLineEdit&>(*test::Captioned<QLabel>(*window_, label).buddy()).setText(text);
    }

    ui::ListView& List() { return *window_->findChild<ui::ListView*>(); }

    test::TestApplication test_;
    ui::Form* window_ = nullptr;
};

TEST_F(CallCostingsWindowTest, EditsTheListAndStoresItOnlyWhenAsked) {
    SaveCostings(test_.application.session, test_.settings,
                 {"1.20", {{"0845", "5.00"}, {"09", "9.00"}}, true});
    Open<CallCostingsWindow>(kCallCostingsForm);
    EXPECT_TRUE(test::Captioned<QRadioButton>(*window_, "Per Second Billing").isChecked());
    Click("Delete");
    Type("Number:", "0800");
    Click("Add");
    Type("Cost:", "0.00");
    Click("Add");
    List().setCurrentIndex(List().model()->index(1, 0));
    Click("Delete");
    EXPECT_THAT(List().Rows().All(), ElementsAre(ui::ListRow{"0845", "5.00"}, ui::ListRow{"0800", "0.00"}));
    const QPoint cost = List().visualRect(List().model()->index(1, 1)).center();
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, cost);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, cost);
    QTest::keyClicks(window_->findChild<ui::LabelEdit*>(), "7.50");
    QTest::keyClick(window_->findChild<ui::LabelEdit*>(), Qt::Key_Return);
    QTest::keyClick(&List(), Qt::Key_F2);
    QTest::keyClicks(window_->findChild<ui::LabelEdit*>(), "0801");
    QTest::keyClick(window_->findChild<ui::LabelEdit*>(), Qt::Key_Return);
    EXPECT_TRUE(test_.prompts.messages.empty());
    Click("Save Costings");
    EXPECT_EQ(test_.prompts.messages.at(0).text, "Costings saved!");
    Click("Create New");
    Click("Exit Costings Screen");
    const Costings stored = LoadCostings(test_.application.session, test_.settings);
    EXPECT_THAT(stored.rows, ElementsAre(TariffRow{"0845", "5.00"}, TariffRow{"0801", "7.50"}));
    EXPECT_EQ(stored.standardCost, "1.20");
}

TEST_F(CallCostingsWindowTest, ACostMapWithALongChargeIsRefused) {
    test_.Execute("INSERT INTO tblareaproviders(Code, Area) VALUES ('020', 'London')");
    Open<CallCostMapWindow>(kCallCostMapForm);
    Click("Populate From DB");
    List().Rows().SetText(0, 1, "LL");
    Click("Save Costings");
    EXPECT_EQ(test_.prompts.messages.at(0).icon, MessageIcon::Critical);
    List().Rows().SetText(0, 1, "M");
    Click("Save Costings");
    EXPECT_EQ(test_.prompts.messages.at(1).text, "Cost map saved!");
    EXPECT_TRUE(test::Captioned<QPushButton>(*window_, "Create New").isEnabled());
}

}  // namespace
}  // namespace tallix
