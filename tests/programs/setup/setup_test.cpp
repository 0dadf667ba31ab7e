#include <gmock/gmock.h>

#include <set>
#include <sstream>

#include "compat/shell_command.h"
#include "reporting/external_applications.h"
#include "setup/demo_calls.h"
#include "setup/office_suite.h"
#include "setup/setup_options.h"
#include "support/test_application.h"
#include "text/text_conversion.h"

namespace tallix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(SetupOptions, TakesEveryOptionAndLeavesTheOthersUnset) {
    const SetupOptions options = ParseSetupOptions(
        {"--type", "3", "--address", "db:5433", "--user", "u", "--password", "--demo", "--admin-password",
         "Pä55 word", "--demo", "0", "--seed", "18446744073709551615", "--user", "last"});
    EXPECT_EQ(options.type + options.address + options.user, "3db:5433last");
    EXPECT_EQ(options.password + options.adminPassword, "--demoPä55 word");
    EXPECT_EQ(options.demoCalls, 0U);
    EXPECT_EQ(options.seed, 18446744073709551615U);
    const SetupOptions none = ParseSetupOptions({});
    EXPECT_EQ(none.type + none.address + none.user + none.password + none.adminPassword, "");
    EXPECT_FALSE(none.demoCalls || none.help);
}

TEST(SetupOptions, RefusesWithAnOptionNamed) {
    const std::pair<std::vector<std::string>, const char*> lines[] = {
        {{"--demos", "5"}, "\"--demos\""},
        {{"tallix.db"}, "\"tallix.db\""},
        {{"--type=1"}, "\"--type=1\""},
        {{"--demo"}, "--demo needs"},
        {{"--address", ""}, "--address needs"},
        {{"--type", "4"}, "--type takes 1, 2 or 3"},
        {{"--demo", "-1"}, "--demo takes"},
        {{"--demo", "1e6"}, "--demo takes"},
        {{"--demo", "20000001"}, "--demo takes"},
        {{"--seed", "18446744073709551616"}, "--seed takes"},
        // The login would never take these.
        {{"--admin-password", "myUpDaTes"}, "--admin-password takes"},
        {{"--admin-password", std::string(45, 'x')}, "--admin-password takes"}};
    for (const auto& [arguments, message] : lines) {
        try {
            ParseSetupOptions(arguments);
            ADD_FAILURE() << "taken: " << arguments[0];
        } catch (const UsageError& failure) {
            EXPECT_THAT(failure.what(), HasSubstr(message));
        }
    }
}

TEST(OfficeSuite, ARecordedSuiteIsListedAndItsSpreadsheetStarts) {
    test::TestApplication test;
    const std::filesystem::path folder = test.Folder() / "Office 7" / "program";
    std::filesystem::create_directories(folder);
    for (const char* name : {"soffice", "scalc"}) {
        std::ofstream(folder / name) << "#!/bin/sh\n";
        std::filesystem::permissions(folder / name, std::filesystem::perms::owner_all);
    }
    std::ostringstream out;
    RecordOfficeSuite({"/nowhere"}, test.settings, out);
    RecordOfficeSuite({"/nowhere", folder}, test.settings, out);
    EXPECT_EQ(out.str(), "Spreadsheet: " + folder.string() + " recorded\n");

    const std::string entry = "OpenOffice.org 3.0 Calc";
    EXPECT_THAT(ExternalApplications(test.settings), testing::Contains(entry));
    EXPECT_THAT(TranslateCommand(ReadShellCommand(ExternalCommand(test.application, entry))),
                ElementsAre((folder / "scalc").string(), (test.application.tempFolder / "rpt.csv").string()));
    RecordOfficeSuite({"/elsewhere"}, test.settings, out);
    EXPECT_THAT(out.str(), HasSubstr("recorded already"));
}

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
        EXPECT_EQ(std::ranges::count_if(prefixes, [&](const auto& other) { return other.starts_with(one); }),
                  1)
            << one;
    }
}

}  // namespace
}  // namespace tallix
