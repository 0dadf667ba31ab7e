#include "costing/call_pricing.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "costing/cost_computation.h"
#include "costing/cost_text.h"
#include "database/database_scope.h"
#include "support/test_application.h"

namespace tallix {
namespace {

// Each line is a value and its text, or its two numbers.
TEST(CostText, IsReadPieceByPieceAndShowsOnlyTheAmountsThatFit) {
    // Pieces that are not numbers keep the 7 and the 8.
    for (const std::string line :
         {"1.50 1 50", "12 12 0", "0.05 0 5", "1.5 1 0", "1.7 1 1", "1.234 1 34", "-1.50 -1 50", " 7 0",
          ".50 7 50", "x.25 7 25", "3.xy 3 8", "99999999999 7 0"}) {
        const std::string text = line.substr(0, line.find(' '));
        UnitCost cost{7, 8};
        ReadUnitCost(text, cost);
        EXPECT_EQ(fmt::format("{} {} {}", text, cost.whole, cost.hundredths), line);
    }
    for (const std::string line :
         {"0 0.00", "5 0.05", "45 0.45", "120 1.20", "1234 12.34", "12345 123.45", "123456 1,.56",
          "1234567 kept", "-12345 -,.45", "-150 -1.50", "-1234567 kept"}) {
        std::string text = "kept";
        WriteAmount(std::stoi(line), text);
        EXPECT_EQ(fmt::format("{} {}", std::stoi(line), text), line);
    }
    for (const std::string line :
         {"0 0.00", "5 0.05", "45 0.45", "123 1.23", "12345 123.45", "123456 1,234.56", "1234567 12,345.67",
          "12345678 123,456.78", "123456789 234,567.89", "-2147483648 474,836.48"}) {
        EXPECT_EQ(fmt::format("{} {}", std::stoi(line), TotalText(std::stoi(line))), line);
    }
}

class CallPricingTest : public ::testing::Test {
protected:
    Tariff ReadTariff(const test::TestApplication::Row& costs) {
        for (const auto& [number, cost] : costs)
            test_.Insert("tblcosts", {{"Number", number}, {"Cost", cost}});
        database_ = DatabaseScope(test_.application.session.database);
        return Tariff(database_);
    }

