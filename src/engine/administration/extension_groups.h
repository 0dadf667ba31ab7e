// The groups of extensions that reports can select. Every action writes at once.
//
// Members are filed under their group's line in the list plus one, not under the group's own
// key; lines count from 1. When a group goes, the groups below it move up and show the members
// of their neighbours: nothing is renumbered. All functions throw DatabaseError.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "session/session.h"

namespace tallix {

/// The names in the order of the list.
std::vector<std::string> LoadExtensionGroups(const Session& session);

/// A name may repeat.
void AddExtensionGroup(const Session& session, std::string_view name);

/// Removes all groups of the name, and the members filed under `line` itself, which are those
/// of the group above. The members of the group stay.
void DeleteExtensionGroup(const Session& session, std::string_view name, std::int64_t line);

/// The extensions of the group on that line.
std::vector<std::string> LoadGroupMembers(const Session& session, std::int64_t line);

/// The extension may be unknown, and may repeat.
void AddGroupMember(const Session& session, std::int64_t line, std::string_view extension);

/// Removes the extension from every group.
void DeleteGroupMember(const Session& session, std::string_view extension);

}  // namespace tallix
