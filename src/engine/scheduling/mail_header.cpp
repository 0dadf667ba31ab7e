#include "scheduling/mail_header.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>

namespace tallix {
namespace {

/// Bytes that give an encoded word of 72 characters; 75 are allowed.
constexpr std::size_t kBytesPerWord = 45;
constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::array<std::string_view, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

bool IsControl(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 0x20 || code == 0x7f;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool IsContinuation(char character) {
    return (static_cast<unsigned char>(character) & 0xC0) == 0x80;
}

std::string WithoutControls(std::string_view text) {
    std::string clean(text);
    std::erase_if(clean, IsControl);
    return clean;
}

std::string Base64(std::string_view bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        for (std::size_t j = i; j < i + 3; ++j) {
            group = group << 8 | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
        }
        for (std::size_t j = 0; j < 4; ++j) {
            text += i + j <= bytes.size() ? kAlphabet[group >> (18 - 6 * j) & 63] : '=';
        }
    }
    return text;
}

std::string EncodedWords(std::string_view text) {
    std::string words;
    while (!text.empty()) {
        std::size_t length = std::min(text.size(), kBytesPerWord);
        // No character is cut in two; bytes that are not UTF-8 have no character border.
        while (length < text.size() && length > kBytesPerWord - 4 && IsContinuation(text[length])) --length;
        words +=
            fmt::format("{}=?UTF-8?B?{}?=", words.empty() ? "" : "\r\n ", Base64(text.substr(0, length)));
        text.remove_prefix(length);
    }
    return words;
}

}  // namespace

std::string HeaderText(std::string_view text) {
    const std::string line = WithoutControls(text);
    return IsAscii(line) ? line : EncodedWords(line);
}

std::string PlainAddress(std::string_view address) {
    std::string plain = WithoutControls(address);
    std::erase_if(plain, [](char c) { return c == ' ' || c == '<' || c == '>'; });
    return plain;
}

std::string NamedAddress(std::string_view name, std::string_view address) {
    std::string shown;
    if (IsAscii(name)) {
        for (const char character : WithoutControls(name)) {
            if (character == '"' || character == '\\') shown += '\\';
            shown += character;
        }
        shown = '"' + shown + '"';
    } else {
        shown = HeaderText(name);
    }
    return fmt::format("{} <{}>", shown, PlainAddress(address));
}

std::string MailDate(std::time_t moment) {
    std::tm local{};
    localtime_r(&moment, &local);
    const long minutes = local.tm_gmtoff / 60;
    return fmt::format(
        "{}, {:02} {} {} {:02}:{:02}:{:02} {}{:02}{:02}", kDays[static_cast<std::size_t>(local.tm_wday)],
        local.tm_mday, kMonths[static_cast<std::size_t>(local.tm_mon)], local.tm_year + 1900, local.tm_hour,
        local.tm_min, local.tm_sec, minutes < 0 ? '-' : '+', std::abs(minutes) / 60, std::abs(minutes) % 60);
}

std::string NewMessageId(std::string_view from) {
    const std::string sender = PlainAddress(from);
    const std::size_t at = sender.rfind('@');
    const std::string domain =
        at == std::string::npos || !IsAscii(sender) ? "localhost" : sender.substr(at + 1);
    std::random_device random;
    return fmt::format("<{:08x}{:08x}.{:08x}{:08x}@{}>", random(), random(), random(), random(), domain);
}

std::string WithNetworkLineEnds(std::string_view text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
        if (text[i] == '\n' || text[i] == '\r') {
            lines += "\r\n";
        } else {
            lines += text[i];
        }
    }
    return lines;
}

}  // namespace tallix
