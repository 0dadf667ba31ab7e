#include "backup/backup_format.h"

#include <gmock/gmock.h>

#include "backup/automated_backup.h"
#include "backup/backup_task.h"
#include "backup/zip_files.h"
#include "failures/errors.h"
#include "support/run_program.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::ReadLines;
using testing::ElementsAre;

class AutomatedBackupTest : public testing::Test {
protected:
    test::TestApplication test;
    const std::filesystem::path folder_ = test.application.folder;
    const std::filesystem::path file_ = folder_ / kAutomatedBackupName;
};

TEST_F(AutomatedBackupTest, WritesSixTablesInTheirOrder) {
    test.Insert("tblusers", {{"Username", "4A"}, {"Password", "4B"}, {"GroupID", "0"}});
    test.Insert("tblsite", {{"ID", "001"}, {"Name", "St Mary's"}, {"Area", "01632"}});
    test.Insert("tblphonesystem", {{"SystemID", "1"}, {"Manafacturer", "Acme"}});
    test.Insert("tblextensions", {{"ExtensionNo", "2001"}, {"Name", "Café Desk"}});
    for (const char* data : {"ABCDE", "é12"}) test.Insert("tblrawdata", {{"Data", data}, {"SiteID", "001"}});
    test.InsertCall();
    std::ofstream(file_) << "left over from the night before";
    WriteAutomatedBackup(test.application);
    EXPECT_THAT(
        ReadLines(file_),
        ElementsAre(
            "INSERT INTO tblphonedata(Date,Time,Duration,Extension,NumRings,OrigNum,DestNum,Internal,Error,"
            "Supervision,Speedcall,Forward,Trunk,Account,Site) VALUES "
            "('05/03/2021','10:15:00','00:02:30','201','3',"
            "'201','01632960123','0','0','0','0','0','T001','7','001')",
            "INSERT INTO tblrawdata(Data,SiteID) VALUES ('AB','001')",
            "INSERT INTO tblrawdata(Data,SiteID) VALUES ('','001')",
            "INSERT INTO tblextensions(ExtensionNo,Name) VALUES ('2001','Café Desk')",
            "INSERT INTO tblphonesystem(SystemID,Manafacturer,Model,IP,Port,Username,Password,VMNumber) "
            "VALUES "
            "('1','Acme','','','','','','')",
            "INSERT INTO tblsite(ID,Name,Email,Addy1,Addy2,Addy3,Addy4,Postcode,Area,VM,SwitchIP,SwitchPort,"
            "SwitchMapping,SystemCode) VALUES ('001','St Mary's','','','','','','','01632','','','','','')",
            "INSERT INTO tblusers(UserID,Username,Password,Email,AccessType,GroupID) VALUES "
            "('1','4A','4B','','','0')"));
    EXPECT_TRUE(ReadBytes(file_).ends_with("\r\n"));
}

TEST_F(AutomatedBackupTest, StopsAtARawLineThatCannotBeCutAndAtAFileThatCannotBeOpened) {
    test.InsertCall();
    for (const char* data : {"'AB'", "NULL"}) {
        test.Execute("DELETE FROM tblrawdata");
        test.Execute("INSERT INTO tblrawdata(Data, SiteID) VALUES (" + std::string(data) + ", '001')");
        EXPECT_THROW(WriteAutomatedBackup(test.application), ConversionError) << data;
        EXPECT_THAT(ReadLines(file_), ElementsAre(testing::StartsWith("INSERT INTO tblphonedata(")))
            << "complete lines are kept";
    }
    EXPECT_THROW(BackupWriter(test.Folder() / "no folder" / "x.sbk", test.events), std::runtime_error);
}

TEST_F(AutomatedBackupTest, IsOneDailyTaskHoweverOftenItIsSaved) {
    std::string batch;  // as it is while events are served
    test.events.onServe = [&] { batch = ReadBytes(folder_ / "CreateBKP.bat"); };
    test.crontab.Set("0 0 * * * foreign\n");
    CreateBackupTask(test.application);
    CreateBackupTask(test.application);
    EXPECT_EQ(batch, R"(schtasks /Create /RU "System" /SC Daily /ST 00:04:00 /TN "Backup TALLIX" /TR "\")" +
                         folder_.string() + R"(\Tallix_Reports.exe\" \"Backup"\")" + "\r\n");
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n# Backup TALLIX\n4 0 * * * '" +
                                       (folder_ / "Tallix_Reports").string() + "' 'Backup'\n");
    DeleteBackupTask(test.application);
    EXPECT_EQ(test.crontab.Text(), "0 0 * * * foreign\n");
    for (const auto& entry : std::filesystem::directory_iterator(folder_))
        EXPECT_TRUE(entry.is_directory()) << entry.path() << " was not deleted";
}

TEST(ZipFiles, AreReadByOtherProgramsAndUnzipped) {
    const test::TempFolder folder;
    const std::string root = folder.Path();
    folder.Write("below/a file.txt", std::string(100'000, 'x'));
    CGZipFiles zip;
    zip.ZipFileName = root + "/made.zip";
    zip.RootDirectory = root;
    zip.RecurseFolders = zip.Encrypted = true;
    zip.AskPassword = [](const std::string& question) { return question; };
    zip.AddFile("below");
    EXPECT_THROW(zip.AddFile("below"), ZipListError);
    EXPECT_THROW(zip.RemoveFile("querty"), ZipListError) << "the marker is not a file";
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    const std::string question = "Please Enter The Password!";
    EXPECT_EQ(test::RunProgram("/usr/bin/unzip", {"-P", question, "-t", zip.ZipFileName}).status, 0);

    zip.Encrypted = false;
    EXPECT_EQ(zip.MakeZipFile(), 0) << zip.GetLastMessage();
    EXPECT_LT(std::filesystem::file_size(zip.ZipFileName), 1000);
    CGUnzipFiles unzip;
    unzip.SpaceToUnderscore = unzip.HonorDirectories = unzip.PromptOverwrite = true;
    const std::filesystem::path out = folder.Write("out/below/a_file.txt", "mine");
    EXPECT_EQ(unzip.unzip(zip.ZipFileName, root + "/out"), 0) << unzip.GetLastMessage();
    EXPECT_EQ(test::ReadBytes(out), "mine");
    unzip.AskOverwrite = [](const std::string& asked) { return asked == "Overwrite a_file.txt"; };
    EXPECT_EQ(unzip.unzip("", ""), 0);
    EXPECT_EQ(std::filesystem::file_size(out), 100'000);
}

TEST(ZipFiles, ReturnTheFailureAndShowOneThatStopsTheBeginning) {
    const test::TempFolder folder;
    folder.Write("archive.tmp", "text");
    NoEvents events;
    for (const auto& [target, boxes] : {std::pair("absent/a.SAF", 0U), {"", 1U}}) {
        test::ScriptedPrompts prompts;
        EXPECT_NE(ZipFiles(events, prompts, {folder.Path() / target, {"archive.tmp"}, folder.Path()}), 0);
        EXPECT_EQ(prompts.messages.size(), boxes) << target;
    }
}

}  // namespace
}  // namespace tallix
