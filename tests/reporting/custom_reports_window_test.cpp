#include "reporting/custom_reports_window.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QLabel>

#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/forms.h"

namespace tallix {
namespace {

class CustomReportsWindowTest : public test::WindowTest {
protected:
    CustomReportsWindowTest() {
        test_.application.session.CurrentAccess = std::string(42, '1');
        test_.application.session.ReportsLocation = test_.application.folder.string();
        for (const char* name : {kMainForm, kReportOutputForm}) {
            forms.Register(name, [this, name] { return std::make_unique<ui::Form>(forms, name); });
        }
        forms.Register(kCustomReportsForm, [this] {
            return std::make_unique<CustomReportsWindow>(forms, test_.application, printers_);
        });
        forms.Show(kMainForm);
    }

    void Open() { forms.Show(kCustomReportsForm); }
    template <typename Widget>
    Widget& Captioned(const QString& caption) {
        return test::Captioned<Widget>(*forms.Find(kCustomReportsForm), caption);
    }
    template <typename Widget>
    Widget& Labelled(const QString& caption) {
        return dynamic_cast<Widget&>(*Captioned<QLabel>(caption).buddy());
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
        auto& field = dynamic_cast<QLineEdit&>(*box.nextInFocusChain());
        auto& button = dynamic_cast<QPushButton&>(*field.nextInFocusChain());
        EXPECT_TRUE(button.isEnabled());
        button.click();
        box.setChecked(false);
        auto& panel = *forms.Find(kCustomReportsForm)->findChild<ui::CalendarPanel*>();
        emit panel.findChild<QCalendarWidget*>()->clicked(day);
        EXPECT_EQ(field.text().toStdString(), ShortDate({day.year(), day.month(), day.day()}));
        EXPECT_TRUE(box.isChecked());
    }

    test::TestApplication test_;
    ui::Printers printers_;
};

TEST_F(CustomReportsWindowTest, AReportIsMadeKeptAndRun) {
    test_.InsertCall();
    Open();
    EXPECT_FALSE(Captioned<QPushButton>("Run Report").isEnabled());
    Select("<Create New Report>");
    EXPECT_EQ(Labelled<QLineEdit>("Report Name:").text(), "New Report 1");
    Field(4).setCheckState(Qt::Checked);
    Labelled<QLineEdit>("Extension:").setText("201");
    Labelled<QLineEdit>("Report Name:").setText("Mine");
    Captioned<QCheckBox>("End Date").setChecked(true);
    PickAsEndDate(QDate(2099, 1, 2));
    Captioned<QPushButton>("Save Report").click();
    EXPECT_EQ(test_.prompts.messages.at(0).text, "Report Saved!");
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 1) << "not listed anew";
    Captioned<QPushButton>("Run Report").click();
    EXPECT_EQ(test_.prompts.messages.at(1).text, "No data matches your query!") << "of extension 0201";
    EXPECT_EQ(forms.Find(kCustomReportsForm), nullptr);
    EXPECT_TRUE(forms.Find(kMainForm)->isVisible());

    test_.InsertCall({{"Extension", "0201"}});
    Open();
    Select("Mine");
    EXPECT_FALSE(Labelled<QLineEdit>("Extension:").isEnabled());
    EXPECT_EQ(Field(4).checkState(), Qt::Checked);
    EXPECT_EQ(Field(5).checkState(), Qt::Unchecked);
    Captioned<QPushButton>("Run Report").click();
    EXPECT_TRUE(forms.Find(kReportOutputForm)->isVisible());
}

TEST_F(CustomReportsWindowTest, RightsHideWhatIsNotGranted) {
    test_.application.session.CurrentAccess[27] = '0';
    for (std::size_t place = 38; place < 41; ++place) test_.application.session.CurrentAccess[place] = '0';
    Open();
    EXPECT_EQ(Labelled<QListWidget>("Available Reports").count(), 0);
    EXPECT_FALSE(Captioned<QPushButton>("Save Report").isVisible());
    EXPECT_FALSE(Captioned<QPushButton>("Delete Report").isVisible());
    EXPECT_FALSE(Labelled<QListWidget>("Select data you wish to show").isEnabled());
    EXPECT_FALSE(Captioned<QRadioButton>("On Screen").isVisible());
}

}  // namespace
}  // namespace tallix
