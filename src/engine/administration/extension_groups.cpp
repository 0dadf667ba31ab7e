#include "administration/extension_groups.h"

#include "database/database_scope.h"

namespace tallix {
namespace {

std::string MembersKey(std::int64_t line) {
    return std::to_string(line + 1);
}

std::vector<std::string> LoadColumn(const Session& session, std::string_view statement,
                                    std::string_view column) {
    const ado::Rows rows = DatabaseScope(session.database).Query(statement);
    std::vector<std::string> values;
    for (const ado::Row row : rows) values.emplace_back(row.Text(column));
    return values;
}

}  // namespace

std::vector<std::string> LoadExtensionGroups(const Session& session) {
    return LoadColumn(session, "select * from tblgroupnames", "Name");
}

void AddExtensionGroup(const Session& session, std::string_view name) {
    const DatabaseScope database(session.database);
    ado::Recordset groups = database.Edit("SELECT * FROM tblgroupnames");
    groups.AddNew();
    groups.Collect("Name", name);
    groups.Update();
}

void DeleteExtensionGroup(const Session& session, std::string_view name, std::int64_t line) {
    const DatabaseScope database(session.database);
    database.Execute("DELETE FROM tblgroupnames WHERE Name =" + database.Quoted(name));
    database.Execute("DELETE FROM tblgroupmap WHERE GroupID = " + std::to_string(line));
}

std::vector<std::string> LoadGroupMembers(const Session& session, std::int64_t line) {
    return LoadColumn(session, "select * from tblgroupmap where GroupID = " + MembersKey(line), "Extension");
}

void AddGroupMember(const Session& session, std::int64_t line, std::string_view extension) {
    const DatabaseScope database(session.database);
    ado::Recordset members = database.Edit("SELECT * FROM tblgroupmap");
    members.AddNew();
    members.Collect("Extension", extension);
    members.Collect("GroupID", MembersKey(line));
    members.Update();
}

void DeleteGroupMember(const Session& session, std::string_view extension) {
    const DatabaseScope database(session.database);
    database.Execute("DELETE FROM tblgroupmap WHERE Extension =" + database.Quoted(extension));
}

}  // namespace tallix
