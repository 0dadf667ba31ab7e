#include "windows/backup/backup_window.h"

#include <gmock/gmock.h>

#include "support/form_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class BackupWindowTest : public test::FormTest {
protected:
    BackupWindowTest() {
        AddEmptyForms({kMainForm});
        UnderTest<BackupWindow>(kBackupForm, world.application, channel_);
        forms.Show(kMainForm);
    }

    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const Message& message : world.prompts.messages) titles.push_back(message.title);
        return titles;
    }

    BackupChannel channel_;
};

TEST_F(BackupWindowTest, BacksUpAndRestores) {
    world.InsertCall();
    const std::string file = world.Folder() / "a.sbk";
    Click("BEGIN BACKUP");
    world.prompts.paths = {file};
    Click("Browse");
    EXPECT_EQ(Tipped("Enter a name for the backup").text(), "a.sbk");
    Captioned<QCheckBox>("Backup Processed Call Data").setChecked(true);
    Click("BEGIN BACKUP");
    EXPECT_FALSE(IsLoaded());
    EXPECT_TRUE(IsVisible(kMainForm));
    EXPECT_THAT(test::ReadLines(file), ElementsAre(testing::StartsWith("INSERT INTO tblphonedata(")));

    Click("BEGIN RESTORE");
    world.prompts.answers = {Answer::Yes};
    Click("BEGIN RESTORE");
    Tipped("Enter a location of the backup").setText(file.c_str());
    Tipped("Enter a location for the backup").setText((world.Folder() / "other").c_str());
    Captioned<QCheckBox>("Restore Processed Call Data").setChecked(true);
    world.prompts.answers = {Answer::Yes};
    Click("BEGIN RESTORE");
    EXPECT_THAT(Titles(), ElementsAre("Backup", "Backup Complete", "Restore", "Restore", "Backup", "Restore",
                                      "Restore Complete"));
    EXPECT_TRUE(std::filesystem::exists(world.Folder() / "other"));
    EXPECT_THROW(channel_.RequireFree(), std::runtime_error);
    EXPECT_THAT(Logged(), ElementsAre("Backup Created - " + file, "Data Restored - " + file));
}

TEST_F(BackupWindowTest, ShowsWhatTheRightsGrant) {
    for (const AccessRight right : {AccessRight::Backup, AccessRight::RestoreRawData}) {
        world.application.session.CurrentAccess.Refuse(right);
    }
    EXPECT_FALSE(Button("BEGIN BACKUP").isVisible());
    EXPECT_TRUE(Captioned<QLabel>("You do not have access to backup").isVisible());
    EXPECT_FALSE(Captioned<QLabel>("You do not have access to restore").isVisible());
    EXPECT_TRUE(Captioned<QCheckBox>("Restore System Options").isVisible());
    EXPECT_FALSE(Captioned<QCheckBox>("Restore RAW Call Data").isVisible());
}

}  // namespace
}  // namespace tallix
