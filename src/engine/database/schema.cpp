#include "database/schema.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include <fmt/format.h>

#include "failures/errors.h"
#include "platform/whole_file.h"
#include "text/text_pieces.h"

namespace tallix {

namespace {

using ado::Engine;
using ado::Server;

constexpr std::string_view kCreateTable = "CREATE TABLE ";
constexpr std::string_view kCreateIndex = "CREATE INDEX ";
constexpr std::string_view kIfAbsent = "IF NOT EXISTS ";

/// What the statements for MariaDB say, and its replacement on MySQL.
constexpr std::string_view kMariaDbCollation = "utf8mb4_nopad_bin";
constexpr std::string_view kMySqlCollation = "utf8mb4_0900_bin";

std::string_view FileName(Server server) {
    constexpr std::array<std::pair<Server, std::string_view>, 4> kFiles{
        {{Server::Sqlite, "sqlite.sql"},
         {Server::MySql, "mysql.sql"},
         {Server::Postgres, "postgres.sql"},
         {Server::SqlServer, "sqlserver.sql"}}};
    for (const auto& [kind, name] : kFiles) {
        if (kind == server) return name;
    }
    return {};
}

std::string ReadSchema(const std::filesystem::path& file) {
    const std::optional<std::string> text = ReadWholeFile(file);
    if (!text) throw DatabaseError(fmt::format("The schema file {} cannot be read", file.string()));
    return *text;
}

/// The word after `lead` (and after "IF NOT EXISTS"); empty where `lead` does not occur.
std::string NameAfter(std::string_view statement, std::string_view lead) {
    std::size_t begin = statement.find(lead);
    if (begin == std::string_view::npos) return {};
    begin += lead.size();
    if (statement.substr(begin).starts_with(kIfAbsent)) begin += kIfAbsent.size();
    return std::string(statement.substr(begin, statement.find_first_of(" (", begin) - begin));
}

bool HasTable(Engine& server, const std::string& table) {
    try {
        server.Query(fmt::format("SELECT 1 FROM {} WHERE 1 = 0", table));
        return true;
    } catch (const DatabaseError&) {
        return false;
    }
}

bool IsMySqlProper(Engine& server) {
    if (server.Kind() != Server::MySql) return false;
    const ado::Result version = server.Query("SELECT VERSION()");
    return version.rows.At(0, 0).value_or("").find("MariaDB") == std::string_view::npos;
}

/// MySQL takes no "IF NOT EXISTS" for an index.
bool HasMySqlIndex(Engine& server, const std::string& index) {
    return server
               .Query(
                   fmt::format("SELECT 1 FROM information_schema.statistics WHERE table_schema = DATABASE() "
                               "AND index_name = '{}'",
                               index))
               .rows.Rows() > 0;
}

void Lay(Engine& server, std::string statement, bool mySqlProper) {
    if (mySqlProper) {
        statement = Replace(statement, kMariaDbCollation, kMySqlCollation);
        const std::string index = NameAfter(statement, kCreateIndex);
        if (!index.empty()) {
            if (HasMySqlIndex(server, index)) return;
            statement = Replace(statement, kIfAbsent, {});
        }
    }
    server.Execute(statement);
}

}  // namespace

std::vector<std::string> SchemaStatements(std::string_view text) {
    std::vector<std::string> statements;
    std::string statement;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
            if (!statement.empty()) statements.push_back(std::exchange(statement, {}));
        } else if (!line.starts_with("--")) {
            statement.append(line).push_back('\n');
        }
    }
    if (!statement.empty()) statements.push_back(std::move(statement));
    return statements;
}

std::vector<std::string> LayDownSchema(ado::Connection& connection,
                                       const std::filesystem::path& schemaFolder) {
    Engine& server = connection.Server();
    const bool mySqlProper = IsMySqlProper(server);
    std::vector<std::string> made;
    for (std::string& statement : SchemaStatements(ReadSchema(schemaFolder / FileName(server.Kind())))) {
        std::string table = NameAfter(statement, kCreateTable);
        if (!table.empty() && !HasTable(server, table)) made.push_back(std::move(table));
        Lay(server, std::move(statement), mySqlProper);
    }
    return made;
}

}  // namespace tallix
