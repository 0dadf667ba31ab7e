#include "admin/sites.h"

#include <gmock/gmock.h>

#include "support/test_application.h"

namespace tallix {
namespace {

TEST(Sites, SayWhatIsAmissInTheirOrder) {
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
    for (const char* ip : {"192.168.1.300", "1.2.3", "1.2.3.4.5", "1..2.3", ".1.2.3", "1.2.3.", "1.2.3.4 ",
                           "-1.2.3.4", "1.2.3.a", "...", "host", " ", "99999999999.1.1.1"})
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

TEST(Sites, HaveTheCodeOfACustomLayoutUnlessItsNameIsExact) {
    EXPECT_EQ(SystemCode("Mitel 5000"), "4");
    for (const char* custom : {"", "mitel 5000", "Reception"}) EXPECT_EQ(SystemCode(custom), "C");
}

TEST(Sites, StopTheServicesBeforeTheyStartThem) {
    test::TestApplication test;
    test.application.folder = test.Folder() / "ReportsTool";
    for (const auto& [name, word] : {std::pair("Service_Off.bat", "off"), {"Service_On.bat", "on"}}) {
        const std::filesystem::path file = test.Folder() / "processor" / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << "sleep 0.1; echo " << word << " >> said\n";
    }
    RestartCollector(test.application);
    EXPECT_EQ(test::ReadBytes(test.Folder() / "said"), "off\non\n");
}

}  // namespace
}  // namespace tallix