    test::TestApplication test_;
    DatabaseScope database_;
};

TEST_F(CallPricingTest, TariffNarrowsThePrefixUntilOneRowIsLeft) {
    test_.Execute("INSERT INTO tblcosts(Number, Cost) VALUES (NULL, '9')");
    test::TestApplication::Row costs;
    for (const char* row : {"0800", "08001", "0845", "07", "016321", "016322", "0175 5", "Default"}) {
        costs[row] = row;
    }
    Tariff tariff = ReadTariff(costs);
    const std::pair<const char*, const char*> found[] = {
        {"08451234", "0845"},   // three characters are enough
        {"0849", "0845"},       // and what follows may differ
        {"08001234", "08001"},  // narrowed past its shorter neighbour
        {"0845", "0845"},      {"0171234", "0175 5"}, {"0163210", "016321"},
        {"Defy", "Default"},   {"0175 9", "0175 5"},  {"084%", "0845"}};
    for (const auto& [number, row] : found) EXPECT_EQ(tariff.Match(number), row) << number;
    // Tied, too short, one row of less than three, or several to the number's end.
    for (const char* number :
         {"0800", "084", "07123", "01632999", "016321", "", "9", "01%9", "08%9", "08\"5"}) {
        EXPECT_EQ(tariff.Match(number), std::nullopt) << number;
    }
}

TEST_F(CallPricingTest, CallsArePricedByUnitsBegunAndHalvesGoToTheEvenPenny) {
    Tariff tariff = ReadTariff({{"Default", "1.50"},
                                {"0845", "10.00"},
                                {"0900", ""},
                                {"0901", "300000000"},
                                {"0902", "1.99"},
                                {"0903", "0.-9"}});
    const std::tuple<std::string, std::string, std::string, std::int32_t, std::string> cases[] = {
        {"M", "00:00:30", "0123", 2, "0.02"},  // 1.5
        {"", "00:01:00", "0123", 2, "0.02"},   // an empty setting charges minutes
        {"M", "00:03:00", "0123", 4, "0.04"},  // 4.5
        {"M", "00:04:01", "0123", 8, "0.08"},  // 7.5
        {"S", "00:01:01", "0845123", 610, "6.10"},
        {"S", "02:00:05", "0845123", 50, "0.50"},     // hours do not count by the second
        {"M", "00:10:00", "0900123", 10, "0.10"},     // no cost of its own: the standard's whole pence
        {"M", "05:30:00", "0902123", 657, "6.57"},    // 330 * 99 fits: 330 + 326.7
        {"M", "05:31:00", "0902123", 334, "3.34"},    // 331 * 99 does not: 331 + 3.31
        {"M", "00:10:00", "0901123", 10, "0.10"},     // ten times does not fit: the plain units
        {"M", "00:01:00", "0901123", 300000000, ""},  // too long for a text; none came before
        {"M", "00:03:00", "0903123", 0, "0.00"},      // -0.27
        {"M", "xx:05:00", "0845123", 50, "0.50"},     // what is not a number counts as 0
        {"S", "garbage!", "0845123", 0, "0.00"},
        {"M", "-9:00:00", "0845123", -5400, "-54.00"},
    };
    for (const auto& [billing, duration, number, pence, text] : cases) {
        CallPricing pricing(tariff, PricingUnit(billing));
        const CallPricing::Price price = pricing.Of(duration, number);
        EXPECT_EQ(price.pence, pence) << duration << " " << number;
        EXPECT_EQ(price.text, text) << duration << " " << number;
    }
}

TEST_F(CallPricingTest, InvalidCostsAndTooLongTextsKeepThoseOfTheCallBefore) {
    Tariff tariff = ReadTariff({{"0845", "10.25"}, {"0900", "free.xx"}, {"0901", "3000000"}});
    CallPricing pricing(tariff, BillingUnit::Minute);
    EXPECT_EQ(pricing.Of("00:01:00", "0900123").pence, 0);
    EXPECT_EQ(pricing.Of("00:02:00", "0845123").pence, 20);  // 20.5
    EXPECT_EQ(pricing.Of("00:04:00", "0900123").pence, 41);
    const CallPricing::Price dear = pricing.Of("00:01:00", "0901123");
    EXPECT_EQ(dear.pence, 3000000);
    EXPECT_EQ(dear.text, "0.41");
}

TEST_F(CallPricingTest, EveryOutsideCallWithADurationGetsOneRowAndOldOnesGo) {
    test_.Execute("INSERT INTO tblcosts(Number, Cost) VALUES ('Default', '2.00'), ('0845', '5.00')");
    test_.Execute("INSERT INTO tblcostcount(DataID, Cost) VALUES ('99', '7.77')");
    test_.InsertCall({{"ID", "1"}, {"Duration", "00:02:30"}, {"DestNum", "0845123"}});
    test_.InsertCall({{"ID", "2"}, {"Duration", "00:00:00"}});
    test_.InsertCall({{"ID", "3"}, {"Internal", "1"}});
    test_.InsertCall({{"ID", "4"}, {"Duration", "00:01:00"}, {"DestNum", "O'Neill \"x\""}});
    test_.Execute("INSERT INTO tblphonedata(ID, Internal, Duration) VALUES (5, '0', '00:10:00')");
    for (const auto& [unit, stored] :
         {std::pair("", "1|0.15|\n4|0.02|\n5|0.20|\n"), {"S", "1|7.50|\n4|1.20|\n5|12.00|\n"}}) {
        test_.settings.Write("Billing", unit);
        EXPECT_EQ(ComputeCosts(test_.application.session, test_.settings), 3);
        EXPECT_EQ(test_.Rows("SELECT DataID, Cost FROM tblcostcount ORDER BY DataID"), stored);
    }
}

TEST_F(CallPricingTest, WhatIsMissingInTheDatabaseIsFreeAndPassedOver) {
    test_.InsertCall();
    test_.Execute("DROP TABLE tblcosts");
    test_.Execute("DROP TABLE tblcostcount");
    EXPECT_EQ(ComputeCosts(test_.application.session, test_.settings), 1);
    test_.Execute("DROP TABLE tblphonedata");
    EXPECT_EQ(ComputeCosts(test_.application.session, test_.settings), 0);
    Tariff tariff = ReadTariff({});
    CallPricing pricing(tariff, BillingUnit::Second);
    EXPECT_EQ(pricing.Of("01:02:03", "0123456").text, "0.00");
    EXPECT_EQ(pricing.Of("01:02:03", "012%456").text, "0.00");
    test_.application.session.database.kind = DatabaseKind::Unknown;
    EXPECT_EQ(ComputeCosts(test_.application.session, test_.settings), 0);
}

}  // namespace
}  // namespace tallix
