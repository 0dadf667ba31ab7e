#include "backup/backup_task.h"

#include <gtest/gtest.h>

#include "support/test_application.h"

namespace tallix {
namespace {

TEST(BackupTaskTest, IsOneDailyEntryHoweverOftenItIsSaved) {
    test::TestApplication test;
    const std::filesystem::path folder = test.application.folder;
    std::string batch;  // as it is while events are served
    test.events.onServe = [&] { batch = test::ReadBytes(folder / "CreateBKP.bat"); };
    test.crontab.Set("0 0 * * * foreign\n");
    CreateBackupTask(test.application);
    CreateBackupTask(test.application);
    EXPECT_EQ(batch, R"(schtasks /Create /RU "System" /SC Daily /ST 00:04:00 /TN "Backup TALLIX" /TR "\")" +
                         folder.string() + R"(\Tallix_Reports.exe\" \"Backup"\")" + "\r\n");
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n# Backup TALLIX\n4 0 * * * '" +
                                       (folder / "Tallix_Reports").string() + "' 'Backup'\n");
    DeleteBackupTask(test.application);
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n");
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_TRUE(entry.is_directory()) << entry.path() << " was not deleted";
    }
}

}  // namespace
}  // namespace tallix
