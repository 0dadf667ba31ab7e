// What the administration windows refuse, limit and convert.
#include <gmock/gmock.h>

#include <tuple>

#include "administration/accounts.h"
#include "administration/importer_settings.h"
#include "administration/mappings.h"
#include "administration/report_design.h"
#include "administration/sites.h"
#include "compat/ini_file.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(AdministrationRules, AccountsAreRefusedForTheFirstProblem) {
    const std::string longest(44, 'x');
    const std::pair<Account, std::string> cases[] = {
        {{"", "", "", "", {}}, "Username Incorrect"},
        {{longest + "x", "", "", "", {}}, "Username Incorrect"},
        {{longest, "", "", "", {}}, "Password Incorrect"},
        {{"a", longest, longest + "@", "", {}}, "Email Address Incorrect"},
        {{"a", "b", "c", "", {}}, "Bad Email Address"},
        {{"a", "b", "@", "", {}}, ""},
        {{"a", "ä" + longest.substr(1), "@", "", {}}, ""}};
    for (const auto& [account, title] : cases) {
        const auto refusal = RefusalOf(account);
        EXPECT_EQ(refusal ? refusal->title : "", title);
    }
}

TEST(AdministrationRules, ProblemsOfSitesAreShownInTheirOrder) {
    using enum SiteEntry;
    const std::tuple<const char*, const char*, SiteEntry, std::size_t, bool, std::string> cases[] = {
        {"1.2.3.4", "1752", Added, 998, true, ""},     {"1.2.3.4", "no port", Added, 1000, true, ""},
        {"1.2.3.4", "", Edited, 999, true, "Tallix;"}, {"", "", Added, 0, true, "Tallix;Tallix;"},
        {"", "1752", Added, 0, true, "Tallix;"},       {"wrong", "", Added, 999, false, "Tallix;"},
        {"1..2.3", "", Edited, 1, false, "IP Error;"}, {"host", "", Edited, 1, false, "IP Error;"},
        {" ", "", Edited, 1, false, "IP Error;"}};
    for (const auto& [ip, port, entry, sites, saved, titles] : cases) {
        test::ScriptedPrompts prompts;
        SiteRecord site;
        site.switchIp = ip;
        site.switchPort = port;
        EXPECT_EQ(MaySaveSite(prompts, site, entry, sites), saved) << ip;
        std::string shown;
        for (const Message& message : prompts.messages) shown += message.title + ";";
        EXPECT_EQ(shown, titles) << ip;
    }
}

TEST(AdministrationRules, SelectionsAreMappedUpToTheLimitOfTheirItem) {
    const std::tuple<std::size_t, int, int, std::optional<Positions>> cases[] = {
        {0, 4, 8, Positions{"5", "12"}},  {8, 0, 1, Positions{"1", "1"}}, {8, 3, 2, Positions{"4", "5"}},
        {8, 3, 3, std::nullopt},          {8, 3, 6, std::nullopt},        {3, 10, 5, Positions{"11", "15"}},
        {3, 10, 6, std::nullopt},         {13, 0, 12, std::nullopt},      {14, 0, 6, Positions{"1", "6"}},
        {7, 0, 46, Positions{"1", "46"}}, {7, 0, 47, std::nullopt},
    };
    for (const auto& [item, start, length, positions] : cases)
        EXPECT_EQ(MapToField(kMappingItems.at(item), start, length), positions) << item << " " << length;
}

TEST(AdministrationRules, ColoursHaveNineDigitsWithRedInTheLowByteAndBlackIsACancel) {
    EXPECT_EQ(ColorCodeToRGB(2 + 1 * 256 + 118 * 65536), "002001118");
    EXPECT_EQ(ColorCodeToRGB(ColourCode({255, 0, 7})), "255000007");
    for (const char* wrong : {"", "002001", "256000000", "00200x118"}) {
        EXPECT_FALSE(ColourOfDigits(wrong)) << wrong;
    }
    test::ScriptedPrompts prompts;
    prompts.colours = {{0, 0, 0}, {0, 0, 1}};
    EXPECT_FALSE(ChooseColour(prompts));
    EXPECT_EQ(ChooseColour(prompts)->blue, 1);
}

TEST(AdministrationRules, RestoringColoursWritesKeysThatNothingReads) {
    test::TestApplication world;
    RestoreDefaultColours(world.settings);
    EXPECT_EQ(world.settings.Read("tprTHC") + world.settings.Read("tprTBC"), "180003000162196091");
    EXPECT_EQ(world.settings.Read("rptTHC"), "");
}

TEST(AdministrationRules, ImporterSettingsNeedTheFolderBesideTheProgram) {
    test::TestApplication test;
    test.application.folder = test.Folder() / "ReportsTool";
    ImporterSettings importer = LoadImporterSettings(test.application);
    EXPECT_THAT(importer.places, testing::Each("0"));
    EXPECT_FALSE(importer.enabled);

    importer.enabled = true;
    importer.places.at(0) = "12";
    importer.places.at(14) = "";
    SaveImporterSettings(test.application, importer);
    EXPECT_EQ(LoadImporterSettings(test.application).places.at(0), "0") << "there is no folder yet";
    std::filesystem::create_directory(test.Folder() / "Importer");
    SaveImporterSettings(test.application, importer);
    EXPECT_EQ(LoadImporterSettings(test.application).places.at(0), "12");
    EXPECT_EQ(ReadIniKey("Values", "Site", test.Folder() / "Importer/CSV.ini"), "0");
    EXPECT_EQ(test.settings.Read("Importer") + test.settings.Read("CollectDB"), "10");
    EXPECT_THAT(test.prompts.messages, testing::IsEmpty());
}

}  // namespace
}  // namespace tallix
