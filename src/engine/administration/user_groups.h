// User groups: names with a set of rights, which replace those of their members at login.
// Every action writes at once, over a connection of its own, and throws DatabaseError. A
// name goes into the statements as it is: one that holds the session's quote ends its
// literal there, which the server mostly refuses.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

namespace tallix {

std::vector<std::string> LoadUserGroups(Session& session);

/// The access string of a group; empty where there is no such group.
std::string ReadGroupAccess(Session& session, const std::string& name);

/// False, with nothing written, where the name is there already.
bool AddUserGroup(Session& session, const std::string& name, const std::string& access);

/// Gives a group other rights. False where there is no such group.
bool EditUserGroup(Session& session, const std::string& name, const std::string& access);

/// Deletes a group. Its members are in no group then and have their own rights.
void DeleteUserGroup(Session& session, const std::string& name);

}  // namespace tallix
