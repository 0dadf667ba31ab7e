#include "setup/demo_calls.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "text/text_conversion.h"

namespace tallix {
namespace {

std::vector<Call> Generate(std::uint64_t count, std::uint64_t seed) {
    CallGenerator generator(count, seed);
    std::vector<Call> calls;
    for (Call call; generator.Next(call);) calls.push_back(call);
    return calls;
}

std::string Line(const Call& call) {
    std::string line;
    for (const std::string& text :
         {call.date, call.time, call.duration, call.extension, call.numRings, call.origNum, call.destNum,
          call.internal, call.forward, call.speedcall, call.trunk, call.account, call.site}) {
        line += text + '|';
    }
    return line;
}

// Written down once: a change of a single draw would change every later call, and with
// it every figure that was ever taken from demonstration data.
TEST(CallGenerator, GivesTheSameCallsForASeedOnEveryPlatform) {
    const std::vector<Call> calls = Generate(20000, 1);
    EXPECT_EQ(Line(calls.front()), "01/07/2019|07:21:03|00:00:48|6004|0|6004|08082333716|0|0|0|T005||003|");
    EXPECT_EQ(Line(calls.back()), "30/06/2024|15:20:32|00:03:02|220|8||220|2|0|0|T002||001|");
    EXPECT_NE(Line(Generate(5, 2).front()), Line(calls.front()));
    std::uint32_t sum = 0;
    for (const Call& call : calls) {
        for (const char letter : Line(call)) sum = sum * 31 + static_cast<unsigned char>(letter);
    }
    EXPECT_EQ(sum, 3481712332U) << "a call in between";
}

TEST(CallGenerator, GivesTheCallsAskedForInOrderOfTimeWithoutTies) {
    for (const std::uint64_t count : {0U, 1U, 7U, 5000U}) {
        const std::vector<Call> calls = Generate(count, 5);
        ASSERT_EQ(calls.size(), count);
        std::set<std::string> seen;
        std::pair<int, int> last;
        for (const Call& call : calls) {
            const std::pair moment{DayNumber(call.date), TimeNo(call.time)};
            EXPECT_LE(std::exchange(last, moment), moment);
            EXPECT_TRUE(seen.insert(call.date + call.time + call.site).second) << Line(call);
        }
    }
}

// Most seconds of a busy morning are taken then.
TEST(CallGenerator, EndsForTheGreatestCount) {
    CallGenerator generator(kMostCalls, 3);
    Call call;
    std::set<std::string> seen;
    while (generator.Next(call) && call.date.starts_with("01/07")) {
        EXPECT_TRUE(seen.insert(call.time + call.site).second);
    }
    EXPECT_GT(seen.size(), 10000U);
}

// A tariff row is identified by its first digits.
TEST(NumberRanges, AreDistinctInTheTariff) {
    std::vector<std::string> prefixes;
    for (const NumberRange& range : NumberRanges()) prefixes.push_back(Replace(range.prefix, " ", ""));
    for (const DemoSite& site : DemoSites()) {
        for (const std::string_view exchange : site.exchanges) prefixes.emplace_back(exchange);
    }
    for (const std::string& one : prefixes) {
        int beginning = 0;
        for (const std::string& other : prefixes) beginning += other.starts_with(one) ? 1 : 0;
        EXPECT_EQ(beginning, 1) << one;
    }
}

}  // namespace
}  // namespace tallix
