#include "text/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "text/utf8.h"

namespace tallix {
namespace {

constexpr unsigned kFirstSpecial = 0x80;
constexpr unsigned kFirstLatin = 0xA0;
constexpr unsigned kLastLatin = 0xFF;
constexpr char kNoCharacter = '?';

/// The characters of the bytes 80 to 9F; elsewhere byte and character agree.
constexpr std::array<char16_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char AnsiByte(char32_t code) {
    if (code < kFirstSpecial || (code >= kFirstLatin && code <= kLastLatin)) return static_cast<char>(code);
    const auto special = std::find(kSpecials.begin(), kSpecials.end(), code);
    if (special == kSpecials.end()) return kNoCharacter;
    return static_cast<char>(kFirstSpecial + static_cast<unsigned>(special - kSpecials.begin()));
}

bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < kFirstSpecial;
}

// Nearly all text is ASCII: eight bytes are looked at together.
std::size_t AsciiEnd(std::string_view text, std::size_t from) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    for (std::uint64_t bytes = 0; from + sizeof bytes <= text.size(); from += sizeof bytes) {
        std::memcpy(&bytes, text.data() + from, sizeof bytes);
        if ((bytes & kHighBits) != 0) break;
    }
    while (from < text.size() && IsAscii(text[from])) ++from;
    return from;
}

}  // namespace

void AppendAnsi(std::string& target, std::string_view utf8) {
    std::size_t position = 0;
    while (true) {
        const std::size_t end = AsciiEnd(utf8, position);
        target.append(utf8, position, end - position);
        if (end == utf8.size()) return;
        const Utf8Character character = DecodeUtf8(utf8, end);
        target += character.valid ? AnsiByte(character.code) : kNoCharacter;
        position = end + character.length;
    }
}

std::string ToAnsi(std::string_view utf8) {
    std::string ansi;
    ansi.reserve(utf8.size());
    AppendAnsi(ansi, utf8);
    return ansi;
}

std::string FromAnsi(std::string_view ansi) {
    std::string utf8;
    utf8.reserve(ansi.size());
    for (const char byte : ansi) {
        const auto number = static_cast<unsigned char>(byte);
        const bool special = number >= kFirstSpecial && number < kFirstLatin;
        AppendUtf8(utf8, special ? kSpecials[number - kFirstSpecial] : number);
    }
    return utf8;
}

bool IsUtf8(std::string_view bytes) {
    std::size_t position = AsciiEnd(bytes, 0);
    while (position < bytes.size()) {
        const Utf8Character character = DecodeUtf8(bytes, position);
        if (!character.valid) return false;
        position = AsciiEnd(bytes, position + character.length);
    }
    return true;
}

std::string DecodeLine(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : FromAnsi(bytes);
}

}  // namespace tallix
