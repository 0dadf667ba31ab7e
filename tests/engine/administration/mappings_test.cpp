#include "administration/mappings.h"

#include <gmock/gmock.h>

#include "administration/importer_settings.h"
#include "compat/ini_file.h"
#include "support/test_application.h"

namespace tallix {
namespace {

TEST(Mappings, TakeSelectionsUpToTheLimitOfTheirItem) {
    struct Case {
        std::size_t item;
        int start;
        int length;
        std::optional<Positions> positions;
    };
    const Case cases[] = {
        {0, 4, 8, Positions{"5", "12"}},  {8, 0, 1, Positions{"1", "1"}}, {8, 3, 2, Positions{"4", "5"}},
        {8, 3, 3, std::nullopt},          {8, 3, 6, std::nullopt},        {3, 10, 5, Positions{"11", "15"}},
        {3, 10, 6, std::nullopt},         {13, 0, 12, std::nullopt},      {14, 0, 6, Positions{"1", "6"}},
        {7, 0, 46, Positions{"1", "46"}}, {7, 0, 47, std::nullopt},
    };
    for (const Case& test : cases)
        EXPECT_EQ(MapToField(kMappingItems.at(test.item), test.start, test.length), test.positions)
            << kMappingItems.at(test.item).label << " " << test.length;
}

TEST(ImporterSettings, AreStoredInTheFileBesideTheProgramAndInTheSettings) {
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
    EXPECT_TRUE(test.prompts.messages.empty());
}

}  // namespace
}  // namespace tallix
