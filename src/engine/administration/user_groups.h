// User groups: names with a set of rights, which replace those of their members at login.
// Every action opens the database, writes at once, and throws DatabaseError. Names are not
// escaped: a server mostly refuses a name that holds the delimiter of literals.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tallix {

std::vector<std::string> LoadUserGroups(const Session& session);

/// The rights of a group; none for an unknown group.
AccessRights ReadGroupAccess(const Session& session, const std::string& name);

/// Returns false, and writes nothing, when the name is taken.
bool AddUserGroup(const Session& session, const std::string& name, const AccessRights& access);

/// Gives a group other rights. Returns false for an unknown group.
bool EditUserGroup(const Session& session, const std::string& name, const AccessRights& access);

/// Deletes a group. Its members are then without a group and have their own rights.
void DeleteUserGroup(const Session& session, const std::string& name);

}  // namespace tallix
