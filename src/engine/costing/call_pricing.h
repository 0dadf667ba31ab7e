// Prices one call from its duration and the number dialled.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "costing/billing_unit.h"
#include "costing/tariff.h"

namespace tallix {

/// No duration at all: such a call is not priced.
inline constexpr std::string_view kNoDuration = "00:00:00";

class CallPricing {
public:
    /// Minutes are charged when they begin. `tariff` must outlive the pricing.
    CallPricing(Tariff& tariff, BillingUnit unit) : tariff_(tariff), unit_(unit) {}

    struct Price {
        std::int32_t pence = 0;
        std::string_view text;  ///< lives until the next call is priced
    };

    /// Prices a call. A duration is read by its places, HH:MM:SS; a part that is not a
    /// number counts as 0. What does not fit is passed over:
    ///  - a piece of a tariff cost that is not a number keeps the value of the match before;
    ///  - units times whole pence beyond 32 bits leave the plain units as the amount;
    ///  - units times hundredths beyond 16 bits leave the plain units as the hundredths;
    ///  - a sum beyond 32 bits leaves the amount without its hundredths;
    ///  - an amount of seven digits and more keeps the text of the call before.
    Price Of(std::string_view duration, std::string_view number);

private:
    std::int32_t Units(std::string_view duration) const;
    const UnitCost& CostOf(std::string_view number);

    Tariff& tariff_;
    BillingUnit unit_;
    UnitCost matched_;
    std::string text_;
};

}  // namespace tallix
