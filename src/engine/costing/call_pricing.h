// Prices one call from its duration and the number dialled.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "costing/tariff.h"

namespace tallix {

/// The duration of a call that never was one; it is not priced.
inline constexpr std::string_view kNoDuration = "00:00:00";

class CallPricing {
public:
    /// `billing` is the setting: "M" or empty charges minutes begun, all else seconds.
    /// `tariff` must outlive the pricing.
    CallPricing(Tariff& tariff, std::string_view billing);

    struct Price {
        std::int32_t pence = 0;
        std::string_view text;  ///< lives until the next call is priced
    };

    /// Prices a call. A duration is read by its places, HH:MM:SS; a part that is no
    /// number counts as 0. What does not fit is passed over, as continue-on-error has it:
    ///  - a piece of a tariff cost that is no number keeps the value of the match before;
    ///  - units times whole pence beyond 32 bits leave the plain units as the amount;
    ///  - units times hundredths beyond 16 bits leave the plain units as the hundredths;
    ///  - a sum beyond 32 bits leaves the amount without its hundredths;
    ///  - an amount of seven digits and more keeps the text of the call before.
    Price Of(std::string_view duration, std::string_view number);

private:
    std::int32_t Units(std::string_view duration) const;
    const UnitCost& CostOf(std::string_view number);

    Tariff& tariff_;
    bool byMinute_;
    UnitCost matched_;
    std::string text_;
};

}  // namespace tallix
