#include "costing/costings.h"

#include "costing/cost_map.h"
#include "support/test_servers.h"

namespace tallix {
namespace {

using CostingsTest = test::EngineTest;

TEST_P(CostingsTest, TheTariffIsStoredAsTyped) {
    const std::vector<TariffRow> rows = {{"0845", "5.00"}, {"O'Neill \"x\"", "free"}, {"0800", {}}};
    SaveCostings(session_, test_.settings, {"1.20", rows, BillingUnit::Second});
    Costings costings = LoadCostings(session_, test_.settings);
    EXPECT_EQ(costings.standardCost, "1.20");
    EXPECT_EQ(costings.rows, (std::vector<TariffRow>{rows[0], rows[1], {"0800", ""}}));
    EXPECT_EQ(costings.unit, BillingUnit::Second);

    SaveCostings(session_, test_.settings, {"", {{"Default", "9.99"}}, BillingUnit::Minute});
    costings = LoadCostings(session_, test_.settings);
    EXPECT_TRUE(costings.rows.empty());
    EXPECT_EQ(costings.standardCost, "") << "the standard cost is always the last row";
    EXPECT_EQ(test_.settings.Read("Billing"), "M");
}

TEST_P(CostingsTest, TheCostMapIsCheckedAndNotKept) {
    test_.Execute(
        "INSERT INTO tblareaproviders(Code, Area) VALUES ('020', 'London'), ('0161', 'Manchester')");
    std::vector<CostMapRow> rows = {{"01", "P"}};
    AppendAreaCodes(session_, rows);
    EXPECT_EQ(rows, (std::vector<CostMapRow>{{"01", "L"}, {"020", "L"}, {"0161", ""}}));
    EXPECT_FALSE(SaveCostMap(session_, rows)) << "the last one lacks its charge";
    rows.back().charge = "£";
    test_.Execute("INSERT INTO tblcostmap(Carrier, Package, CostID) VALUES ('01', 'N', '1')");
    EXPECT_EQ(LoadCostMap(session_), (std::vector<CostMapRow>{{"01", "N"}}));
    EXPECT_TRUE(SaveCostMap(session_, rows));
    EXPECT_TRUE(LoadCostMap(session_).empty());
}

INSTANTIATE_TEST_SUITE_P(Engines, CostingsTest, testing::ValuesIn(test::kSessionEngines));

TEST(CostingFileTest, ACostGoesToTheRowOfTheLineBefore) {
    const test::TempFolder folder;
    using Rows = std::vector<TariffRow>;
    const std::tuple<std::string, Rows, Rows> cases[] = {
        {"a,0800,1.00\r\nb,0845,2.00\r\nc,09,3.00", {}, {{"0800", "2.00"}, {"0845", "3.00"}, {"09", {}}}},
        {"a,0800,1.00\nb,0845,2.00\n", {{"07", "9.99"}}, {{"07", "9.99"}, {"0800", {}}, {"0845", {}}}},
        {"no comma\n,020\n\"x, y\",\"1,5\",7\n", {}, {{"020", {}}, {" y\"", "\"1"}}},
        {"a,b,\xA3\nb,c,\xA3,d\n", {}, {{"b", "£"}, {"c", {}}}},
    };
    for (const auto& [text, before, after] : cases) {
        Rows rows = before;
        AppendCostingFile(folder.Write("any.costing", text), rows);
        AppendCostingFile(folder.Path() / "none", rows);
        EXPECT_EQ(rows, after) << text;
    }
}

}  // namespace
}  // namespace tallix
