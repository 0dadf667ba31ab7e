// The address book: the names by which reports show outside numbers. Every action writes at
// once. All functions throw DatabaseError.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "session/session.h"

namespace tallix {

struct KnownNumber {
    std::string name;
    std::string number;

    bool operator==(const KnownNumber&) const = default;
};

std::vector<KnownNumber> LoadAddressBook(Session& session);

/// False, with nothing written, where the number is there already.
bool AddKnownNumber(Session& session, const KnownNumber& entry);

/// Gives the number its new name. False where there is no such number.
bool RenameKnownNumber(Session& session, const KnownNumber& entry);

/// Harmless where there is no such number. Of several one goes, with those of its name.
void DeleteKnownNumber(Session& session, std::string_view number);

/// Adds each line of a file: the number before the first comma, the name all that is behind
/// it. Nothing heads the lines and nothing quotes in them. A line without a comma gives a row
/// without a number, whose name lacks the line's first character, where a comma would be.
/// Numbers that are there already are added again. A row that the server refuses ends the
/// import with DatabaseError; the lines before it stay. A file that cannot be read throws
/// std::runtime_error.
void ImportAddressBook(Session& session, const std::filesystem::path& file);

}  // namespace tallix
