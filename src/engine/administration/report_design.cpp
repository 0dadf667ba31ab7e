#include "administration/report_design.h"

#include <fmt/format.h>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::uint32_t kParts = 256;
constexpr std::size_t kDigits = 3;

/// The part of a colour from `start`, counted from one; nothing for other text.
std::optional<int> PartOf(std::string_view digits, std::size_t start) {
    std::int16_t part = -1;
    Attempt([&] { part = ToInteger16(Mid(digits, start, kDigits)); });
    if (part < 0 || part >= static_cast<int>(kParts)) return std::nullopt;
    return part;
}

}  // namespace

std::uint32_t ColourCode(const Colour& colour) {
    return colour.red + colour.green * kParts + colour.blue * kParts * kParts;
}

std::string ColorCodeToRGB(std::uint32_t code) {
    return fmt::format("{:03}{:03}{:03}", code % kParts, code / kParts % kParts,
                       code / (kParts * kParts) % kParts);
}

std::optional<Colour> ColourOfDigits(std::string_view digits) {
    const std::optional<int> red = PartOf(digits, 1);
    const std::optional<int> green = PartOf(digits, 1 + kDigits);
    const std::optional<int> blue = PartOf(digits, 1 + 2 * kDigits);
    if (!red || !green || !blue) return std::nullopt;
    return Colour{*red, *green, *blue};
}

std::optional<Colour> ChooseColour(Prompts& prompts) {
    const std::optional<Colour> chosen = prompts.AskColour("Select Colour");
    return chosen && ColourCode(*chosen) != 0 ? chosen : std::nullopt;
}

void RestoreDefaultColours(const SettingsStore& settings) {
    for (const DesignColour& colour : kDesignColours) settings.Write(colour.resetKey, colour.usual);
}

}  // namespace tallix
