#include "text/ip_address.h"

#include "text/text_pieces.h"

#include <algorithm>

namespace tallix {
namespace {

constexpr int kParts = 4;
constexpr int kLargest = 255;
constexpr int kBase = 10;

/// Too large a number stays above kLargest, however long it is.
bool FitsPart(std::string_view digits) {
    int value = 0;
    for (const char digit : digits) value = std::min(value * kBase + (digit - '0'), kLargest + 1);
    return value <= kLargest;
}

}  // namespace

bool IsIpAddress(std::string_view text, EmptyPart emptyPart) {
    if (text.starts_with('.') || text.ends_with('.')) return false;
    const auto known = [](char character) { return IsDigit(character) || character == '.'; };
    if (!std::all_of(text.begin(), text.end(), known)) return false;
    if (std::count(text.begin(), text.end(), '.') != kParts - 1) return false;
    while (true) {
        const std::size_t point = text.find('.');
        const std::string_view part = text.substr(0, point);
        if (!FitsPart(part) || (part.empty() && emptyPart == EmptyPart::Refused)) return false;
        if (point == std::string_view::npos) return true;
        text.remove_prefix(point + 1);
    }
}

}  // namespace tallix
