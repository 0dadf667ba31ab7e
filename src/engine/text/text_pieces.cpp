#include "text/text_pieces.h"

#include <array>
#include <utility>

#include "failures/errors.h"

namespace tallix {
namespace {

constexpr unsigned kContinuationMask = 0xC0;
constexpr unsigned kContinuation = 0x80;
constexpr unsigned kCaseDistance = 0x20;

bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool BeginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & kContinuationMask) != kContinuation;
}

/// The position after the next `count` characters. A stray continuation byte at the
/// front begins a character, too.
std::size_t Advance(std::string_view text, std::size_t position, std::size_t count) {
    while (count > 0 && position < text.size()) {
        ++position;
        while (position < text.size() && !BeginsCharacter(text[position])) ++position;
        --count;
    }
    return position;
}

/// Two bytes of UTF-8 as one number, which is how the accented letters are laid out.
using BytePair = unsigned;

constexpr BytePair kFirstAccented = 0xC380;   // À
constexpr BytePair kLastAccented = 0xC39E;    // Þ
constexpr BytePair kMultiplication = 0xC397;  // is among the letters, has no case
constexpr BytePair kDivision = kMultiplication + kCaseDistance;

/// The letters of Windows-1252 whose cases are not at the common distance: ŠŒŽŸ.
constexpr std::array<std::pair<BytePair, BytePair>, 4> kIrregular = {
    {{0xC5A0, 0xC5A1}, {0xC592, 0xC593}, {0xC5BD, 0xC5BE}, {0xC5B8, 0xC3BF}}};

BytePair LowerPair(BytePair pair) {
    if (pair >= kFirstAccented && pair <= kLastAccented && pair != kMultiplication)
        return pair + kCaseDistance;
    for (const auto& [upper, lower] : kIrregular) {
        if (pair == upper) return lower;
    }
    return pair;
}

BytePair UpperPair(BytePair pair) {
    const bool regular = pair >= kFirstAccented + kCaseDistance && pair <= kLastAccented + kCaseDistance;
    if (regular && pair != kDivision) return pair - kCaseDistance;
    for (const auto& [upper, lower] : kIrregular) {
        if (pair == lower) return upper;
    }
    return pair;
}

char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + kCaseDistance) : letter;
}

char UpperAscii(char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - kCaseDistance) : letter;
}

/// No letter changes its length with its case, so that a text is turned in place.
std::string TurnCase(std::string_view text, char (*turnAscii)(char), BytePair (*turnPair)(BytePair)) {
    std::string turned(text);
    for (std::size_t position = 0; position < turned.size(); ++position) {
        if (IsAscii(turned[position])) {
            turned[position] = turnAscii(turned[position]);
        } else if (position + 1 < turned.size()) {
            const BytePair pair = static_cast<unsigned char>(turned[position]) * 0x100U +
                                  static_cast<unsigned char>(turned[position + 1]);
            const BytePair other = turnPair(pair);
            if (other == pair) continue;
            turned[position] = static_cast<char>(other / 0x100U);
            turned[++position] = static_cast<char>(other % 0x100U);
        }
    }
    return turned;
}

std::string_view TrimOf(std::string_view text, std::string_view characters) {
    const std::size_t first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace

std::size_t Len(std::string_view text) {
    std::size_t count = !text.empty() && !BeginsCharacter(text.front()) ? 1 : 0;
    for (const char byte : text) count += BeginsCharacter(byte) ? 1 : 0;
    return count;
}

std::string_view Left(std::string_view text, std::size_t count) {
    return count >= text.size() ? text : text.substr(0, Advance(text, 0, count));
}

std::string_view Right(std::string_view text, std::size_t count) {
    if (count >= text.size()) return text;
    std::size_t begin = text.size();
    while (count > 0 && begin > 0) {
        --begin;
        if (BeginsCharacter(text[begin])) --count;
    }
    return text.substr(begin);
}

std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
    if (start == 0) throw ConversionError("the characters of a text are numbered from 1");
    text.remove_prefix(Advance(text, 0, start - 1));
    return Left(text, count);
}

std::string_view Trim(std::string_view text) {
    return TrimOf(text, " ");
}

std::string_view TrimBlanks(std::string_view text) {
    return TrimOf(text, " \t");
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    while (true) {
        const std::size_t found = text.find(from);
        if (found == std::string_view::npos) break;
        result.append(text.substr(0, found)).append(to);
        text.remove_prefix(found + from.size());
    }
    return result.append(text);
}

std::string LowerCase(std::string_view text) {
    return TurnCase(text, &LowerAscii, &LowerPair);
}
std::string UpperCase(std::string_view text) {
    return TurnCase(text, &UpperAscii, &UpperPair);
}

bool EqualNoCase(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    for (std::size_t position = 0; position < left.size(); ++position) {
        if (!IsAscii(left[position]) || !IsAscii(right[position])) {
            return LowerCase(left.substr(position)) == LowerCase(right.substr(position));
        }
        if (LowerAscii(left[position]) != LowerAscii(right[position])) return false;
    }
    return true;
}

}  // namespace tallix
