#include "session/access_log.h"

#include <array>
#include <fstream>
#include <stdexcept>

#include "failures/attempt.h"
#include "text/code_page.h"

namespace tallix {

namespace {

// Only SQL Server wants its reserved words in brackets here.
constexpr std::string_view kSqlServerHead = "INSERT INTO tbllogging([Date], [Time], [User], [Data]) VALUES(";
constexpr std::string_view kHead = "INSERT INTO tbllogging(Date, Time, User, Data) VALUES(";

constexpr std::string_view kAllRows = "select * from tbllogging";
constexpr std::array<std::string_view, 4> kColumns = {"Date", "Time", "User", "Data"};
constexpr char kExportFile[] = "AccessLog.txt";

std::string JoinWithCommas(const AccessLogRow& row) {
    std::string line;
    for (const std::string& cell : row) {
        if (&cell != &row.front()) line += ',';
        line += cell;
    }
    return line;
}

/// Opened anew for each line, so that an export never holds a file that others read.
void AppendLine(const std::filesystem::path& file, const std::string& line) {
    std::ofstream stream(file, std::ios::binary | std::ios::app);
    stream << line << "\r\n";
    stream.close();
    if (!stream) throw std::runtime_error("The file " + file.string() + " cannot be written");
}

}  // namespace

void WriteLog(const DatabaseScope& database, const Session& session, const Clock& clock,
              std::string_view event) {
    const DateTime now = clock.Now();
    std::string statement(database.Kind() == DatabaseKind::SqlServer ? kSqlServerHead : kHead);
    statement += database.Quoted(ShortDate(now)) + ", " + database.Quoted(HoursAndMinutes(now)) + ", " +
                 database.Quoted(session.CurrentUser) + ", " + database.Quoted(event) + ");";
    database.Execute(statement);
}

void LogOnItsOwn(const Session& session, const Clock& clock, std::string_view event) {
    Attempt([&] { WriteLog(DatabaseScope(session.database), session, clock, event); });
}

std::vector<AccessLogRow> ReadAccessLog(const Session& session) {
    const DatabaseScope database(session.database);
    const ado::Rows log = database.Query(kAllRows);
    std::array<ado::Column, kColumns.size()> columns;
    for (std::size_t i = 0; i < columns.size(); ++i) columns.at(i) = log.Find(kColumns.at(i));
    std::vector<AccessLogRow> rows;
    rows.reserve(static_cast<std::size_t>(log.Count()));
    for (const ado::Row entry : log) {
        AccessLogRow& row = rows.emplace_back();
        for (const ado::Column column : columns) row.emplace_back(entry.Text(column));
    }
    return rows;
}

void ExportAccessLog(const Session& session, const std::filesystem::path& applicationFolder) {
    for (const AccessLogRow& row : ReadAccessLog(session)) {
        AppendLine(applicationFolder / kExportFile, ToAnsi(JoinWithCommas(row)));
    }
}

void ClearAccessLog(const Session& session, const Clock& clock) {
    const DatabaseScope database(session.database);
    database.Execute("Delete * from tbllogging");
    WriteLog(database, session, clock, "Access Log Cleared!");
}

}  // namespace tallix
