#include "windows/reporting/custom_reports_window.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>

#include "support/form_test.h"

namespace tallix {
namespace {

class CustomReportsWindowTest : public test::FormTest {
protected:
    CustomReportsWindowTest() {
        world.application.session.ReportsLocation = world.application.folder.string();
        AddEmptyForms({kMainForm, kReportOutputForm});
        UnderTest<CustomReportsWindow>(kCustomReportsForm, world.application, printers_);
        forms.Show(kMainForm);
    }

    void Select(const QString& report) {
        auto& list = Labelled<QListWidget>("Available Reports");
        list.setCurrentItem(list.findItems(report, Qt::MatchExactly).value(0));
    }
    QListWidgetItem& Field(int place) {
        return *Labelled<QListWidget>("Select data you wish to show").item(place);
    }

    // The button comes to life with its box, and the day brings the box back.
    void PickAsEndDate(const QDate& day) {
        auto& box = Captioned<QCheckBox>("End Date");
        auto& date = *Window().findChild<toolkit::DateInput*>("End Date");
        QPushButton& button = date.CalendarButton();
        EXPECT_TRUE(button.isEnabled());
        button.click();
        box.setChecked(false);
        auto& panel = *date.findChild<toolkit::CalendarPanel*>();
        emit panel.findChild<QCalendarWidget*>()->clicked(day);
        EXPECT_EQ(date.Text(), ShortDate({day.year(), day.month(), day.day()}));
        EXPECT_TRUE(box.isChecked());
    }

    toolkit::Printers printers_;
};

TEST_F(CustomReportsWindowTest, AReportIsMadeKeptAndRun) {
    world.InsertCall();
    EXPECT_FALSE(Button("Run Report").isEnabled());
    Select("<Create New Report>");
    EXPECT_EQ(Labelled("Report Name:").text(), "New Report 1");
    Field(4).setCheckState(Qt::Checked);
    Type("Extension:", "201");
    Type("Report Name:", "Mine");
    Captioned<QCheckBox>("End Date").setChecked(true);
    PickAsEndDate(QDate(2099, 1, 2));
    Click("Save Report");
    EXPECT_EQ(world.prompts.messages.at(0).text, "Report Saved!");
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 1) << "not listed anew";
    Click("Run Report");
    EXPECT_EQ(world.prompts.messages.at(1).text, "No data matches your query!") << "of extension 0201";
    EXPECT_FALSE(IsLoaded());
    EXPECT_TRUE(IsVisible(kMainForm));

    world.InsertCall({{"Extension", "0201"}});
    Select("Mine");
    EXPECT_FALSE(Labelled("Extension:").isEnabled());
    EXPECT_EQ(Field(4).checkState(), Qt::Checked);
    EXPECT_EQ(Field(5).checkState(), Qt::Unchecked);
    Click("Run Report");
    EXPECT_TRUE(IsVisible(kReportOutputForm));
}

TEST_F(CustomReportsWindowTest, RightsHideWhatIsNotGranted) {
    for (const AccessRight right : {AccessRight::CallCostMappings, AccessRight::DeleteCustomReport,
                                    AccessRight::SaveCustomReport, AccessRight::CustomReportDestination}) {
        world.application.session.CurrentAccess.Refuse(right);
    }
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 0);
    EXPECT_FALSE(Button("Save Report").isVisible());
    EXPECT_FALSE(Button("Delete Report").isVisible());
    EXPECT_FALSE(Labelled<QListWidget>("Select data you wish to show").isEnabled());
    EXPECT_FALSE(Captioned<QRadioButton>("On Screen").isVisible());
}

}  // namespace
}  // namespace tallix
