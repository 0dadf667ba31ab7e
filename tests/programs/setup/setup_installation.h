// A fresh installation for Tallix_Setup to work on: the application folder with its
// data, and no settings. What it laid down can be read back.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/loopback_servers.h"
#include "support/places.h"
#include "support/run_program.h"
#include "support/test_application.h"

namespace tallix::test {

class SetupInstallation {
public:
    SetupInstallation() {
        for (const char* data : {"schema", "reference"}) {
            std::filesystem::create_directory_symlink(SourceFolder() / "data" / data, Home() / data);
        }
    }

    const TempFolder& Folder() const { return folder_; }
    const std::filesystem::path& Home() const { return folder_.Path(); }
    std::filesystem::path Hive() const { return Home() / "settings" / "HKLM.reg"; }

    /// Runs the program. `registry` is the folder of the settings, in the application's.
    ProgramRun RunSetup(const std::vector<std::string>& arguments,
                        const std::string& registry = "settings") const {
        return RunProgram(SetupProgram().string(), arguments,
                          {{"TALLIX_HOME", Home()}, {"TALLIX_REGISTRY", Home() / registry}});
    }

    /// All rows of a statement on the embedded database of that name in the application folder.
    std::string Rows(const std::string& statement, const std::string& database = "tallix.db") const {
        const std::string file = Home() / database;
        return AllRows(*ConnectTo("DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:" + file), statement);
    }

private:
    TempFolder folder_;
};

/// Failed, with the reason in one line.
inline void ExpectFailure(const ProgramRun& run, const std::string& why) {
    EXPECT_NE(run.status, 0);
    EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << run.err;
    EXPECT_THAT(run.err, testing::HasSubstr("Tallix_Setup: "));
    EXPECT_THAT(run.err, testing::HasSubstr(why));
}

/// An installation with the shipped reports and a company of 500 calls.
class InstalledCompany : public SetupInstallation {
public:
    InstalledCompany() {
        for (const char* folder : {"Reports/Scheduled", "Company Docs", "out", "temp"}) {
            std::filesystem::create_directories(Home() / folder);
        }
        std::filesystem::create_directory_symlink(SourceFolder() / "data/Reports/Standard",
                                                  Home() / "Reports" / "Standard");
        const ProgramRun setup = RunSetup({"--demo", "500", "--seed", "3"});
        if (setup.status != 0) throw std::runtime_error(setup.err);
    }

    /// In which the program finds the installation.
    std::vector<std::pair<std::string, std::string>> Environment() const {
        return {{"TALLIX_HOME", Home()}, {"TALLIX_REGISTRY", Home() / "settings"}, {"Temp", Home() / "temp"}};
    }

    void PointMailTo(const SmtpServer& server) {
        settings.Write("SMTPServer", "127.0.0.1");
        settings.Write("SMTPPort", std::to_string(server.Port()));
        settings.Write("SMTPEmail", "tallix@example.test");
    }

    ScriptedPrompts prompts;
    SettingsStore settings{Home() / "settings", Home() / "settings", prompts};
};

}  // namespace tallix::test
