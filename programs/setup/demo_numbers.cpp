#include "setup/demo_numbers.h"

#include "setup/demo_company.h"

namespace tallix {
namespace {

using enum NumberKind;

constexpr NumberRange kRanges[] = {
    {National, "020 7", 7, "1.50"},     {National, "01604", 6, "1.20"},     {National, "0121", 7, "1.50"},
    {National, "01522", 6, "1.20"},     {National, "01392", 6, "1.20"},     {National, "020 8", 7, "1.50"},
    {National, "0161", 7, "1.50"},      {National, "0116", 7, "1.50"},      {National, "0113", 7, "1.50"},
    {National, "01908", 6, "1.20"},     {National, "01536", 6, "1.20"},     {National, "0115", 7, "1.50"},
    {National, "01733", 6, "1.20"},     {National, "01223", 6, "1.20"},     {National, "0117", 7, "1.50"},
    {National, "01752", 6, "1.20"},     {National, "01865", 6, "1.20"},     {National, "024 76", 6, "1.50"},
    {National, "01743", 6, "1.20"},     {National, "0131", 7, "1.50"},      {National, "0141", 7, "1.50"},
    {National, "029 20", 6, "1.50"},    {National, "023 80", 6, "1.50"},    {National, "028 90", 6, "1.50"},
    {National, "01872", 6, "1.20"},     {Mobile, "07700", 6, "9.50"},       {Mobile, "0771", 7, "9.50"},
    {Mobile, "0774", 7, "9.50"},        {Mobile, "0777", 7, "9.50"},        {Mobile, "0780", 7, "10.25"},
    {Mobile, "0785", 7, "10.25"},       {Mobile, "0788", 7, "10.25"},       {Mobile, "0791", 7, "11.00"},
    {Mobile, "0796", 7, "11.00"},       {Mobile, "0739", 7, "12.00"},       {Mobile, "0745", 7, "12.00"},
    {Mobile, "0753", 7, "12.00"},       {Freephone, "0800", 7, "0.00"},     {Freephone, "0808", 7, "0.00"},
    {Special, "0330", 7, "1.50"},       {Special, "0300", 7, "1.50"},       {Special, "0345", 7, "1.50"},
    {Special, "0845", 7, "7.00"},       {Special, "0844", 7, "9.00"},       {Special, "0870", 7, "12.50"},
    {International, "33", 9, "4.50"},   {International, "49", 10, "4.50"},  {International, "353", 8, "3.75"},
    {International, "31", 9, "4.50"},   {International, "1212", 7, "3.00"}, {International, "39", 10, "5.25"},
    {International, "34", 9, "5.25"},   {International, "1617", 7, "3.00"}, {International, "32", 8, "4.50"},
    {International, "46", 9, "6.00"},   {International, "1416", 7, "3.50"}, {International, "41", 9, "7.50"},
    {International, "91", 10, "14.00"}, {International, "61", 9, "9.25"},   {International, "86", 11, "8.00"},
    {International, "971", 8, "22.50"}, {International, "81", 9, "10.50"},  {Premium, "0906", 7, "60.00"},
    {Premium, "0909", 7, "100.00"},     {Premium, "0982", 7, "150.00"},     {Emergency, "999", 0, "0.00"},
    {Emergency, "112", 0, "0.00"},
};

struct KindSize {
    NumberKind kind;
    std::uint32_t numbers;
};

constexpr KindSize kSizes[] = {{National, 9000},      {Mobile, 12000}, {Freephone, 400}, {Special, 600},
                               {International, 2500}, {Premium, 60},   {Emergency, 2}};
constexpr std::uint32_t kLocalNumbers = 3000;

// Of a thousand callers, this many are from the town, and this many from a mobile.
constexpr std::uint32_t kTownCallers = 330;
constexpr std::uint32_t kMobileCallers = 300;
constexpr std::uint32_t kCallersFromAbroad = 25;

std::size_t PlaceOf(NumberKind kind) {
    return static_cast<std::size_t>(kind);
}

// No subscriber's number begins with 0 or 1.
void AppendDigits(std::string& number, int digits, RandomSource& random) {
    for (int i = 0; i < digits; ++i) {
        const std::uint32_t digit = i == 0 ? random.Between(2, 9) : random.Below(10);
        number += static_cast<char>('0' + digit);
    }
}

void AppendWithoutBlanks(std::string& number, std::string_view prefix) {
    for (const char digit : prefix) {
        if (digit != ' ') number += digit;
    }
}

std::vector<const NumberRange*> RangesOf(NumberKind kind) {
    std::vector<const NumberRange*> ranges;
    for (const NumberRange& range : kRanges) {
        if (range.kind == kind) ranges.push_back(&range);
    }
    return ranges;
}

// The first numbers take the ranges in turn, so that each is dialled; the others are
// spread with a preference for the first ones.
std::vector<std::string> MakeNumbers(NumberKind kind, std::uint32_t count, RandomSource& random) {
    const std::vector<const NumberRange*> ranges = RangesOf(kind);
    std::vector<std::string> numbers;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::size_t place = i < ranges.size() ? i : random.Below(random.Below(ranges.size()) + 1);
        std::string number;
        AppendWithoutBlanks(number, ranges[place]->prefix);
        AppendDigits(number, ranges[place]->digits, random);
        numbers.push_back(std::move(number));
    }
    return numbers;
}

std::vector<std::string> MakeLocalNumbers(const DemoSite& site, RandomSource& random) {
    std::vector<std::string> numbers;
    for (std::uint32_t i = 0; i < kLocalNumbers; ++i) {
        std::string number(site.exchanges[random.Below(std::size(site.exchanges))]);
        AppendDigits(number, 3, random);
        numbers.push_back(std::move(number));
    }
    return numbers;
}

const std::string& Pick(const std::vector<std::string>& numbers, RandomSource& random) {
    return numbers[random.Skewed(numbers.size())];
}

}  // namespace

std::span<const NumberRange> NumberRanges() {
    return kRanges;
}

NumberPool::NumberPool(std::uint64_t seed) {
    RandomSource random(seed);
    for (const DemoSite& site : DemoSites()) local_.push_back(MakeLocalNumbers(site, random));
    for (const KindSize& size : kSizes)
        numbers_[PlaceOf(size.kind)] = MakeNumbers(size.kind, size.numbers, random);
}

const std::string& NumberPool::Dial(NumberKind kind, std::size_t site, RandomSource& random) const {
    return Pick(kind == Local ? local_[site] : numbers_[PlaceOf(kind)], random);
}

std::string NumberPool::Caller(std::size_t site, RandomSource& random) const {
    const std::uint32_t origin = random.Below(1000);
    if (origin < kTownCallers) return std::string(DemoSites()[site].area) + Pick(local_[site], random);
    if (origin < kTownCallers + kMobileCallers) return Pick(Of(Mobile), random);
    if (origin < kTownCallers + kMobileCallers + kCallersFromAbroad) return Pick(Of(International), random);
    return Pick(Of(National), random);
}

const std::vector<std::string>& NumberPool::Of(NumberKind kind) const {
    return kind == Local ? local_.front() : numbers_[PlaceOf(kind)];
}

}  // namespace tallix
