// What the sites window stores is the same on every server.
#include <gmock/gmock.h>

#include "administration/sites.h"
#include "support/engine_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;

constexpr char kName[] = "O'Brien's \"North\" 100% \\ House";

class SitesOnServers : public test::EngineTest {
protected:
    SitesOnServers() {
        for (const char* name : {"Head", kName, "West"}) Add(name);
    }

    void Add(const std::string& name) {
        SiteRecord site;
        site.name = name;
        AddSite(session_, site, ReadSites(session_).size());
    }

    std::vector<std::string> Texts(std::string SiteRecord::*value) {
        std::vector<std::string> texts;
        for (const SiteRecord& site : ReadSites(session_)) texts.push_back(site.*value);
        std::sort(texts.begin(), texts.end());  // an update moves a row on PostgreSQL
        return texts;
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, SitesOnServers, testing::ValuesIn(test::kSessionEngines));

TEST_P(SitesOnServers, KeepAllFieldsOfTheOneThatIsEdited) {
    SiteRecord site = ReadSites(session_).at(1);
    EXPECT_EQ(site.name, kName);
    int number = 0;
    for (auto value :
         {&SiteRecord::name, &SiteRecord::email, &SiteRecord::address1, &SiteRecord::address2,
          &SiteRecord::address3, &SiteRecord::address4, &SiteRecord::postcode, &SiteRecord::area,
          &SiteRecord::voicemail, &SiteRecord::switchIp, &SiteRecord::switchPort, &SiteRecord::switchMapping,
          &SiteRecord::systemCode, &SiteRecord::thirdPartyDatabase, &SiteRecord::thirdPartyUser,
          &SiteRecord::thirdPartyPassword, &SiteRecord::thirdPartyName})
        site.*value = "it's \"" + std::to_string(++number);
    UpdateSite(session_, site);
    EXPECT_THAT(Texts(&SiteRecord::name), ElementsAre("Head", "West", "it's \"1"));
    EXPECT_THAT(Texts(&SiteRecord::thirdPartyName), ElementsAre("", "", "it's \"17"));
    EXPECT_THAT(Texts(&SiteRecord::id), ElementsAre("1", "2", "3"));

    site.id = "2\" OR \"1\" = \"1";
    site.name = "Everything";
    UpdateSite(session_, site);
    EXPECT_THAT(Texts(&SiteRecord::name), ElementsAre("Head", "West", "it's \"1"));
}

TEST_P(SitesOnServers, KeepTheirNumbersWhenOneIsDeleted) {
    SiteRecord site = ReadSites(session_).at(1);
    DeleteSite(test_.application, site);
    EXPECT_THAT(Texts(&SiteRecord::id), ElementsAre("1", "2", "3"));
    for (const char* id : {"2", "ID", "1 OR 1 = 1", ""}) {
        site.id = id;
        test_.prompts.answers = {Answer::Yes};
        DeleteSite(test_.application, site);
        EXPECT_THAT(Texts(&SiteRecord::id), ElementsAre("1", "3")) << id;
    }
    Add("Refused, for 3 is taken");
    EXPECT_THAT(Texts(&SiteRecord::name), ElementsAre("Head", "West"));
}

}  // namespace
}  // namespace tallix
