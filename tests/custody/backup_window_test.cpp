#include "custody/backup_window.h"

#include <gmock/gmock.h>

#include <QLabel>

#include "foundation/access_log.h"
#include "foundation/form_names.h"
#include "support/captioned.h"
#include "support/test_application.h"
#include "support/window_test.h"
#include "ui/forms.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class BackupWindowTest : public test::WindowTest {
protected:
    BackupWindowTest() {
        test_.application.session.CurrentAccess = std::string(42, '1');
        forms.Register(kMainForm, [this] { return std::make_unique<ui::Form>(forms, "Main"); });
        forms.Register(kBackupForm,
                       [this] { return std::make_unique<BackupWindow>(forms, test_.application, channel_); });
        forms.Show(kMainForm);
    }
    template <typename Widget>
    Widget& Captioned(const QString& caption) {
        return test::Captioned<Widget>(*forms.Find(kBackupForm), caption);
    }
    QLineEdit& Field(const QString& tip) {
        for (QLineEdit* field : forms.Find(kBackupForm)->findChildren<QLineEdit*>()) {
            if (field->toolTip() == tip) return *field;
        }
        throw std::runtime_error(tip.toStdString());
    }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const Message& message : test_.prompts.messages) titles.push_back(message.title);
        return titles;
    }

    test::TestApplication test_;
    BackupChannel channel_;
};

TEST_F(BackupWindowTest, BacksUpAndRestores) {
    test_.InsertCall();
    const std::string file = test_.Folder() / "a.sbk";
    forms.Show(kBackupForm);
    Captioned<QPushButton>("BEGIN BACKUP").click();
    test_.prompts.paths = {file};
    Captioned<QPushButton>("Browse").click();
    EXPECT_EQ(Field("Enter a name for the backup").text(), "a.sbk");
    Captioned<QCheckBox>("Backup Processed Call Data").setChecked(true);
    Captioned<QPushButton>("BEGIN BACKUP").click();
    EXPECT_EQ(forms.Find(kBackupForm), nullptr);
    EXPECT_TRUE(forms.Find(kMainForm)->isVisible());
    EXPECT_THAT(test::ReadLines(file), ElementsAre(testing::StartsWith("INSERT INTO tblphonedata(")));

    forms.Show(kBackupForm);
    Captioned<QPushButton>("BEGIN RESTORE").click();
    test_.prompts.answers = {Answer::Yes};
    Captioned<QPushButton>("BEGIN RESTORE").click();
    Field("Enter a location of the backup").setText(file.c_str());
    Field("Enter a location for the backup").setText((test_.Folder() / "other").c_str());
    Captioned<QCheckBox>("Restore Processed Call Data").setChecked(true);
    test_.prompts.answers = {Answer::Yes};
    Captioned<QPushButton>("BEGIN RESTORE").click();
    EXPECT_THAT(Titles(), ElementsAre("Backup", "Backup Complete", "Restore", "Restore", "Backup", "Restore",
                                      "Restore Complete"));
    EXPECT_TRUE(std::filesystem::exists(test_.Folder() / "other"));
    EXPECT_THROW(channel_.RequireFree(), std::runtime_error);
    std::vector<std::string> events;
    for (const AccessLogRow& row : ReadAccessLog(test_.application.session)) events.push_back(row.at(3));
    EXPECT_THAT(events, ElementsAre("Backup Created - " + file, "Data Restored - " + file));
}

TEST_F(BackupWindowTest, ShowsWhatTheRightsGrant) {
    std::string& access = test_.application.session.CurrentAccess;
    for (const AccessRight right : {AccessRight::Backup, AccessRight::RestoreRawData}) {
        access[static_cast<std::size_t>(right)] = '0';
    }
    forms.Show(kBackupForm);
    EXPECT_FALSE(Captioned<QPushButton>("BEGIN BACKUP").isVisible());
    EXPECT_TRUE(Captioned<QLabel>("You do not have access to backup").isVisible());
    EXPECT_FALSE(Captioned<QLabel>("You do not have access to restore").isVisible());
    EXPECT_TRUE(Captioned<QCheckBox>("Restore System Options").isVisible());
    EXPECT_FALSE(Captioned<QCheckBox>("Restore RAW Call Data").isVisible());
}

}  // namespace
}  // namespace tallix
