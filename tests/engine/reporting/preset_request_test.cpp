#include "reporting/preset_request.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::TestApplication;
using ::testing::ElementsAre;

TEST(PresetChoicesTest, ListsReportsSitesAndGroups) {
    TestApplication test;
    test.WriteReport("By Day", {}, {});
    test.WriteReport("All Calls", {}, {});
    for (const char* id : {"1", "12", "003"}) test.Insert("tblsite", {{"ID", id}});
    test.Insert("tblgroupnames", {{"Name", "Sales & \"Care\""}});

    const PresetChoices choices = ReadPresetChoices(test.application);
    EXPECT_THAT(choices.reports, ElementsAre("All Calls", "By Day"));
    EXPECT_THAT(choices.sites, ElementsAre("ALL", "001", "012", "003"));
    EXPECT_THAT(choices.groups, ElementsAre("ALL", "Sales & \"Care\""));

    test.application.session.database.server = "sqlite:/nowhere/at/all.db";
    EXPECT_THROW(ReadPresetChoices(test.application), DatabaseError);
}

TEST(EnabledInputsTest, AreThoseThatSayTrue) {
    const test::TempFolder folder;
    const auto file = folder.Write("STD_x.SRT",
                                   "[Data]\r\nTime=True\r\n[Options]\r\nDate=True\r\nDuration=tRUE\r\n"
                                   "Extension=-1\r\nAccount=False\r\nSite=\r\nGroup=Truer\r\n");
    const EnabledInputs enabled(file);
    EXPECT_TRUE(enabled[Input::Date]);
    EXPECT_TRUE(enabled[Input::Duration]);
    for (const Input off : {Input::Extension, Input::Account, Input::Site, Input::Group, Input::Time}) {
        EXPECT_FALSE(enabled[off]) << static_cast<int>(off);
    }
    EXPECT_TRUE(EnabledInputs(folder.Path() / "std_X.srt")[Input::Date]);
    EXPECT_FALSE(EnabledInputs(folder.Path() / "gone.SRT")[Input::Date]);
}

TEST(RefusalTest, NamesTheFirstDemandThatIsNotMet) {
    struct Case {
        std::string extension, account;
        bool demandsExtension, demandsAccount;
        std::string opening;  ///< of the refusal; empty for none
    };
    const std::string noExtension = "You have not entered a value for extension number. This",
                      badExtension = "You have not entered a numeric value for extension number. This",
                      noAccount = "You have not entered a value for account code. This",
                      badAccount = "You have not entered a numeric value for account code. This";
    const Case cases[] = {
        {"", "", false, false, ""},         {"abc", "x", false, false, ""},
        {"", "", true, true, noExtension},  {"20a", "", true, true, badExtension},
        {"201", "", true, true, noAccount}, {"1e3", "7b", true, true, badAccount},
        {"", "1.5", false, true, ""},       {"1.5", "", true, false, ""},
    };
    ReportFlags flags;
    for (const Case& c : cases) {
        const auto refusal = RefusalOf({.flags = flags,
                                        .reportFile = "x",
                                        .inputs = {.extension = c.extension, .account = c.account},
                                        .demandsExtension = c.demandsExtension,
                                        .demandsAccount = c.demandsAccount});
        ASSERT_EQ(refusal.has_value(), !c.opening.empty()) << c.extension << ", " << c.account;
        if (!refusal) continue;
        EXPECT_EQ(refusal->text, c.opening + " report requires this value to run!");
        EXPECT_EQ(refusal->title, "Tallix Reports");
        EXPECT_EQ(refusal->icon, MessageIcon::Exclamation);
    }
}

}  // namespace
}  // namespace tallix
