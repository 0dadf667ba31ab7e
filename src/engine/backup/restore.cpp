#include "backup/restore.h"

#include <algorithm>
#include <array>
#include <string>

#include "backup/serving_database.h"
#include "database/database_scope.h"
#include "failures/attempt.h"
#include "text/text_lines.h"

namespace tallix {
namespace {

struct LinePrefix {
    std::string_view text;
    BackupGroup group;
};

constexpr std::array<LinePrefix, 5> kLinePrefixes = {{
    {"INSERT INTO tbluse", BackupGroup::SystemOptions},
    {"INSERT INTO tblsit", BackupGroup::SystemOptions},
    {"INSERT INTO tblext", BackupGroup::SystemOptions},
    {"INSERT INTO tblraw", BackupGroup::RawCalls},
    {"INSERT INTO tblpho", BackupGroup::ProcessedCalls},
}};

}  // namespace

std::optional<BackupGroup> GroupOfLine(std::string_view line) {
    for (const LinePrefix& prefix : kLinePrefixes) {
        if (line.starts_with(prefix.text)) return prefix.group;
    }
    return std::nullopt;
}

void ReplayBackup(Application& application, const std::filesystem::path& file,
                  const std::set<BackupGroup>& groups, const std::function<void()>& nextLine) {
    const DatabaseAddress& address = application.session.database;
    DatabaseScope database;
    Attempt([&] { database = OpenServing(application.events, address); });
    TextLines lines(file);
    std::string statement;
    while (const std::string* line = lines.Next()) {
        nextLine();
        const std::optional<BackupGroup> group = GroupOfLine(*line);
        if (!group || !groups.contains(*group)) continue;
        statement = *line;
        std::replace(statement.begin(), statement.end(), '\'', StringQuote(address.kind).front());
        Attempt([&] { database.Execute(statement); });
    }
}

}  // namespace tallix
