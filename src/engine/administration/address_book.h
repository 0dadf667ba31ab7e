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

std::vector<KnownNumber> LoadAddressBook(const Session& session);

/// Returns false, and writes nothing, when the number is in use.
bool AddKnownNumber(const Session& session, const KnownNumber& entry);

/// Gives the number its new name. Returns false for an unknown number.
bool RenameKnownNumber(const Session& session, const KnownNumber& entry);

/// Ignores an unknown number. Of several entries with the number it removes one, and those
/// with the name of that one.
void DeleteKnownNumber(const Session& session, std::string_view number);

/// Adds each line of a file: the number is the text before the first comma, the name all after
/// it. The file has no header line and no quoting. A line without a comma gives an entry
/// without a number, whose name lacks the line's first character, where a comma would be.
/// Numbers that are in use are added again. Throws DatabaseError when the server refuses a row;
/// the lines before it stay. Throws std::runtime_error when the file cannot be read.
void ImportAddressBook(const Session& session, const std::filesystem::path& file);

}  // namespace tallix
