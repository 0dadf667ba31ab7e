#include "custody/backup_task.h"

#include <gtest/gtest.h>

#include "support/test_application.h"

namespace tallix {
namespace {

/// Reads the batch file in the pause that is left to it.
class ReadingEvents : public EventQueue {
public:
    explicit ReadingEvents(std::filesystem::path file) : file_(std::move(file)) {}
    void Serve() override { text = test::ReadBytes(file_); }
    std::string text;

private:
    std::filesystem::path file_;
};

TEST(BackupTaskTest, IsOneDailyEntryHoweverOftenItIsSaved) {
    test::TestApplication test;
    const std::filesystem::path folder = test.application.folder;
    ReadingEvents events(folder / "CreateBKP.bat");
    Application application{folder, folder, {}, test.settings, test.prompts, test.clock, events};
    test.crontab.Set("0 0 * * * foreign\n");
    CreateBackupTask(application);
    CreateBackupTask(application);
    EXPECT_EQ(events.text,
              R"(schtasks /Create /RU "System" /SC Daily /ST 00:04:00 /TN "Backup TALLIX" /TR "\")" +
                  folder.string() + R"(\Tallix_Reports.exe\" \"Backup"\")" + "\r\n");
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n# Backup TALLIX\n4 0 * * * '" +
                                       (folder / "Tallix_Reports").string() + "' 'Backup'\n");
    DeleteBackupTask(application);
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n");
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        EXPECT_TRUE(entry.is_directory()) << entry.path() << " is left behind";
    }
}

}  // namespace
}  // namespace tallix
