#include "reporting/destinations.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "reporting/external_applications.h"
#include "reporting/report_run.h"
#include "support/test_application.h"

namespace tallix {
namespace {

using testing::ElementsAre;

constexpr char kOffice[] = "Software\\Microsoft\\Office\\";
constexpr char kNotera[] = "Software\\Quillmere Software\\Notera\\";

class RecordedWindows : public DeliveryWindows {
public:
    void LoadReportOutput() override { calls.emplace_back("load"); }
    void ShowReportOutput() override { calls.emplace_back("show"); }
    void UnloadReportOutput() override { calls.emplace_back("unload"); }
    void PrintReportOutput() override { calls.emplace_back("print"); }
    void UnloadRequest() override { calls.emplace_back("unload request"); }
    void HideMain() override { calls.emplace_back("hide main"); }
    std::vector<std::string> Printers() override { return {"A", "B", "A"}; }
    void SetCurrentPrinter(const std::string& name) override { calls.push_back("current " + name); }

    std::vector<std::string> calls;
};

class DestinationsTest : public testing::Test {
protected:
    void Store(const std::string& key, const std::string& name, const std::string& value) {
        test_.settings.fWriteValue("HKLM", key, name, "S", value);
    }
    void StoreEveryFolder() {
        for (const char* version : {"9.0", "11.0", "12.0", "14.0"}) {
            Store(kOffice + std::string(version) + "\\Excel\\Installroot", "Path",
                  std::string("C:\\Office") + version);
        }
        Store(std::string(kNotera) + "Settings", "Install Folder", "C:\\Listed");
        Store(std::string(kNotera) + "Setting", "Install Folder", "C:\\Notera");
        Store("Software\\OpenOffice.org\\OpenOffice.org\\3.0", "Path", "C:\\OO3\\soffice.exe");
        Store("Software\\OpenOffice.org\\UNO", "OepnOffice.org 2.0", "C:\\Listed");
    }

    test::TestApplication test_;
    RecordedWindows windows_;
};

TEST_F(DestinationsTest, TheListShowsWhatTheSettingsNameAndEachEntryHasItsCommandOrNone) {
    EXPECT_THAT(ExternalApplications(test_.settings), ElementsAre("Microsoft Notepad"));
    StoreEveryFolder();
    setenv("SystemRoot", "C:\\Windows", 1);
    const std::string file = " \"" + test_.application.tempFolder.string() + "\\rpt.csv\"";
    const std::pair<const char*, std::string> listed[] = {
        {"Microsoft Excel 2010", ""},
        {"Microsoft Excel 2007", "C:\\Office12.0\\Excel.exe" + file},
        {"Microsoft Excel 2003", "C:\\Office11.0\\Excel.exe" + file},
        {"Microsoft Excel 2000", "C:\\Office9.0\\Excel.exe" + file},
        {"QS Notera V3", ""},
        {"OpenOffice.org 3.0 Calc", "C:\\OO3\\scalc.exe" + file},
        {"OpenOffice.org 2.0 Calc", "\\scalc.exe" + file},
        {"Microsoft Notepad", "C:\\Windows\\SYSTEM32\\notepad.exe" + file},
    };
    std::vector<std::string> entries;
    for (const auto& [entry, command] : listed) {
        entries.emplace_back(entry);
        EXPECT_EQ(ExternalCommand(test_.application, entry), command) << entry;
    }
    EXPECT_EQ(ExternalApplications(test_.settings), entries);
    EXPECT_EQ(ExternalCommand(test_.application, "notera v3"), "C:\\Notera\\Notera.exe" + file);
    EXPECT_EQ(ExternalCommand(test_.application, ""), "");
    unsetenv("SystemRoot");
    Store("Software\\OpenOffice.org\\OpenOffice.org\\3.0", "Path", "short");
    EXPECT_EQ(ExternalCommand(test_.application, "OpenOffice.org 3.0 Calc"), "");
}

TEST_F(DestinationsTest, EachDestinationHasItsSteps) {
    DeliverReport(test_.application, windows_, {});
    EXPECT_THAT(windows_.calls, ElementsAre("load", "show", "unload request", "hide main"));
    windows_.calls.clear();
    DeliverReport(test_.application, windows_, {.destination = Destination::ToPrinter, .printer = "A"});
    EXPECT_THAT(windows_.calls, ElementsAre("current A", "load", "print", "unload", "unload request",
                                            "current A", "load", "print", "unload", "unload request"));
    windows_.calls.clear();
    DeliverReport(test_.application, windows_, {.destination = Destination::ToPrinter, .printer = "C"});
    EXPECT_THAT(windows_.calls, ElementsAre());
}

TEST_F(DestinationsTest, AnApplicationGetsTheRenamedFileUnlessTheOldOneIsHeld) {
    const DestinationChoice choice = {.destination = Destination::InExternalApplication,
                                      .application = "Microsoft Excel 2010"};
    std::ofstream(PageFile(test_.application)) << "first";
    DeliverReport(test_.application, windows_, choice);
    EXPECT_EQ(test::ReadBytes(CommaTextFile(test_.application)), "first");
    EXPECT_FALSE(std::filesystem::exists(PageFile(test_.application)));
    EXPECT_THAT(windows_.calls, ElementsAre("unload request"));

    std::ofstream(PageFile(test_.application)) << "second";
    DeliverReport(test_.application, windows_, choice);
    EXPECT_EQ(test::ReadBytes(CommaTextFile(test_.application)), "first");
}

}  // namespace
}  // namespace tallix
