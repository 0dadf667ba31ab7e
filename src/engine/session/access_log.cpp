#include "session/access_log.h"

#include <array>
#include <fstream>
#include <stdexcept>

#include "database/recordset.h"
#include "failures/attempt.h"
#include "session/database.h"
#include "text/code_page.h"

namespace tallix {

namespace {

// Only SQL Server wants its reserved words in brackets here.
constexpr std::string_view kSqlServerType = "2";
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

void WriteLog(Session& session, const Clock& clock, std::string_view event) {
    const DateTime now = clock.Now();
    std::string statement(session.DBType == kSqlServerType ? kSqlServerHead : kHead);
    statement += Quoted(session, ShortDate(now)) + ", " + Quoted(session, HoursAndMinutes(now)) + ", " +
                 Quoted(session, session.CurrentUser) + ", " + Quoted(session, event) + ");";
    OpenConnection(session).Execute(statement);
}

void LogOnItsOwn(Session& session, const Clock& clock, std::string_view event) {
    Attempt([&] { OpenDatabase(session); });
    Attempt([&] { WriteLog(session, clock, event); });
    CloseDatabase(session);
}

std::vector<AccessLogRow> ReadAccessLog(Session& session) {
    OpenDatabase(session);
    ado::Recordset log;
    log.Open(kAllRows, OpenConnection(session));
    std::array<ado::Column, kColumns.size()> columns;
    for (std::size_t i = 0; i < columns.size(); ++i) columns.at(i) = log.Find(kColumns.at(i));
    std::vector<AccessLogRow> rows(log.RecordCount());
    for (AccessLogRow& row : rows) {
        row.reserve(columns.size());
        for (const ado::Column column : columns) row.emplace_back(log.Text(column));
        log.MoveNext();
    }
    CloseDatabase(session);
    return rows;
}

void ExportAccessLog(Session& session, const std::filesystem::path& applicationFolder) {
    for (const AccessLogRow& row : ReadAccessLog(session)) {
        AppendLine(applicationFolder / kExportFile, ToAnsi(JoinWithCommas(row)));
    }
}

void ClearAccessLog(Session& session, const Clock& clock) {
    OpenDatabase(session);
    OpenConnection(session).Execute("Delete * from tbllogging");
    WriteLog(session, clock, "Access Log Cleared!");
    CloseDatabase(session);
}

}  // namespace tallix
