// The outside numbers that the made-up company knows: some tens of thousands, of every
// kind that a tariff prices differently.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "setup/random_source.h"

namespace tallix {

enum class NumberKind { Local, National, Mobile, Freephone, Special, International, Premium, Emergency };
inline constexpr std::size_t kNumberKinds = 8;

/// What a number can begin with, how many digits follow, and what a minute costs.
struct NumberRange {
    NumberKind kind;
    std::string_view prefix;
    int digits;             ///< after the prefix
    std::string_view cost;  ///< pence a billing unit
};

/// Every range that the company dials, the most used of a kind first.
std::span<const NumberRange> NumberRanges();

class NumberPool {
public:
    explicit NumberPool(std::uint64_t seed);

    /// A number as it is dialled from a site (place in DemoSites): six digits in the
    /// town itself, no "00" before a country's code.
    const std::string& Dial(NumberKind kind, std::size_t site, RandomSource& random) const;

    /// The number of a caller from outside, always with its area's code.
    std::string Caller(std::size_t site, RandomSource& random) const;

    /// Numbers of a kind, the most used first. For Local, those of the first site.
    const std::vector<std::string>& Of(NumberKind kind) const;

private:
    std::vector<std::vector<std::string>> local_;  ///< one list a site
    std::array<std::vector<std::string>, kNumberKinds> numbers_;
};

}  // namespace tallix
