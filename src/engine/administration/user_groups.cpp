#include "administration/user_groups.h"

#include "database/database_scope.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

ado::Recordset FindGroup(const DatabaseScope& database, const std::string& name) {
    return database.Edit("select * from tblusergroups where group_name=" + database.Quoted(name));
}

void ReleaseMembers(const DatabaseScope& database, std::string_view groupId) {
    ado::Recordset members = database.Edit("select * from tblusers where groupid=" + std::string(groupId));
    for (std::int64_t i = 1; i <= members.RecordCount(); ++i, members.MoveNext()) {
        members.Collect("GroupID", "0");
        members.Update();
    }
}

}  // namespace

std::vector<std::string> LoadUserGroups(const Session& session) {
    const ado::Rows groups = DatabaseScope(session.database).Query("select * from tblusergroups");
    std::vector<std::string> names;
    for (const ado::Row group : groups) names.emplace_back(group.Text("Group_Name"));
    return names;
}

AccessRights ReadGroupAccess(const Session& session, const std::string& name) {
    const DatabaseScope database(session.database);
    const ado::Recordset group = FindGroup(database, name);
    if (group.RecordCount() == 0) return {};
    return AccessRights::FromText(DecipherFromStorage(group.Text("Group_Access")));
}

bool AddUserGroup(const Session& session, const std::string& name, const AccessRights& access) {
    const DatabaseScope database(session.database);
    ado::Recordset group = FindGroup(database, name);
    if (group.RecordCount() > 0) return false;
    group.AddNew();
    group.Collect("Group_Name", name);
    group.Collect("Group_Access", EncipherForStorage(access.Text()));
    group.Update();
    return true;
}

bool EditUserGroup(const Session& session, const std::string& name, const AccessRights& access) {
    const DatabaseScope database(session.database);
    ado::Recordset group = FindGroup(database, name);
    if (group.RecordCount() == 0) return false;
    group.Collect("Group_Access", EncipherForStorage(access.Text()));
    group.Update();
    return true;
}

void DeleteUserGroup(const Session& session, const std::string& name) {
    const DatabaseScope database(session.database);
    const ado::Recordset group = FindGroup(database, name);
    if (group.RecordCount() > 0) ReleaseMembers(database, group.Text("GroupID"));
    database.Execute("DELETE FROM tblusergroups WHERE group_name =" + database.Quoted(name) + ";");
}

}  // namespace tallix
