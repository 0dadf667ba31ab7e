#include "shell/access_logging_window.h"

#include <gmock/gmock.h>

#include "foundation/access_log.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"

namespace tallix {
namespace {

class AccessLoggingWindowTest : public test::WindowTest {
protected:
    AccessLoggingWindowTest() {
        forms.Register(kAccessLoggingForm,
                       [this] { return std::make_unique<AccessLoggingWindow>(forms, test_.application); });
        test_.Insert("tbllogging", kRow);
        Open();
    }

    void Open() {
        forms.Show(kAccessLoggingForm);
        list_ = forms.Find(kAccessLoggingForm)->findChild<ui::ListView*>();
    }

    void Click(const QString& caption) {
        test::Captioned<QPushButton>(*forms.Find(kAccessLoggingForm), caption).click();
    }

    const test::TestApplication::Row kRow = {
        {"Date", "08/03/2021"}, {"Time", "09:00"}, {"User", "Bob"}, {"Data", "Report Run - Calls"}};
    const ui::ListRow kShown = {"08/03/2021", "09:00", "Bob", "Report Run - Calls"};

    test::TestApplication test_;
    ui::ListView* list_ = nullptr;
};

TEST_F(AccessLoggingWindowTest, ShowsTheLogAndExportsIt) {
    EXPECT_EQ(forms.Find(kAccessLoggingForm)->windowTitle(), "Tallix Reports Tool - Access Logging");
    EXPECT_THAT(list_->Rows().All(), testing::ElementsAre(kShown));
    Click("Export Log");
    EXPECT_THAT(test::ReadLines(test_.application.folder / "AccessLog.txt"),
                testing::ElementsAre("08/03/2021,09:00,Bob,Report Run - Calls"));
    EXPECT_THAT(test_.prompts.messages, testing::IsEmpty());
}

TEST_F(AccessLoggingWindowTest, KeepsTheClearedRowsUntilItIsOpenedAgain) {
    Click("Clear Log");
    EXPECT_THAT(list_->Rows().All(), testing::ElementsAre(kShown));
    EXPECT_THAT(test_.prompts.messages, testing::IsEmpty()) << "clearing is not asked about";
    Click("Exit Logging Screen");
    Open();
    EXPECT_THAT(list_->Rows().All(),
                testing::ElementsAre(ui::ListRow{"09/03/2021", "14:05", "Ann", "Access Log Cleared!"}));
}

TEST_F(AccessLoggingWindowTest, GivesWayToTheOptionsHoweverItIsClosed) {
    forms.Register(kOptionsForm, [this] { return std::make_unique<ui::Form>(forms, "Options"); });
    forms.Load(kOptionsForm);
    forms.Find(kAccessLoggingForm)->close();
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kOptionsForm));
    EXPECT_TRUE(forms.Find(kOptionsForm)->isVisible());
}

}  // namespace
}  // namespace tallix
