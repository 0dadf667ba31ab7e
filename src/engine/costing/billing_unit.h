// The unit of time that calls are charged by, and its form in the settings.
#pragma once

#include <string_view>

namespace tallix {

enum class BillingUnit { Minute, Second };

inline constexpr std::string_view kBillingSetting = "Billing";
inline constexpr std::string_view kMinuteText = "M";
inline constexpr std::string_view kSecondText = "S";

/// The unit that a stored text prices calls by: minutes for "M" and the empty text, seconds
/// for anything else.
inline BillingUnit PricingUnit(std::string_view stored) {
    return stored.empty() || stored == kMinuteText ? BillingUnit::Minute : BillingUnit::Second;
}

/// The unit that a stored text shows to a person: seconds for "S", minutes for anything else.
inline BillingUnit ShownUnit(std::string_view stored) {
    return stored == kSecondText ? BillingUnit::Second : BillingUnit::Minute;
}

}  // namespace tallix
