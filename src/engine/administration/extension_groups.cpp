#include "administration/extension_groups.h"

#include "database/recordset.h"
#include "session/database.h"

namespace tallix {
namespace {

std::string MembersKey(std::int64_t line) {
    return std::to_string(line + 1);
}

std::vector<std::string> LoadColumn(Session& session, const std::string& statement, std::string_view column) {
    OpenDatabase(session);
    ado::Recordset rows;
    rows.Open(statement, OpenConnection(session));
    std::vector<std::string> values;
    for (std::int64_t i = 1; i <= rows.RecordCount(); ++i, rows.MoveNext()) {
        values.emplace_back(rows.Text(column));
    }
    CloseDatabase(session);
    return values;
}

}  // namespace

std::vector<std::string> LoadExtensionGroups(Session& session) {
    return LoadColumn(session, "select * from tblgroupnames", "Name");
}

void AddExtensionGroup(Session& session, std::string_view name) {
    OpenDatabase(session);
    ado::Recordset groups;
    groups.Open("SELECT * FROM tblgroupnames", OpenConnection(session));
    groups.AddNew();
    groups.Collect("Name", name);
    groups.Update();
    CloseDatabase(session);
}

void DeleteExtensionGroup(Session& session, std::string_view name, std::int64_t line) {
    OpenDatabase(session);
    ado::Connection& connection = OpenConnection(session);
    connection.Execute("DELETE FROM tblgroupnames WHERE Name =" + Quoted(session, name));
    connection.Execute("DELETE FROM tblgroupmap WHERE GroupID = " + std::to_string(line));
    CloseDatabase(session);
}

std::vector<std::string> LoadGroupMembers(Session& session, std::int64_t line) {
    return LoadColumn(session, "select * from tblgroupmap where GroupID = " + MembersKey(line), "Extension");
}

void AddGroupMember(Session& session, std::int64_t line, std::string_view extension) {
    OpenDatabase(session);
    ado::Recordset members;
    members.Open("SELECT * FROM tblgroupmap", OpenConnection(session));
    members.AddNew();
    members.Collect("Extension", extension);
    members.Collect("GroupID", MembersKey(line));
    members.Update();
    CloseDatabase(session);
}

void DeleteGroupMember(Session& session, std::string_view extension) {
    OpenDatabase(session);
    OpenConnection(session).Execute("DELETE FROM tblgroupmap WHERE Extension =" + Quoted(session, extension));
    CloseDatabase(session);
}

}  // namespace tallix
