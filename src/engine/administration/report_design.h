// The four colours of the coloured reports, as they are stored: nine digits, three each
// for red, green and blue, each part from 0 to 255.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/prompts.h"
#include "settings/settings_store.h"

namespace tallix {

struct DesignColour {
    std::string_view button;    ///< caption of the button that chooses it
    std::string_view key;       ///< where it is stored
    std::string_view resetKey;  ///< where "Restore Defaults" writes the usual colour; nothing reads it
    std::string_view usual;     ///< nine digits
};

/// In the order in which they are saved.
inline constexpr std::array<DesignColour, 4> kDesignColours = {{
    {"Titlebar Colour", "rptTC", "tprTC", "002001118"},
    {"Table Header Colour", "rptTHC", "tprTHC", "180003000"},
    {"Table Divide Colour", "rptTDC", "tprTDC", "254254170"},
    {"Total Bar Colour", "rptTBC", "tprTBC", "162196091"},
}};

/// A colour as one number, with red in its low byte.
std::uint32_t ColourCode(const Colour& colour);

/// The nine digits of such a number.
std::string ColorCodeToRGB(std::uint32_t code);

/// The colour of nine digits; nothing for any other text.
std::optional<Colour> ColourOfDigits(std::string_view digits);

/// Asks for a colour. Returns nothing for black and when cancelled, which the answer of the
/// colour dialog does not distinguish.
std::optional<Colour> ChooseColour(Prompts& prompts);

/// Writes the usual colours where "Restore Defaults" does. The colours of the reports
/// change only when the window is saved.
void RestoreDefaultColours(const SettingsStore& settings);

}  // namespace tallix
