#include "costing/call_pricing.h"

#include <gtest/gtest.h>

#include "database/database_scope.h"
#include "support/test_application.h"

namespace tallix {
namespace {

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
    Tariff tariff = ReadTariff({{"0800", "0800"},
                                {"08001", "08001"},
                                {"0845", "0845"},
                                {"07", "07"},
                                {"016321", "016321"},
                                {"016322", "016322"},
                                {"0175 5", "0175 5"},
                                {"Default", "Default"}});
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
    struct Case {
        const char* billing;
        const char* duration;
        const char* number;
        std::int32_t pence;
        const char* text;
    };
    const Case cases[] = {
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
    for (const Case& expected : cases) {
        CallPricing pricing(tariff, PricingUnit(expected.billing));
        const CallPricing::Price price = pricing.Of(expected.duration, expected.number);
        EXPECT_EQ(price.pence, expected.pence) << expected.duration << " " << expected.number;
        EXPECT_EQ(price.text, expected.text) << expected.duration << " " << expected.number;
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

TEST_F(CallPricingTest, TariffWithoutTableOrDefaultRowIsFree) {
    test_.Execute("DROP TABLE tblcosts");
    Tariff tariff = ReadTariff({});
    CallPricing pricing(tariff, BillingUnit::Second);
    EXPECT_EQ(pricing.Of("01:02:03", "0123456").text, "0.00");
    EXPECT_EQ(pricing.Of("01:02:03", "012%456").text, "0.00");
}

}  // namespace
}  // namespace tallix
