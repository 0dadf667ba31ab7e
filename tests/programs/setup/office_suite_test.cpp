#include "setup/office_suite.h"

#include <gmock/gmock.h>

#include <sstream>

#include "compat/shell_command.h"
#include "reporting/external_applications.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(OfficeSuiteTest, ARecordedSuiteIsListedAndItsSpreadsheetStarts) {
    test::TestApplication test;
    const std::filesystem::path folder = test.Folder() / "Office 7" / "program";
    std::filesystem::create_directories(folder);
    for (const char* name : {"soffice", "scalc"}) {
        std::ofstream(folder / name) << "#!/bin/sh\n";
        std::filesystem::permissions(folder / name, std::filesystem::perms::owner_all);
    }
    std::ostringstream out;
    RecordOfficeSuite({"/nowhere"}, test.settings, out);
    EXPECT_EQ(out.str(), "");
    RecordOfficeSuite({"/nowhere", folder}, test.settings, out);
    EXPECT_EQ(out.str(), "Spreadsheet: " + folder.string() + " recorded\n");

    const std::string entry = "OpenOffice.org 3.0 Calc";
    EXPECT_THAT(ExternalApplications(test.settings), testing::Contains(entry));
    const auto command = TranslateCommand(ReadShellCommand(ExternalCommand(test.application, entry)));
    EXPECT_THAT(command, testing::ElementsAre((folder / "scalc").string(),
                                              (test.application.tempFolder / "rpt.csv").string()));

    out.str("");
    RecordOfficeSuite({"/elsewhere"}, test.settings, out);
    EXPECT_THAT(out.str(), testing::HasSubstr("recorded already"));
}

}  // namespace
}  // namespace tallix
