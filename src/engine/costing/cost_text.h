// Amounts and costs between text and whole pence.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallix {

/// A cost per billing unit, as the tariff holds it.
struct UnitCost {
    std::int32_t whole = 0;       ///< whole pence
    std::int32_t hundredths = 0;  ///< hundredths of a penny
};

/// Reads a tariff text such as "1.50" into `cost`, piece by piece: a piece that is not
/// a number keeps the value it had. Hundredths are the last two characters of a text
/// with a point, so costs are meant to be typed with exactly two decimals.
void ReadUnitCost(std::string_view text, UnitCost& cost);

/// The text of a priced call, in pounds and pence, by the number of characters in the
/// amount's decimal form (a minus sign is one of them): 5 is "0.05", 12345 is "123.45".
/// Six characters give the first, ",." and the last two: 123456 is "1,.56". Longer
/// amounts have no text of their own: `text` keeps what it held.
void WriteAmount(std::int32_t pence, std::string& text);

/// The total of a report: "0.05", "123.45", "12,345.67". Characters beyond the eighth
/// from the right are dropped, a minus sign among them.
std::string TotalText(std::int32_t pence);

}  // namespace tallix
