#include "setup/setup.h"

#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "costing/cost_computation.h"
#include "database/connection_text.h"
#include "database/database_scope.h"
#include "database/schema.h"
#include "host/prompts.h"
#include "platform/paths.h"
#include "settings/settings_store.h"
#include "setup/administrator_account.h"
#include "setup/demo_data.h"
#include "setup/office_suite.h"
#include "setup/reference_data.h"
#include "setup/settings_seed.h"
#include "setup/setup_error.h"

namespace tallix {
namespace {

// The seeding finds out by itself whether a setting was written.
class QuietPrompts : public UnattendedPrompts {
public:
    Answer Show(const Message&) override { return Answer::Ok; }
};

DatabaseAddress AddressOf(const DatabaseChoice& choice) {
    return {DatabaseKindOf(choice.type), choice.address, choice.user, choice.password};
}

Session SessionFor(const DatabaseChoice& choice) {
    Session session;
    session.database = AddressOf(choice);
    return session;
}

// The embedded engine opens a file that exists; an empty one is an empty database. One
// that was made here goes again, unless it is kept.
class DatabaseFile {
public:
    explicit DatabaseFile(const DatabaseChoice& choice) {
        const ado::ConnectionParts parts = ado::ReadConnectionText(ConnectionText(AddressOf(choice)));
        if (parts.server != ado::Server::Sqlite || parts.file.empty()) return;
        if (std::filesystem::exists(parts.file)) return;
        if (!std::ofstream(parts.file)) {
            throw SetupError(fmt::format("the database file cannot be made: {}", parts.file));
        }
        made_ = parts.file;
    }
    ~DatabaseFile() {
        std::error_code ignored;
        if (!made_.empty()) std::filesystem::remove(made_, ignored);
    }
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;

    void Keep() { made_.clear(); }

private:
    std::filesystem::path made_;
};

// The embedded database is first read by its first statement, which therefore belongs
// to reaching it.
DatabaseScope Reach(const DatabaseAddress& address, std::ostream& out) {
    DatabaseScope database(address);
    database.Query("SELECT 1 AS Answer");
    out << fmt::format("Database: {} reached\n", address.server);
    return database;
}

void LayDownTables(ado::Connection& connection, const std::filesystem::path& folder, std::ostream& out) {
    const std::vector<std::string> made = LayDownSchema(connection, folder);
    for (const std::string& table : made) out << fmt::format("Table {}: laid down\n", table);
    if (made.empty()) out << "Tables: all there already\n";
}

// What a company would have settled before it looks at reports.
constexpr std::pair<const char*, const char*> kCompanySettings[] = {{"TimeOpen", "08:30"},
                                                                    {"TimeClosed", "17:30"}};

// The costs that reports show are computed ones.
void AddCompany(const SetupOptions& options, const DatabaseScope& database, const Session& session,
                const SettingsStore& settings, std::ostream& out) {
    if (!AddDemonstration(database.Connection(), *options.demoCalls, options.seed, out)) return;
    for (const auto& [name, value] : kCompanySettings) {
        if (settings.Read(name).empty()) settings.Write(name, value);
    }
    out << fmt::format("tblcostcount: {} calls priced\n", ComputeCosts(session, settings));
}

// What the database holds, once it was reached and is remembered.
void FillDatabase(const SetupOptions& options, const DatabaseScope& database, const Session& session,
                  const SettingsStore& settings, std::ostream& out) {
    const std::filesystem::path folder = ApplicationFolder();
    LayDownTables(database.Connection(), folder / "schema", out);
    FillReferenceData(database.Connection(), folder / "reference", out);
    EnsureAdministrator(database, options.adminPassword, out);
    if (options.demoCalls) AddCompany(options, database, session, settings, out);
}

}  // namespace

void SetUp(const SetupOptions& options, std::ostream& out) {
    QuietPrompts prompts;
    const SettingsStore settings(MachineSettingsFolder(), UserSettingsFolder(), prompts);
    const DatabaseChoice choice = ChooseDatabase(options, settings, ApplicationFolder());
    DatabaseFile file(choice);  // outlives the connection to it
    const Session session = SessionFor(choice);
    const DatabaseScope database = Reach(session.database, out);
    SeedSettings(choice, settings, out);
    RecordOfficeSuite(OfficeFolders(), settings, out);
    file.Keep();
    FillDatabase(options, database, session, settings, out);
}

}  // namespace tallix
