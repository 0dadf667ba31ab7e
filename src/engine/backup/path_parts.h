// Pieces of a path, as the zip layer and its callers ask for them.
#pragma once

#include <string>
#include <string_view>

namespace tallix {

/// The modes of the path splitter. Of "/data/old/calls.SAF":
enum class PathPart {
    FileName = 1,       ///< "calls.SAF"
    Stem = 2,           ///< "calls"
    Ending = 3,         ///< "SAF"
    Folder = 4,         ///< "/data/old"
    FolderName = 5,     ///< "old"
    FolderSlash = 6,    ///< "/data/old/"
    WithoutEnding = 7,  ///< "/data/old/calls"
    Root = 8,           ///< "/"
    BelowRoot = 9,      ///< "data/old/calls.SAF"
    Whole = 10,         ///< the path itself
};

/// A piece of a path with "/" or "\" between its folders; the piece has "/". Empty where the
/// path has no such piece.
std::string PieceOf(std::string_view path, PathPart part);

}  // namespace tallix
