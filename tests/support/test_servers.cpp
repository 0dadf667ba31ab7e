#include "support/test_servers.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

#include <fmt/format.h>

#include "database/database_scope.h"
#include "database/schema.h"
#include "support/places.h"
#include "support/run_program.h"

namespace tallix::test {

namespace {

const std::string kScript = SourceFolder() / "scripts/servers.sh";
const std::string kSchemaFolder = SourceFolder() / "data/schema";

/// The ANSI driver by its file, so that the machine's list of drivers does not matter.
constexpr const char* kPostgresDriver = "/usr/lib/x86_64-linux-gnu/odbc/psqlodbca.so";

/// The running servers, which stop when this process ends.
class Servers {
public:
    Servers() {
        // PostgreSQL, which root runs under another account, must be able to get in.
        std::filesystem::permissions(folder_.Path(), std::filesystem::perms(0711));
        const ProgramRun run = RunProgram("/bin/bash", {kScript, "start", data_});
        if (run.status != 0) throw std::runtime_error("The database servers do not start: " + run.err);
        for (const std::string& line : ReadLines(data_ + "/env")) {
            const std::size_t equals = line.find('=');
            values_[line.substr(0, equals)] = line.substr(equals + 1);
        }
    }

    /// A value of the file that the script writes.
    std::string operator[](const std::string& name) const { return values_.at(name); }

private:
    TempFolder folder_;
    std::string data_ = folder_.Path() / "servers";
    EndGuard guard_{fmt::format(R"(/bin/bash "{}" stop "{}")", kScript, data_)};
    std::map<std::string, std::string> values_;
};

TestEngine MakeEngine(std::string_view name) {
    static const TempFolder folder;
    if (name == "sqlite")
        return {"sqlite", "1", "sqlite:" + (folder.Path() / "tallix.db").string(), "", "", ""};
    static const Servers servers;
    const bool isMaria = name == "mariadb";
    TestEngine engine{std::string(name),
                      isMaria ? "1" : "3",
                      servers[isMaria ? "MARIADB_ADDRESS" : "POSTGRES_ADDRESS"],
                      servers["SERVER_USER"],
                      servers["SERVER_PASSWORD"],
                      ""};
    if (name == "odbc") {
        engine.dbType.clear();
        engine.connectionText = fmt::format("DRIVER={{{}}};SERVER={};DATABASE=tallix;UID={};PWD={}",
                                            kPostgresDriver, engine.address, engine.user, engine.password);
    }
    return engine;
}

// Dropping and making tables costs MariaDB a second or two; taking their rows does not.
void EmptyMariaDb(ado::Engine& server) {
    const ado::Result tables = server.Query(
        "SELECT table_name, auto_increment > 1 FROM information_schema.tables WHERE table_schema = "
        "DATABASE()");
    for (std::int64_t row = 0; row < tables.rows.Rows(); ++row) {
        const std::string table(tables.rows.At(row, 0).value_or(""));
        server.Execute("DELETE FROM " + table);
        if (tables.rows.At(row, 1) == "1") server.Execute("ALTER TABLE " + table + " AUTO_INCREMENT = 1");
    }
}

void Empty(const TestEngine& engine) {
    if (engine.name == "sqlite") {
        const std::string file = engine.address.substr(std::string_view("sqlite:").size());
        for (const char* part : {"", "-wal", "-shm"}) std::filesystem::remove(file + part);
        const std::ofstream made(file);
        return;
    }
    const auto connection = Connect(engine);
    if (engine.name == "mariadb") return EmptyMariaDb(connection->Server());
    connection->Server().Execute("DROP SCHEMA public CASCADE");
    connection->Server().Execute("CREATE SCHEMA public");
}

}  // namespace

const TestEngine& EngineNamed(std::string_view name) {
    static std::map<std::string, TestEngine, std::less<>> engines;
    const auto known = engines.find(name);
    if (known != engines.end()) return known->second;
    TestEngine engine = MakeEngine(name);
    if (!engine.dbType.empty()) engine.connectionText = ConnectionText(engine.Database());
    return engines.emplace(name, std::move(engine)).first->second;
}

std::unique_ptr<ado::Connection> Connect(const TestEngine& engine) {
    return ConnectTo(engine.connectionText);
}

std::unique_ptr<ado::Connection> FreshDatabase(const TestEngine& engine) {
    Empty(engine);
    std::unique_ptr<ado::Connection> connection = Connect(engine);
    LayDownSchema(*connection, kSchemaFolder);
    return connection;
}

}  // namespace tallix::test
