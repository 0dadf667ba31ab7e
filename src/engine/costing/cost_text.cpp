#include "costing/cost_text.h"

#include <algorithm>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::size_t kHundredthsDigits = 2;
/// Places of a total, counted from 0 at its last digit.
constexpr std::size_t kLastPlaceOfTotal = 7;

/// Keeps `value` where the text is not a number.
void ReadPiece(std::string_view text, std::int32_t& value) {
    Attempt([&] { value = ToInteger32(text); });
}

/// The mark before the digit at `place` of a total.
std::string_view MarkBefore(std::size_t place) {
    if (place == 1) return ".";
    return place == 4 || place == 7 ? "," : "";
}

}  // namespace

void ReadUnitCost(std::string_view text, UnitCost& cost) {
    const std::size_t point = text.find('.');
    ReadPiece(text.substr(0, point), cost.whole);
    if (point == std::string_view::npos) {
        cost.hundredths = 0;
    } else {
        ReadPiece(Right(text, kHundredthsDigits), cost.hundredths);
    }
}

void WriteAmount(std::int32_t pence, std::string& text) {
    const std::string digits = std::to_string(pence);  // short enough to need no heap
    const std::string_view hundredths = Right(digits, kHundredthsDigits);
    switch (digits.size()) {
        case 1:
            text.assign("0.0").append(digits);
            break;
        case 2:
            text.assign("0.").append(digits);
            break;
        case 3:
        case 4:
        case 5:
            text.assign(digits, 0, digits.size() - kHundredthsDigits).append(".").append(hundredths);
            break;
        case 6:
            text.assign(digits, 0, 1).append(",.").append(hundredths);
            break;
        default:
            break;
    }
}

std::string TotalText(std::int32_t pence) {
    const std::string digits = std::to_string(pence);
    if (digits.size() == 1) return "0.0" + digits;
    std::string text;
    for (std::size_t place = std::min(digits.size(), kLastPlaceOfTotal + 1); place-- > 0;) {
        text.append(MarkBefore(place)).push_back(digits[digits.size() - 1 - place]);
    }
    if (text.front() == ',') text.erase(0, 1);
    if (text.front() == '.') text.insert(0, 1, '0');
    return text;
}

}  // namespace tallix
