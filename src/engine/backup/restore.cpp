#include "backup/restore.h"

#include <algorithm>
#include <array>
#include <string>

#include "failures/attempt.h"
#include "session/database.h"
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
    Session& session = application.session;
    Attempt([&] { application.events.ServeDuring([&] { OpenDatabase(session); }); });
    TextLines lines(file);
    std::string statement;
    while (const std::string* line = lines.Next()) {
        nextLine();
        const std::optional<BackupGroup> group = GroupOfLine(*line);
        if (!group || !groups.contains(*group)) continue;
        statement = *line;
        std::replace(statement.begin(), statement.end(), '\'', StringQuote(session.database.kind).front());
        Attempt([&] { OpenConnection(session).Execute(statement); });
    }
    CloseDatabase(session);
}

}  // namespace tallix
