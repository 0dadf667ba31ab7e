#include "backup/backup_format.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backup/automated_backup.h"
#include "failures/errors.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using test::ReadBytes;
using test::ReadLines;
using test::TestApplication;
using ::testing::ElementsAre;
using ::testing::StartsWith;

class AutomatedBackupTest : public ::testing::Test {
protected:
    std::filesystem::path File() const { return test.application.folder / kAutomatedBackupName; }

    TestApplication test;
};

TEST_F(AutomatedBackupTest, WritesSixTablesInTheirOrder) {
    test.Insert("tblusers", {{"Username", "4A"}, {"Password", "4B"}, {"GroupID", "0"}});
    test.Insert("tblsite", {{"ID", "001"}, {"Name", "St Mary's"}, {"Area", "01632"}});
    test.Insert("tblphonesystem", {{"SystemID", "1"}, {"Manafacturer", "Acme"}});
    test.Insert("tblextensions", {{"ExtensionNo", "2001"}, {"Name", "Café Desk"}});
    test.Insert("tblrawdata", {{"Data", "ABCDE"}, {"SiteID", "001"}});
    test.Insert("tblrawdata", {{"Data", "é12"}, {"SiteID", "001"}});
    test.InsertCall();
    std::ofstream(File()) << "left over from the night before";

    WriteAutomatedBackup(test.application);

    EXPECT_THAT(
        ReadLines(File()),
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
    EXPECT_TRUE(ReadBytes(File()).ends_with("\r\n"));
}

TEST_F(AutomatedBackupTest, StopsAtARawLineThatCannotBeCut) {
    test.InsertCall();
    for (const char* data : {"'AB'", "NULL"}) {
        test.Execute("DELETE FROM tblrawdata");
        test.Execute("INSERT INTO tblrawdata(Data, SiteID) VALUES (" + std::string(data) + ", '001')");
        EXPECT_THROW(WriteAutomatedBackup(test.application), ConversionError) << data;
        EXPECT_THAT(ReadLines(File()), ElementsAre(StartsWith("INSERT INTO tblphonedata(")))
            << "complete lines are kept";
    }
}

TEST_F(AutomatedBackupTest, FailsWhereTheFileCannotBeOpened) {
    EXPECT_THROW(BackupWriter(test.Folder() / "no folder" / "x.sbk", test.events), std::runtime_error);
}

}  // namespace
}  // namespace tallix
