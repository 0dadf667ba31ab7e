// Random values that are the same on every platform. The generator is
// fixed by the language standard; the ways of using it are integer arithmetic of
// this file alone, since the library's own distributions differ between makers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <span>

namespace tallix {

class RandomSource {
public:
    explicit RandomSource(std::uint64_t seed) : generator_(seed) {}

    /// A whole number from 0 to `limit` - 1, each as likely. `limit` is from 1 to 2^32 - 1.
    std::uint32_t Below(std::uint64_t limit) {
        const std::uint64_t high = generator_() >> 32;
        return static_cast<std::uint32_t>((high * limit) >> 32);
    }

    /// A whole number from `lowest` to `highest`, both included.
    std::uint32_t Between(std::uint32_t lowest, std::uint32_t highest) {
        return lowest + Below(highest - lowest + 1);
    }

    /// True in `perMille` of a thousand cases.
    bool Chance(std::uint32_t perMille) { return Below(1000) < perMille; }

    /// A number below `limit` where low ones are far more likely: as the numbers that
    /// a company dials, of which few are dialled daily and most once a year.
    std::uint32_t Skewed(std::uint64_t limit) {
        const std::uint32_t wide = Below(limit) + 1;
        const std::uint32_t narrow = Below(wide) + 1;
        return Below(narrow);
    }

    /// The place in `weights`, each as likely as its weight says. Not all are 0.
    std::size_t Weighted(std::span<const std::uint32_t> weights) {
        std::uint32_t sum = 0;
        for (const std::uint32_t weight : weights) sum += weight;
        std::uint32_t drawn = Below(sum);
        std::size_t place = 0;
        while (drawn >= weights[place]) drawn -= weights[place++];
        return place;
    }

private:
    std::mt19937_64 generator_;
};

}  // namespace tallix
