#include "setup.h"

#include <fmt/format.h>

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "administrator_account.h"
#include "demo_data.h"
#include "foundation/database.h"
#include "foundation/prompts.h"
#include "foundation/schema.h"
#include "foundation/settings_store.h"
#include "platform/paths.h"
#include "reference_data.h"
#include "settings_seed.h"

namespace tallix {
namespace {

// The seeding finds out by itself whether a setting was written.
class QuietPrompts : public UnattendedPrompts {
public:
    Answer Show(const Message&) override { return Answer::Ok; }
};

// An embedded database is first read by its first statement, which therefore belongs
// to reaching it.
void Reach(const DatabaseChoice& choice, Session& session, std::ostream& out) {
    session.DBType = choice.type;
    session.DBIP = choice.address;
    session.SQLUser = choice.user;
    session.SQLPass = choice.password;
    session.StrQuote = StringQuote(choice.type);
    OpenDatabase(session);
    OpenConnection(session).Fetch("SELECT 1 AS Answer");
    out << fmt::format("Database: {} reached\n", choice.address);
}

void LayDownTables(ado::Connection& connection, const std::filesystem::path& folder, std::ostream& out) {
    const std::vector<std::string> made = LayDownSchema(connection, folder);
    for (const std::string& table : made) out << fmt::format("Table {}: laid down\n", table);
    if (made.empty()) out << "Tables: all there already\n";
}

}  // namespace

void SetUp(const SetupOptions& options, std::ostream& out) {
    const std::filesystem::path folder = ApplicationFolder();
    QuietPrompts prompts;
    const SettingsStore settings(MachineSettingsFolder(), UserSettingsFolder(), prompts);
    const DatabaseChoice choice = ChooseDatabase(options, settings, folder);
    Session session;
    Reach(choice, session, out);
    SeedSettings(choice, settings, out);
    ado::Connection& connection = OpenConnection(session);
    LayDownTables(connection, folder / "schema", out);
    FillReferenceData(connection, folder / "reference", out);
    EnsureAdministrator(session, options.adminPassword, out);
    if (options.demoCalls) AddDemonstration(connection, *options.demoCalls, options.seed, out);
    CloseDatabase(session);
}

}  // namespace tallix
