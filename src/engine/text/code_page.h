// The one single-byte code page of the system's files, Windows-1252, and the way
// between it and the UTF-8 of texts in memory.
#pragma once

#include <string>
#include <string_view>

namespace tallix {

/// Appends the Windows-1252 form of a UTF-8 text. A character that the code page
/// does not have, or a byte that is not UTF-8, becomes "?". Plain ASCII is copied.
void AppendAnsi(std::string& target, std::string_view utf8);
std::string ToAnsi(std::string_view utf8);

/// UTF-8 from Windows-1252. The five bytes that the code page leaves unassigned
/// become the control characters of the same number.
std::string FromAnsi(std::string_view ansi);

bool IsUtf8(std::string_view bytes);

/// A line of a file that somebody else may have written: taken as UTF-8 where it is
/// valid UTF-8, as Windows-1252 otherwise.
std::string DecodeLine(std::string_view bytes);

}  // namespace tallix
