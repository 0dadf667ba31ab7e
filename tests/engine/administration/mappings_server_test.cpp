// What the mappings window stores, and the sample lines, are the same on every server.
#include <gmock/gmock.h>

#include "administration/mappings.h"
#include "session/access_log.h"
#include "support/engine_test.h"

namespace tallix {
namespace {

using testing::ElementsAre;

class MappingsOnServers : public test::EngineTest {
protected:
    bool Save(const std::string& name, const std::string& firstStart) {
        Mapping mapping{name, {}};
        for (std::size_t i = 0; i < mapping.items.size(); ++i)
            mapping.items.at(i) = {std::to_string(100 + i), std::to_string(200 + i)};
        mapping.items.front().start = firstStart;
        return SaveMapping(test_.application, mapping);
    }

    std::string FirstStart(const std::string& name) {
        const std::optional<Mapping> mapping = ReadMapping(session_, name);
        return mapping ? mapping->items.front().start : "none";
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, MappingsOnServers, testing::ValuesIn(test::kSessionEngines));

TEST_P(MappingsOnServers, AreAddedStoredOverAndDeletedByTheirNames) {
    EXPECT_TRUE(Save("Hall 100% \\ O'Brien", "1"));
    EXPECT_TRUE(Save("Hall", "2"));
    EXPECT_TRUE(Save("Hall", "3"));
    EXPECT_EQ(FirstStart("Hall 100% \\ O'Brien"), "1");
    EXPECT_EQ(FirstStart("Hall"), "3");
    const std::optional<Mapping> stored = ReadMapping(session_, "Hall");
    EXPECT_EQ(stored->items.back(), (Positions{"114", "214"}));
    EXPECT_EQ(ReadAccessLog(session_).front().back(), "Saved Custom Mappings");

    DeleteMapping(session_, "Hall");
    EXPECT_THAT(ReadMappingNames(session_), ElementsAre("Hall 100% \\ O'Brien"));
}

TEST_P(MappingsOnServers, LeaveOthersAloneWhateverTheirNames) {
    Save("Hall", "1");
    const std::string names[] = {"a \"quoted\" name", "\"", "x\" OR \"1\" = \"1", "%"};
    for (const std::string& name : names) {
        Save(name, "7");
        EXPECT_EQ(FirstStart("Hall"), "1") << name;
        DeleteMapping(session_, name);
        EXPECT_EQ(FirstStart("Hall"), "1") << name;
    }
    EXPECT_FALSE(Save("", "1"));
    EXPECT_TRUE(test_.prompts.messages.empty());
    EXPECT_FALSE(Save("Hall", ""));
    EXPECT_EQ(test_.prompts.messages.back().title, "Value Mappings");
    EXPECT_EQ(FirstStart("Hall"), "1");
}

TEST_P(MappingsOnServers, StepThroughTheLinesOfASite) {
    for (const auto& [line, site] : {std::pair("one", "001"), {"other", "002"}, {"it's \"two\"", "001"}})
        test_.Insert("tblrawdata", {{"Data", line}, {"SiteID", site}});
    SampleLines lines(test_.application);
    EXPECT_EQ(lines.First(""), std::nullopt);
    EXPECT_EQ(test_.prompts.messages.back().title, "Tallix Reports");
    EXPECT_EQ(lines.First("001"), "one");
    std::vector<std::string> shown;
    using enum Direction;
    for (const Direction step : {Back, Back, Forward, Forward, Forward, Forward, Back}) {
        shown.push_back(*lines.Step("001", step));
    }
    const std::string none = "NO DATA AVAILABLE!";
    EXPECT_THAT(shown, ElementsAre(none, none, "one", "it's \"two\"", none, none, "it's \"two\""));
    EXPECT_EQ(lines.Step("002", Forward), "other");
}

}  // namespace
}  // namespace tallix
