#include "compat/hive_file.h"

#include <fmt/format.h>

#include <charconv>
#include <utility>

#include "compat/section_text.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::string_view kBinaryMark = "hex:";
constexpr int kHexadecimal = 16;
constexpr std::size_t kDigitsPerByte = 2;
constexpr std::pair<char, char> kEscapes[] = {{'\\', '\\'}, {'"', '"'}, {'n', '\n'}, {'r', '\r'}};

std::string Quote(std::string_view text) {
    std::string quoted = "\"";
    for (const char character : text) {
        char letter = 0;
        for (const auto& [escape, meaning] : kEscapes) {
            if (meaning == character) letter = escape;
        }
        if (letter != 0) quoted += '\\';
        quoted += letter != 0 ? letter : character;
    }
    return quoted + '"';
}

/// The meaning of an escaped letter; a backslash before any other letter was typed
/// by hand and means itself.
std::string Unescape(char letter) {
    for (const auto& [escape, meaning] : kEscapes) {
        if (escape == letter) return {meaning};
    }
    return {'\\', letter};
}

/// Reads a quoted text off the front of `rest`. Nothing when the closing quote lacks.
std::optional<std::string> TakeQuoted(std::string_view& rest) {
    if (!rest.starts_with('"')) return {};
    std::string text;
    for (std::size_t position = 1; position < rest.size(); ++position) {
        const char character = rest[position];
        if (character == '"') {
            rest.remove_prefix(position + 1);
            return text;
        }
        if (character != '\\') {
            text += character;
        } else if (++position < rest.size()) {
            text += Unescape(rest[position]);
        }
    }
    return {};
}

/// Bytes of two hexadecimal digits, divided by commas.
std::optional<std::string> ReadBinary(std::string_view digits) {
    std::string bytes;
    while (!digits.empty()) {
        unsigned char byte = 0;
        const char* const end = digits.data() + std::min(kDigitsPerByte, digits.size());
        const auto [stop, failure] = std::from_chars(digits.data(), end, byte, kHexadecimal);
        if (failure != std::errc() || stop != digits.data() + kDigitsPerByte) return {};
        bytes += static_cast<char>(byte);
        digits.remove_prefix(kDigitsPerByte);
        if (digits.empty()) return bytes;
        if (digits.front() != ',' || digits.size() == 1) return {};
        digits.remove_prefix(1);
    }
    return bytes;
}

std::optional<HiveValue> ReadValue(std::string_view written) {
    if (Left(written, kBinaryMark.size()) == kBinaryMark) {
        std::optional<std::string> bytes = ReadBinary(written.substr(kBinaryMark.size()));
        if (!bytes) return {};
        return HiveValue{HiveValue::Kind::Binary, std::move(*bytes)};
    }
    std::optional<std::string> text = TakeQuoted(written);
    if (!text || !written.empty()) return {};
    return HiveValue{HiveValue::Kind::Text, std::move(*text)};
}

/// A line with a damaged value is not an entry, so that a write does not overwrite it.
std::optional<SectionEntry> ReadHiveEntry(std::string_view line) {
    std::optional<std::string> name = TakeQuoted(line);
    line = TrimBlanks(line);
    if (!name || !line.starts_with('=')) return {};
    const std::string_view written = TrimBlanks(line.substr(1));
    if (!ReadValue(written)) return {};
    return SectionEntry{std::move(*name), std::string(written)};
}

constexpr SectionFormat kHiveFormat{&ReadHiveEntry, true};

std::string WriteValue(const HiveValue& value) {
    if (value.kind == HiveValue::Kind::Text) return Quote(value.data);
    std::string written(kBinaryMark);
    for (const char byte : value.data) {
        if (written.size() > kBinaryMark.size()) written += ',';
        written += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    }
    return written;
}

}  // namespace

std::optional<HiveValue> FindHiveValue(std::string_view hive, std::string_view path, std::string_view name) {
    const std::optional<std::string> written = FindEntry(hive, kHiveFormat, path, name);
    return written ? ReadValue(*written) : std::nullopt;
}

std::string WithHiveValue(std::string_view hive, std::string_view path, std::string_view name,
                          const HiveValue& value) {
    return WithEntry(hive, kHiveFormat, path, name, Quote(name) + "=" + WriteValue(value));
}

}  // namespace tallix
