// Text to value and back, as every stored text of the system is read: switches and
// numbers here, dates and times in date_text.h, parts of texts in text_pieces.h; this
// header brings all three. Conversions that find no value throw ConversionError, so
// that continue-on-error (failures/attempt.h) can pass over them. None looks at the
// locale.
#pragma once

#include <cstdint>
#include <string_view>

#include "text/date_text.h"    // IWYU pragma: export
#include "text/text_pieces.h"  // IWYU pragma: export

namespace tallix {

/// "True" and "False" in any case; any number, where all but 0 is true.
bool ToBoolean(std::string_view text);

/// A number in text, rounded half to even. Blanks and tabs around it, a sign, decimals
/// (after a point, whatever the locale) and an exponent are taken. Throws when the
/// text is not a number or the value does not fit.
std::int16_t ToInteger16(std::string_view text);
std::int32_t ToInteger32(std::string_view text);

/// Half to even, the one rounding of the system. Throws when the value does not fit.
std::int16_t RoundToInteger16(double value);
std::int32_t RoundToInteger32(double value);

/// Whether ToInteger32 and its kin could read the text, leaving range aside: "1.5"
/// and "1e3" are numeric, "" and "12a" are not.
bool IsNumeric(std::string_view text);

}  // namespace tallix
