// A fresh installation for Tallix_Setup to work on: the application folder with its
// data, and no settings. What it laid down can be read back.
#pragma once

#include <string>
#include <vector>

#include "foundation/ado/recordset.h"
#include "support/run_program.h"
#include "support/temp_folder.h"

namespace tallix::test {

/// All rows of a statement, a line each, "|" behind every value.
inline std::string AllRows(ado::Connection& connection, const std::string& statement) {
    ado::Recordset set;
    set.Open(statement, connection);
    std::string rows;
    for (std::int64_t i = 1; i <= set.RecordCount(); ++i, set.MoveNext()) {
        for (const std::string& name : set.ColumnNames()) rows += std::string(set.Text(name)) + '|';
        rows += '\n';
    }
    return rows;
}

class SetupInstallation {
public:
    SetupInstallation() {
        for (const char* data : {"schema", "reference"}) {
            std::filesystem::create_directory_symlink(
                std::filesystem::path(TALLIX_SOURCE_DIR) / "data" / data, Home() / data);
        }
    }

    const TempFolder& Folder() const { return folder_; }
    const std::filesystem::path& Home() const { return folder_.Path(); }
    std::filesystem::path Hive() const { return Home() / "settings" / "HKLM.reg"; }

    /// Runs the program. `registry` is the folder of the settings, in the application's.
    ProgramRun RunSetup(const std::vector<std::string>& arguments,
                        const std::string& registry = "settings") const {
        return RunProgram(TALLIX_SETUP_PROGRAM, arguments,
                          {{"TALLIX_HOME", Home()}, {"TALLIX_REGISTRY", Home() / registry}});
    }

    /// All rows of a statement on the embedded database of that name in the application folder.
    std::string Rows(const std::string& statement, const std::string& database = "tallix.db") const {
        ado::Connection connection;
        connection.ConnectionString =
            "DRIVER={MySQL ODBC 5.1 Driver};SERVER=sqlite:" + (Home() / database).string();
        connection.Open();
        return AllRows(connection, statement);
    }

private:
    TempFolder folder_;
};

}  // namespace tallix::test
