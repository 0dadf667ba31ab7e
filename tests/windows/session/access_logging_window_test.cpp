#include "windows/session/access_logging_window.h"

#include <gmock/gmock.h>

#include "support/form_test.h"

namespace tallix {
namespace {

class AccessLoggingWindowTest : public test::FormTest {
protected:
    AccessLoggingWindowTest() {
        UnderTest<AccessLoggingWindow>(kAccessLoggingForm, world.application);
        AddEmptyForms({kOptionsForm});
        world.Insert(
            "tbllogging",
            {{"Date", "08/03/2021"}, {"Time", "09:00"}, {"User", "Bob"}, {"Data", "Report Run - Calls"}});
    }

    const std::vector<std::string> kShown = {"08/03/2021", "09:00", "Bob", "Report Run - Calls"};
};

TEST_F(AccessLoggingWindowTest, ShowsTheLogAndExportsIt) {
    EXPECT_THAT(Rows(), testing::ElementsAre(kShown));
    Click("Export Log");
    EXPECT_THAT(test::ReadLines(world.application.folder / "AccessLog.txt"),
                testing::ElementsAre("08/03/2021,09:00,Bob,Report Run - Calls"));
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty());
}

TEST_F(AccessLoggingWindowTest, KeepsTheClearedRowsUntilItIsOpenedAgainFromTheOptions) {
    Click("Clear Log");
    EXPECT_THAT(Rows(), testing::ElementsAre(kShown));
    EXPECT_THAT(world.prompts.messages, testing::IsEmpty()) << "clearing is not asked about";
    Click("Exit Logging Screen");
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kOptionsForm));
    EXPECT_TRUE(IsVisible(kOptionsForm));
    EXPECT_THAT(Rows(), testing::ElementsAre(
                            std::vector<std::string>{"09/03/2021", "14:05", "Ann", "Access Log Cleared!"}));
}

}  // namespace
}  // namespace tallix
