#include "windows/backup/backup_window.h"

#include <QThread>

#include "support/form_test.h"
#include "windows/backup/archive_window.h"

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
    EXPECT_TRUE(!IsLoaded() && IsVisible(kMainForm));
    EXPECT_THAT(test::ReadLines(file), ElementsAre(testing::StartsWith("INSERT INTO tblphonedata(")));

    Click("BEGIN RESTORE");
    world.prompts.answers = {Answer::Yes};
    Click("BEGIN RESTORE");
    Tipped("Enter a location of the backup").setText(file.c_str());
    Tipped("Enter a location for the backup").setText((world.Folder() / "other").c_str());
    Captioned<QCheckBox>("Restore Processed Call Data").setChecked(true);
    world.prompts.answers = {Answer::Yes};
    Click("BEGIN RESTORE");
    std::string titles;
    for (const Message& message : world.prompts.messages) titles += message.title + "; ";
    EXPECT_EQ(titles, "Backup; Backup Complete; Restore; Restore; Backup; Restore; Restore Complete; ");
    EXPECT_TRUE(std::filesystem::exists(world.Folder() / "other"));
    EXPECT_THROW(channel_.RequireFree(), std::runtime_error);
    EXPECT_THAT(Logged(), ElementsAre("Backup Created - " + file, "Data Restored - " + file));
}

TEST_F(BackupWindowTest, ShowsWhatTheRightsGrant) {
    for (const AccessRight right : {AccessRight::Backup, AccessRight::RestoreRawData}) {
        world.application.session.CurrentAccess.Refuse(right);
    }
    EXPECT_TRUE(Captioned<QLabel>("You do not have access to backup").isVisible());
    EXPECT_FALSE(Captioned<QLabel>("You do not have access to restore").isVisible());
    EXPECT_TRUE(Captioned<QCheckBox>("Restore System Options").isVisible());
    EXPECT_FALSE(Captioned<QCheckBox>("Restore RAW Call Data").isVisible());
}

class ArchiveWindowTest : public test::FormTest {
protected:
    // With a service manager of the test's own, which notes what it is asked.
    ArchiveWindowTest() {
        const auto manager = world.Folder() / "bin/systemctl";
        std::filesystem::create_directory(manager.parent_path());
        std::ofstream(manager) << "#!/bin/sh\necho $2 $3 >>" << asked_.string();
        std::filesystem::permissions(manager, std::filesystem::perms::owner_all);
        qputenv("PATH", QByteArray::fromStdString(manager.parent_path()) + ":" + path_);
        AddEmptyForms({kMainForm});
        UnderTest<ArchiveWindow>(kArchiveForm, world.application);
    }
    ~ArchiveWindowTest() override { qputenv("PATH", path_); }

    /// Returns whether the progress is shown when the action is over.
    bool Begin(Answer answer = Answer::Yes) {
        world.prompts.answers = {answer};
        Click("BEGIN ARCHIVE");
        return Captioned<QLabel>("Please Wait").isVisible();
    }
    void ExpectAsked(const std::string& asked) const {
        for (int i = 0; i < 300 && test::ReadBytes(asked_) != asked; ++i) QThread::msleep(10);
        EXPECT_EQ(test::ReadBytes(asked_), asked);
    }

    const QByteArray path_ = qgetenv("PATH");
    const std::filesystem::path asked_ = world.Folder() / "asked";
};

TEST_F(ArchiveWindowTest, StaysWithItsProgressShownUntilTheRequestIsComplete) {
    auto& year = Tipped("Enter year to archive");
    auto& location = Tipped("Location of archive file");
    world.InsertCall({{"Date", "05/03/2020"}});
    EXPECT_FALSE(Begin(Answer::No));
    world.prompts.paths = {"/old.saf"};
    Click("Browse");
    EXPECT_EQ(location.text(), "/old.saf.SAF");
    Captioned<QLineEdit>("old.saf").clear();
    EXPECT_TRUE(Begin()) << "no name";
    ExpectAsked("stop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("To Database").click();
    EXPECT_FALSE(location.isEnabled());
    EXPECT_TRUE(Begin()) << "no month";
    ExpectAsked("stop TALLIX_COLLECTOR\nstop TALLIX_COLLECTOR\n");
    Captioned<QRadioButton>("Entire Year").click();
    EXPECT_FALSE(Window().findChild<QComboBox*>()->isEnabled());
    year.setText("2020");
    EXPECT_FALSE(Begin());
    EXPECT_FALSE(Captioned<QRadioButton>("Entire Year").isChecked() || year.isEnabled());
    EXPECT_TRUE(Captioned<QPushButton>("Browse").isEnabled());
    EXPECT_TRUE(Begin()) << "no period";
    Click("Close");
    EXPECT_THAT(forms.Loaded(), testing::ElementsAre(kMainForm));
}

}  // namespace
}  // namespace tallix
