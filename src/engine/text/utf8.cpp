#include "text/utf8.h"

namespace tallix {
namespace {

constexpr unsigned kContinuationBits = 6;
constexpr unsigned kContinuationMask = 0x3F;
constexpr char32_t kGreatestCode = 0x10FFFF;

bool IsSurrogate(char32_t code) {
    return code >= 0xD800 && code <= 0xDFFF;
}

unsigned char ByteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

struct LeadByte {
    std::size_t length;  ///< 0 where the byte begins no character
    char32_t bits;
    char32_t least;  ///< the least code that needs this length
};

LeadByte ReadLead(unsigned char byte) {
    if (byte < 0x80) return {1, byte, 0};
    if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
    return {0, 0, 0};
}

char ContinuationByte(char32_t code, unsigned shift) {
    return static_cast<char>(0x80U | ((code >> shift) & kContinuationMask));
}

}  // namespace

Utf8Character DecodeUtf8(std::string_view text, std::size_t position) {
    const LeadByte lead = ReadLead(ByteAt(text, position));
    if (lead.length == 0 || text.size() - position < lead.length) return {};
    char32_t code = lead.bits;
    for (std::size_t offset = 1; offset < lead.length; ++offset) {
        const unsigned char byte = ByteAt(text, position + offset);
        if ((byte & ~kContinuationMask) != 0x80U) return {};
        code = (code << kContinuationBits) | (byte & kContinuationMask);
    }
    if (code < lead.least || code > kGreatestCode || IsSurrogate(code)) return {};
    return {code, lead.length, true};
}

void AppendUtf8(std::string& target, char32_t code) {
    if (IsSurrogate(code) || code > kGreatestCode) code = kReplacementCharacter;
    if (code < 0x80) {
        target += static_cast<char>(code);
        return;
    }
    if (code < 0x800) {
        target += static_cast<char>(0xC0U | (code >> 6U));
    } else if (code < 0x10000) {
        target += static_cast<char>(0xE0U | (code >> 12U));
        target += ContinuationByte(code, 6);
    } else {
        target += static_cast<char>(0xF0U | (code >> 18U));
        target += ContinuationByte(code, 12);
        target += ContinuationByte(code, 6);
    }
    target += ContinuationByte(code, 0);
}

}  // namespace tallix
