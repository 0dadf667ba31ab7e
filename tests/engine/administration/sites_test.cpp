#include "administration/sites.h"

#include <gtest/gtest.h>

#include "support/scripted_prompts.h"

namespace tallix {
namespace {

TEST(Sites, ReportProblemsInTheirOrder) {
    using Texts = std::vector<std::string>;
    struct Case {
        std::string ip;
        std::string port;
        SiteEntry entry;
        std::size_t sites;
        bool saved;
        Texts titles;
    };
    const Texts wrong = {"IP Error"};
    std::vector<Case> cases = {
        {"1.2.3.4", "1752", SiteEntry::Added, 998, true, {}},
        {"1.2.3.4", "no port", SiteEntry::Added, 1000, true, {}},
        {"1.2.3.4", "", SiteEntry::Edited, 999, true, {"Tallix"}},
        {"", "", SiteEntry::Added, 0, true, {"Tallix", "Tallix"}},
        {"", "1752", SiteEntry::Added, 0, true, {"Tallix"}},
        {"wrong", "", SiteEntry::Added, 999, false, {"Tallix"}},
    };
    for (const char* ip : {"1..2.3", "host", " "})
        cases.push_back({ip, "", SiteEntry::Edited, 1, false, wrong});
    for (const Case& test : cases) {
        test::ScriptedPrompts prompts;
        SiteRecord site;
        site.switchIp = test.ip;
        site.switchPort = test.port;
        EXPECT_EQ(MaySaveSite(prompts, site, test.entry, test.sites), test.saved) << test.ip;
        Texts titles;
        for (const Message& message : prompts.messages) titles.push_back(message.title);
        EXPECT_EQ(titles, test.titles) << test.ip;
    }
}

}  // namespace
}  // namespace tallix
