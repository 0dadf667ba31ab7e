#include "administration/user_groups.h"

#include "database/recordset.h"
#include "session/database.h"
#include "text/encryption_tools.h"

namespace tallix {
namespace {

ado::Recordset OpenGroup(Session& session, const std::string& name) {
    OpenDatabase(session);
    ado::Recordset group;
    group.Open("select * from tblusergroups where group_name=" + Quoted(session, name),
               OpenConnection(session));
    return group;
}

void ReleaseMembers(Session& session, const std::string& groupId) {
    ado::Recordset members;
    members.Open("select * from tblusers where groupid=" + groupId, OpenConnection(session));
    for (std::int64_t i = 1; i <= members.RecordCount(); ++i, members.MoveNext()) {
        members.Collect("GroupID", "0");
        members.Update();
    }
}

}  // namespace

std::vector<std::string> LoadUserGroups(Session& session) {
    OpenDatabase(session);
    ado::Recordset groups;
    groups.Open("select * from tblusergroups", OpenConnection(session));
    std::vector<std::string> names;
    for (std::int64_t i = 1; i <= groups.RecordCount(); ++i, groups.MoveNext()) {
        names.emplace_back(groups.Text("Group_Name"));
    }
    CloseDatabase(session);
    return names;
}

std::string ReadGroupAccess(Session& session, const std::string& name) {
    const ado::Recordset group = OpenGroup(session, name);
    const bool found = group.RecordCount() > 0;
    std::string access = found ? DecipherFromStorage(group.Text("Group_Access")) : "";
    CloseDatabase(session);
    return access;
}

bool AddUserGroup(Session& session, const std::string& name, const std::string& access) {
    ado::Recordset group = OpenGroup(session, name);
    const bool isNew = group.RecordCount() == 0;
    if (isNew) {
        group.AddNew();
        group.Collect("Group_Name", name);
        group.Collect("Group_Access", EncipherForStorage(access));
        group.Update();
    }
    CloseDatabase(session);
    return isNew;
}

bool EditUserGroup(Session& session, const std::string& name, const std::string& access) {
    ado::Recordset group = OpenGroup(session, name);
    const bool found = group.RecordCount() > 0;
    if (found) {
        group.Collect("Group_Access", EncipherForStorage(access));
        group.Update();
    }
    CloseDatabase(session);
    return found;
}

void DeleteUserGroup(Session& session, const std::string& name) {
    const ado::Recordset group = OpenGroup(session, name);
    if (group.RecordCount() > 0) ReleaseMembers(session, std::string(group.Text("GroupID")));
    OpenConnection(session).Execute("DELETE FROM tblusergroups WHERE group_name =" + Quoted(session, name) +
                                    ";");
    CloseDatabase(session);
}

}  // namespace tallix
