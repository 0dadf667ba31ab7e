// Calls of the made-up company, one after the other in the order of time. The same
// count and seed give the same calls on every platform. Memory stays flat: one day of
// calls is planned at a time.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "setup/demo_calendar.h"
#include "setup/demo_company.h"
#include "setup/demo_numbers.h"
#include "setup/random_source.h"

namespace tallix {

/// A row of tblphonedata without its key. No two calls share date, time and site.
struct Call {
    std::string date;      ///< dd/mm/yyyy
    std::string time;      ///< hh:mm:ss
    std::string duration;  ///< hh:mm:ss, "00:00:00" for a call that nobody answered
    std::string extension;
    std::string numRings;
    std::string origNum;  ///< empty where a caller withheld the number
    std::string destNum;
    std::string internal;  ///< "1" between extensions, "2" from outside, else "0"
    std::string error;
    std::string supervision;
    std::string speedcall;
    std::string forward;
    std::string trunk;  ///< empty for internal calls
    std::string account;
    std::string site;
};

/// More would no longer find free seconds on a busy morning.
inline constexpr std::uint64_t kMostCalls = 20'000'000;

class CallGenerator {
public:
    /// `count` is at most kMostCalls.
    CallGenerator(std::uint64_t count, std::uint64_t seed);

    /// The next call, or false after the last one. `call` may be used again and again.
    bool Next(Call& call);

    const NumberPool& Numbers() const { return numbers_; }

private:
    bool PlanNextDay();
    std::uint32_t DrawSlot(bool dayOff);
    std::size_t DrawExtension(std::size_t site, std::uint32_t handicap);
    void FillOutgoing(Call& call, std::size_t site);
    void FillIncoming(Call& call, std::size_t site);
    void FillInternal(Call& call, std::size_t site);
    void FillTrunk(Call& call, std::size_t site);
    void FillDuration(Call& call, std::uint32_t unansweredPerMille);

    RandomSource random_;
    DemoCalendar calendar_;
    NumberPool numbers_;
    std::vector<DemoExtension> extensions_;
    std::vector<std::size_t> firstOfSite_;  ///< place of a site's first extension
    std::size_t nextDay_ = 0;
    std::string date_;
    std::vector<bool> taken_;           ///< slots of the day: a second and a site
    std::vector<std::uint32_t> slots_;  ///< the day's calls, sorted
    std::size_t nextSlot_ = 0;
};

}  // namespace tallix
