#include "foundation/access_log.h"

#include "foundation/database.h"

namespace tallix {

namespace {

// Only SQL Server wants its reserved words in brackets here.
constexpr std::string_view kSqlServerType = "2";
constexpr std::string_view kSqlServerHead = "INSERT INTO tbllogging([Date], [Time], [User], [Data]) VALUES(";
constexpr std::string_view kHead = "INSERT INTO tbllogging(Date, Time, User, Data) VALUES(";

}  // namespace

void WriteLog(Session& session, const Clock& clock, std::string_view event) {
    const DateTime now = clock.Now();
    std::string statement(session.DBType == kSqlServerType ? kSqlServerHead : kHead);
    statement += Quoted(session, ShortDate(now)) + ", " + Quoted(session, HoursAndMinutes(now)) + ", " +
                 Quoted(session, session.CurrentUser) + ", " + Quoted(session, event) + ");";
    OpenConnection(session).Execute(statement);
}

}  // namespace tallix
