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

    /// Prices a call. Parts of a duration that are no numbers keep the value of the
    /// call before, as continue-on-error has it.
    Price Of(std::string_view duration, std::string_view number);
};

}  // namespace tallix
