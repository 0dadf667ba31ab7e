#include "text/encryption_tools.h"

#include <cstdint>

#include "failures/errors.h"
#include "text/text_conversion.h"
#include "text/utf8.h"

namespace tallix {
namespace {

/// A database can be read only with the key that wrote it.
constexpr std::string_view kStorageKey = "Tb9+QuillPr3ssM0nKy";

/// The bytes that are turned form a ring: 48 to 150, 103 of them.
constexpr int kRingFirst = 48;
constexpr int kRingLast = 150;
constexpr int kRingSize = kRingLast - kRingFirst + 1;

/// The system counts the bytes in 16 bits.
constexpr std::size_t kMostBytes = INT16_MAX;

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr unsigned kBitsPerByte = 8;
constexpr char32_t kFirstSupplementary = 0x10000;

struct KeySchedule {
    std::vector<int> masks;
    std::vector<int> turns;
};

KeySchedule MakeSchedule(std::string_view key) {
    if (key.empty()) throw ConversionError("the key of the cipher is empty");
    KeySchedule schedule;
    double sum = 0;
    for (const char character : key) {
        const int code = static_cast<unsigned char>(character);
        // Codes above 207 would turn by more than the ring and could push a byte out of
        // it for good. Leaving whole turns out keeps the cipher reversible for any key;
        // the key of the system has no such code.
        schedule.turns.push_back(RoundToInteger32(code / 2.0) % kRingSize);
        schedule.masks.push_back(code);
        sum += code;
    }
    const int average = RoundToInteger32(sum / static_cast<double>(key.size()));
    for (int& mask : schedule.masks) mask = RoundToInteger32((mask + average) / 2.0);
    return schedule;
}

bool InRing(int value) {
    return value >= kRingFirst && value <= kRingLast;
}

int Turn(int value, int by) {
    if (!InRing(value)) return value;
    value += by;
    if (value > kRingLast) return value - kRingSize;
    return value < kRingFirst ? value + kRingSize : value;
}

void RequireShort(const EncryptionTools::Bytes& data) {
    if (data.size() <= kMostBytes) return;
    throw ConversionError("the text is too long for the cipher: " + std::to_string(data.size()) + " bytes");
}

// Turns each byte by its own place in the key.
template <typename Step>
EncryptionTools::Bytes Transform(std::string_view key, const EncryptionTools::Bytes& data, Step step) {
    RequireShort(data);
    const KeySchedule schedule = MakeSchedule(key);
    EncryptionTools::Bytes result;
    result.reserve(data.size());
    for (const unsigned char byte : data) {
        const std::size_t place = result.size() % key.size();
        result.push_back(
            static_cast<unsigned char>(step(byte, schedule.masks[place], schedule.turns[place])));
    }
    return result;
}

void AppendUnit(EncryptionTools::Bytes& bytes, char32_t unit) {
    bytes.push_back(static_cast<unsigned char>(unit & 0xFFU));
    bytes.push_back(static_cast<unsigned char>(unit >> kBitsPerByte));
}

char32_t UnitAt(const EncryptionTools::Bytes& bytes, std::size_t index) {
    return bytes[index] | (static_cast<char32_t>(bytes[index + 1]) << kBitsPerByte);
}

bool IsHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

unsigned DigitValue(char digit) {
    if (digit >= '0' && digit <= '9') return static_cast<unsigned>(digit - '0');
    if (digit >= 'A' && digit <= 'F') return static_cast<unsigned>(digit - 'A') + 10;
    if (digit >= 'a' && digit <= 'f') return static_cast<unsigned>(digit - 'a') + 10;
    throw ConversionError("the stored text is not hexadecimal");
}

}  // namespace

EncryptionTools::Bytes EncryptionTools::Encipher(std::string_view key, const Bytes& data) {
    return Transform(key, data, [](int byte, int mask, int turn) { return Turn(byte ^ mask, turn); });
}

EncryptionTools::Bytes EncryptionTools::Decipher(std::string_view key, const Bytes& data) {
    return Transform(key, data, [](int byte, int mask, int turn) { return Turn(byte, -turn) ^ mask; });
}

EncryptionTools::Bytes EncryptionTools::ToBytes(std::string_view utf8) {
    Bytes bytes;
    bytes.reserve(utf8.size() * 2);
    for (std::size_t position = 0; position < utf8.size();) {
        const Utf8Character character = DecodeUtf8(utf8, position);
        position += character.length;
        if (character.code < kFirstSupplementary) {
            AppendUnit(bytes, character.code);
        } else {
            const char32_t rest = character.code - kFirstSupplementary;
            AppendUnit(bytes, 0xD800U + (rest >> 10U));
            AppendUnit(bytes, 0xDC00U + (rest & 0x3FFU));
        }
    }
    return bytes;
}

std::string EncryptionTools::FromBytes(const Bytes& bytes) {
    std::string utf8;
    utf8.reserve(bytes.size() / 2);
    for (std::size_t index = 0; index + 1 < bytes.size(); index += 2) {
        char32_t code = UnitAt(bytes, index);
        const bool followed = IsHighSurrogate(code) && index + 3 < bytes.size();
        if (followed && IsLowSurrogate(UnitAt(bytes, index + 2))) {
            index += 2;
            code = kFirstSupplementary + ((code & 0x3FFU) << 10U) + (UnitAt(bytes, index) & 0x3FFU);
        }
        AppendUtf8(utf8, code);
    }
    return utf8;
}

std::string EncryptionTools::ToHexadecimal(const Bytes& bytes) {
    std::string digits;
    digits.reserve(bytes.size() * 2);
    for (const unsigned char byte : bytes) {
        digits += kDigits[byte >> 4U];
        digits += kDigits[byte & 0xFU];
    }
    return digits;
}

EncryptionTools::Bytes EncryptionTools::FromHexadecimal(std::string_view digits) {
    Bytes bytes;
    bytes.reserve(digits.size() / 2);
    for (std::size_t index = 0; index + 1 < digits.size(); index += 2) {
        bytes.push_back(
            static_cast<unsigned char>((DigitValue(digits[index]) << 4U) | DigitValue(digits[index + 1])));
    }
    return bytes;
}

std::string EncipherForStorage(std::string_view text) {
    using Tools = EncryptionTools;
    return Tools::ToHexadecimal(Tools::Encipher(kStorageKey, Tools::ToBytes(text)));
}

std::string DecipherFromStorage(std::string_view stored) {
    using Tools = EncryptionTools;
    return Tools::FromBytes(Tools::Decipher(kStorageKey, Tools::FromHexadecimal(stored)));
}

}  // namespace tallix
