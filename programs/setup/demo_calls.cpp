#include "setup/demo_calls.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "text/text_conversion.h"

namespace tallix {
namespace {

constexpr std::uint32_t kSecondsOfHour = 3600;
constexpr std::uint32_t kSecondsOfDay = 24 * kSecondsOfHour;

constexpr std::array<std::uint32_t, 24> kHourWeights = {
    1, 1, 1, 1, 1, 2, 5, 24, 92, 162, 171, 166, 112, 104, 161, 157, 142, 74, 22, 10, 6, 4, 2, 1};
constexpr std::array<std::uint32_t, 24> kHourWeightsOfDayOff = {2,  2,  2,  2,  2,  3,  4,  6, 12, 18, 22, 22,
                                                                20, 18, 18, 16, 14, 12, 10, 8, 6,  5,  3,  2};
constexpr std::array<std::uint32_t, 3> kSiteWeights = {50, 29, 21};

// `Internal` is "0" for calls that leave the company, which alone cost something.
constexpr const char* kWithinCompany = "1";
constexpr const char* kFromOutside = "2";

enum Direction { kOutgoing, kIncoming, kInternal };
constexpr std::array<std::uint32_t, 3> kDirectionWeights = {55, 35, 10};

// By NumberKind, of ten thousand outgoing calls.
constexpr std::array<std::uint32_t, kNumberKinds> kKindWeights = {3300, 3000, 2500, 350, 400, 400, 45, 5};

struct DurationBand {
    std::uint32_t weight;
    std::uint32_t shortest;  ///< seconds
    std::uint32_t longest;
};
constexpr DurationBand kDurationBands[] = {
    {340, 3, 59}, {440, 60, 299}, {165, 300, 899}, {50, 900, 3599}, {5, 3600, 9000}};

// Of a thousand calls of their sort.
constexpr std::uint32_t kUnansweredOutgoing = 80;
constexpr std::uint32_t kUnansweredIncoming = 130;
constexpr std::uint32_t kUnansweredInternal = 150;
constexpr std::uint32_t kSpeedcalls = 60;
constexpr std::uint32_t kChargedToAccount = 220;
constexpr std::uint32_t kForwarded = 70;
constexpr std::uint32_t kWithheld = 60;
constexpr std::uint32_t kForSwitchboard = 240;
constexpr std::uint32_t kToVoicemail = 90;
constexpr std::uint32_t kWithinSite = 780;

std::string Clock(std::uint32_t seconds) {
    return fmt::format("{:02}:{:02}:{:02}", seconds / kSecondsOfHour, seconds / 60 % 60, seconds % 60);
}

std::string DateText(std::chrono::sys_days day) {
    const std::chrono::year_month_day date{day};
    DateTime moment;
    moment.year = static_cast<int>(date.year());
    moment.month = static_cast<int>(static_cast<unsigned>(date.month()));
    moment.day = static_cast<int>(static_cast<unsigned>(date.day()));
    return ShortDate(moment);
}

std::uint32_t DrawDuration(RandomSource& random) {
    std::array<std::uint32_t, std::size(kDurationBands)> weights{};
    std::transform(std::begin(kDurationBands), std::end(kDurationBands), weights.begin(),
                   [](const DurationBand& band) { return band.weight; });
    const DurationBand& band = kDurationBands[random.Weighted(weights)];
    return random.Between(band.shortest, band.longest);
}

void Clear(Call& call) {
    for (std::string* flag :
         {&call.error, &call.supervision, &call.speedcall, &call.forward, &call.internal}) {
        *flag = "0";
    }
    call.trunk.clear();
    call.account.clear();
}

}  // namespace

CallGenerator::CallGenerator(std::uint64_t count, std::uint64_t seed)
    : random_(seed),
      calendar_(count, seed),
      numbers_(seed),
      extensions_(DemoExtensions()),
      taken_(kSecondsOfDay * DemoSites().size()) {
    for (std::size_t place = 0; place < extensions_.size(); ++place) {
        if (place == 0 || extensions_[place].site != extensions_[place - 1].site)
            firstOfSite_.push_back(place);
    }
}

bool CallGenerator::Next(Call& call) {
    while (nextSlot_ == slots_.size()) {
        if (!PlanNextDay()) return false;
    }
    const auto sites = static_cast<std::uint32_t>(DemoSites().size());
    const std::uint32_t slot = slots_[nextSlot_++];
    const std::size_t site = slot % sites;
    Clear(call);
    call.date = date_;
    call.time = Clock(slot / sites);
    call.site = DemoSites()[site].id;
    switch (static_cast<Direction>(random_.Weighted(kDirectionWeights))) {
        case kOutgoing:
            FillOutgoing(call, site);
            break;
        case kIncoming:
            FillIncoming(call, site);
            break;
        case kInternal:
            FillInternal(call, site);
            break;
    }
    return true;
}

// A slot is a second of the day and a site; sorted, slots are in the order of time.
bool CallGenerator::PlanNextDay() {
    if (nextDay_ == calendar_.Days()) return false;
    const std::chrono::sys_days day = kFirstCallDay + std::chrono::days{nextDay_};
    date_ = DateText(day);
    taken_.assign(taken_.size(), false);
    slots_.clear();
    nextSlot_ = 0;
    const bool dayOff = IsDayOff(day);
    for (std::uint64_t left = calendar_.CallsOn(nextDay_++); left > 0; --left)
        slots_.push_back(DrawSlot(dayOff));
    std::sort(slots_.begin(), slots_.end());
    return true;
}

std::uint32_t CallGenerator::DrawSlot(bool dayOff) {
    while (true) {
        const auto hour =
            static_cast<std::uint32_t>(random_.Weighted(dayOff ? kHourWeightsOfDayOff : kHourWeights));
        const std::uint32_t second = hour * kSecondsOfHour + random_.Below(kSecondsOfHour);
        const auto site = static_cast<std::uint32_t>(random_.Weighted(kSiteWeights));
        const std::uint32_t slot = second * static_cast<std::uint32_t>(kSiteWeights.size()) + site;
        if (!taken_[slot]) {
            taken_[slot] = true;
            return slot;
        }
    }
}

// Some people telephone more than others: of `handicap` draws the lowest counts.
std::size_t CallGenerator::DrawExtension(std::size_t site, std::uint32_t handicap) {
    const int count = DemoSites()[site].extensions;
    std::uint32_t lowest = random_.Below(count);
    for (std::uint32_t i = 1; i < handicap; ++i) lowest = std::min(lowest, random_.Below(count));
    return firstOfSite_[site] + lowest;
}

void CallGenerator::FillOutgoing(Call& call, std::size_t site) {
    const auto kind = static_cast<NumberKind>(random_.Weighted(kKindWeights));
    call.extension = extensions_[DrawExtension(site, 2)].number;
    call.origNum = call.extension;
    call.destNum = numbers_.Dial(kind, site, random_);
    call.numRings = "0";
    FillTrunk(call, site);
    FillDuration(call, kUnansweredOutgoing);
    if (random_.Chance(kSpeedcalls)) call.speedcall = "1";
    if (random_.Chance(kChargedToAccount)) {
        call.account = DemoAccounts()[random_.Skewed(DemoAccounts().size())];
    }
}

void CallGenerator::FillIncoming(Call& call, std::size_t site) {
    call.internal = kFromOutside;
    const bool forSwitchboard = random_.Chance(kForSwitchboard);
    call.extension = extensions_[forSwitchboard ? firstOfSite_[site] : DrawExtension(site, 1)].number;
    call.origNum = numbers_.Caller(site, random_);
    if (random_.Chance(kWithheld)) call.origNum.clear();
    call.destNum = call.extension;
    FillTrunk(call, site);
    FillDuration(call, kUnansweredIncoming);
    const bool answered = call.duration != Clock(0);
    call.numRings = std::to_string(answered ? random_.Between(1, 8) : random_.Between(3, 14));
    if (random_.Chance(kForwarded)) call.forward = "1";
}

void CallGenerator::FillInternal(Call& call, std::size_t site) {
    const std::size_t caller = DrawExtension(site, 1);
    call.internal = kWithinCompany;
    call.extension = extensions_[caller].number;
    call.origNum = call.extension;
    if (random_.Chance(kToVoicemail)) {
        call.destNum = DemoSites()[site].voicemail;
    } else {
        const std::size_t other = random_.Chance(kWithinSite) ? site : random_.Weighted(kSiteWeights);
        const std::size_t called = DrawExtension(other, 1);
        const std::size_t next = caller + 1 < extensions_.size() ? caller + 1 : 0;
        call.destNum = extensions_[called == caller ? next : called].number;
    }
    call.numRings = std::to_string(random_.Between(1, 6));
    FillDuration(call, kUnansweredInternal);
}

void CallGenerator::FillTrunk(Call& call, std::size_t site) {
    const int trunks = DemoSites()[site].trunks;
    const std::uint32_t one = random_.Below(trunks);
    const std::uint32_t other = random_.Below(trunks);
    call.trunk = fmt::format("T{:03}", std::min(one, other) + 1);
}

void CallGenerator::FillDuration(Call& call, std::uint32_t unansweredPerMille) {
    const bool unanswered = random_.Chance(unansweredPerMille);
    call.duration = Clock(unanswered ? 0 : DrawDuration(random_));
}

}  // namespace tallix
