#include "costing/call_pricing.h"

#include <limits>
#include <optional>

#include "failures/attempt.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::int32_t kMinutesPerHour = 60;
constexpr std::int32_t kSecondsPerMinute = 60;
constexpr double kHundredthsPerPenny = 100.0;

/// One-based places of the parts of a duration, two characters each.
constexpr std::size_t kHoursPlace = 1;
constexpr std::size_t kMinutesPlace = 4;
constexpr std::size_t kSecondsPlace = 7;
constexpr std::size_t kPartLength = 2;

template <typename Integer>
bool Fits(std::int64_t value) {
    return value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max();
}

bool IsWellFormed(std::string_view duration) {
    if (duration.size() != kNoDuration.size()) return false;
    for (std::size_t i = 0; i < duration.size(); ++i) {
        if (kNoDuration[i] == ':' ? duration[i] != ':' : !IsDigit(duration[i])) return false;
    }
    return true;
}

/// The number at a place of the duration, 0 where there is none.
std::int32_t Part(std::string_view duration, std::size_t place) {
    if (IsWellFormed(duration)) return (duration[place - 1] - '0') * 10 + (duration[place] - '0');
    std::int32_t value = 0;
    Attempt([&] { value = ToInteger32(Mid(duration, place, kPartLength)); });
    return value;
}

std::int32_t Amount(std::int32_t units, const UnitCost& cost) {
    const std::int64_t whole = std::int64_t{units} * cost.whole;
    const std::int64_t part = std::int64_t{units} * cost.hundredths;
    std::int32_t amount = Fits<std::int32_t>(whole) ? static_cast<std::int32_t>(whole) : units;
    const auto hundredths = static_cast<double>(Fits<std::int16_t>(part) ? part : units);
    Attempt([&] { amount = RoundToInteger32(amount + hundredths / kHundredthsPerPenny); });
    return amount;
}

}  // namespace

std::int32_t CallPricing::Units(std::string_view duration) const {
    const std::int32_t minutes = Part(duration, kMinutesPlace);
    // Charging by the second leaves the hours out.
    if (unit_ == BillingUnit::Second) return Part(duration, kSecondsPlace) + minutes * kSecondsPerMinute;
    const std::int32_t units = Part(duration, kHoursPlace) * kMinutesPerHour + minutes;
    return Mid(duration, kSecondsPlace, kPartLength) == "00" ? units : units + 1;
}

const UnitCost& CallPricing::CostOf(std::string_view number) {
    const std::optional<std::string_view> match = tariff_.Match(number);
    if (!match) return tariff_.Standard();
    if (match->empty()) {
        matched_ = {tariff_.Standard().whole, 0};
    } else {
        ReadUnitCost(*match, matched_);
    }
    return matched_;
}

CallPricing::Price CallPricing::Of(std::string_view duration, std::string_view number) {
    const std::int32_t amount = Amount(Units(duration), CostOf(number));
    WriteAmount(amount, text_);
    return {amount, text_};
}

}  // namespace tallix
