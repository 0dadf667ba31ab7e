// UTF-8 taken apart and put together, character by character. Shared by the code
// page and the text cipher; overlong forms, surrogates and numbers above 10FFFF
// are invalid.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallix {

/// Replaces a byte that does not belong to a character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

struct Utf8Character {
    char32_t code = kReplacementCharacter;
    std::size_t length = 1;  ///< in bytes; 1 for a wrong byte
    bool valid = false;
};

/// The character that begins at `position`, which is inside the text.
Utf8Character DecodeUtf8(std::string_view text, std::size_t position);

/// Appends a character; a surrogate or a number above 10FFFF as kReplacementCharacter.
void AppendUtf8(std::string& target, char32_t code);

}  // namespace tallix
