// Parts of texts, replacement and letter case. Text is UTF-8 and positions count
// characters, not bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallix {

/// The number of characters of a text.
std::size_t Len(std::string_view text);

/// The first, the last, and `count` characters from the one-based `start`. Less is
/// returned where the text has less. A start of 0 throws ConversionError.
std::string_view Left(std::string_view text, std::size_t count);
std::string_view Right(std::string_view text, std::size_t count);
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count);

/// Without blanks (character 32) at both ends.
std::string_view Trim(std::string_view text);

/// Without blanks and tabs at both ends.
std::string_view TrimBlanks(std::string_view text);

inline bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The text with every occurrence of `from` replaced by `to`. `from` is not empty.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

/// Lower and upper case of the letters A to Z and of the accented letters of
/// Windows-1252; other characters stay.
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// Equality without regard to case, as LowerCase sees it.
bool EqualNoCase(std::string_view left, std::string_view right);

}  // namespace tallix
