#include "text/text_conversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "failures/errors.h"
#include "text/text_pieces.h"

namespace tallix {
namespace {

/// Whole numbers up to this length fit 32 bits, whatever their digits.
constexpr std::size_t kSafeDigits = 9;

[[noreturn]] void Fail(std::string_view text, const char* wanted) {
    throw ConversionError("\"" + std::string(text) + "\" is not a " + wanted);
}

bool IsSign(char character) {
    return character == '+' || character == '-';
}

std::size_t DigitsEnd(std::string_view text, std::size_t from) {
    while (from < text.size() && IsDigit(text[from])) ++from;
    return from;
}

/// Whether a text without blanks around it is [sign] digits [. digits] [e [sign] digits],
/// with a digit at least before the exponent.
bool HasFormOfNumber(std::string_view text) {
    const std::size_t begin = !text.empty() && IsSign(text.front()) ? 1 : 0;
    std::size_t end = DigitsEnd(text, begin);
    std::size_t digits = end - begin;
    if (end < text.size() && text[end] == '.') {
        const std::size_t decimals = end + 1;
        end = DigitsEnd(text, decimals);
        digits += end - decimals;
    }
    if (digits == 0) return false;
    if (end == text.size()) return true;
    if (text[end] != 'e' && text[end] != 'E') return false;
    ++end;
    if (end < text.size() && IsSign(text[end])) ++end;
    return end < text.size() && DigitsEnd(text, end) == text.size();
}

/// A number that no double holds is too great, or so near to 0 that it counts as 0: a
/// negative exponent or, with no exponent, the lack of a whole part means the latter.
double BeyondDouble(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    const bool hasExponent = exponent != std::string_view::npos;
    const bool tiny = hasExponent ? number[exponent + 1] == '-' : number.starts_with('.');
    return tiny ? 0.0 : std::numeric_limits<double>::infinity();
}

/// The value of a text with the form of a number; infinite where it is too great.
double ParseDouble(std::string_view text) {
    const bool negative = text.front() == '-';
    if (IsSign(text.front())) text.remove_prefix(1);
    // A number of zeros alone is used up here, and its value stays 0.
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    double value = 0;
    const auto outcome = std::from_chars(text.data(), text.data() + text.size(), value);
    if (outcome.ec == std::errc::result_out_of_range) value = BeyondDouble(text);
    return negative ? -value : value;
}

double ToDouble(std::string_view text, const char* wanted) {
    const std::string_view number = TrimBlanks(text);
    if (!HasFormOfNumber(number)) Fail(text, wanted);
    return ParseDouble(number);
}

/// The ordinary case: a few digits, perhaps after a sign, and nothing else.
std::optional<std::int32_t> ToPlainInteger(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) text.remove_prefix(1);
    if (text.empty() || text.size() > kSafeDigits) return {};
    std::int32_t value = 0;
    for (const char character : text) {
        if (!IsDigit(character)) return {};
        value = value * 10 + (character - '0');
    }
    return negative ? -value : value;
}

template <typename Integer>
Integer RoundTo(double value) {
    const double rounded = std::nearbyint(value);
    constexpr double kLeast = std::numeric_limits<Integer>::min();
    constexpr double kGreatest = std::numeric_limits<Integer>::max();
    if (rounded >= kLeast && rounded <= kGreatest) return static_cast<Integer>(rounded);
    throw ConversionError(std::to_string(value) + " does not fit " + std::to_string(sizeof(Integer) * 8) +
                          " bits");
}

}  // namespace

bool ToBoolean(std::string_view text) {
    if (EqualNoCase(text, "True")) return true;
    if (EqualNoCase(text, "False")) return false;
    return ToDouble(text, "Boolean") != 0;
}

std::int16_t ToInteger16(std::string_view text) {
    const std::optional<std::int32_t> plain = ToPlainInteger(text);
    if (plain && *plain >= INT16_MIN && *plain <= INT16_MAX) return static_cast<std::int16_t>(*plain);
    return RoundToInteger16(ToDouble(text, "number"));
}

std::int32_t ToInteger32(std::string_view text) {
    const std::optional<std::int32_t> plain = ToPlainInteger(text);
    return plain ? *plain : RoundToInteger32(ToDouble(text, "number"));
}

std::int16_t RoundToInteger16(double value) {
    return RoundTo<std::int16_t>(value);
}
std::int32_t RoundToInteger32(double value) {
    return RoundTo<std::int32_t>(value);
}

bool IsNumeric(std::string_view text) {
    return HasFormOfNumber(TrimBlanks(text));
}

}  // namespace tallix
