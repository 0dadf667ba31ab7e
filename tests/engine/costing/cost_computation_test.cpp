#include "costing/cost_computation.h"

#include <gtest/gtest.h>

#include "support/test_application.h"

namespace tallix {
namespace {

constexpr char kStoredCosts[] = "SELECT DataID, Cost FROM tblcostcount ORDER BY DataID";

TEST(CostComputation, EveryOutsideCallWithADurationGetsOneRowAndOldOnesGo) {
    test::TestApplication test;
    test.Execute("INSERT INTO tblcosts(Number, Cost) VALUES ('Default', '2.00'), ('0845', '5.00')");
    test.Execute("INSERT INTO tblcostcount(DataID, Cost) VALUES ('99', '7.77')");
    test.InsertCall({{"ID", "1"}, {"Duration", "00:02:30"}, {"DestNum", "0845123"}});
    test.InsertCall({{"ID", "2"}, {"Duration", "00:00:00"}});
    test.InsertCall({{"ID", "3"}, {"Internal", "1"}});
    test.InsertCall({{"ID", "4"}, {"Duration", "00:01:00"}, {"DestNum", "O'Neill \"x\""}});
    test.Execute("INSERT INTO tblphonedata(ID, Internal, Duration) VALUES (5, '0', '00:10:00')");
    EXPECT_EQ(ComputeCosts(test.application.session, test.settings), 3);
    EXPECT_EQ(test.Rows(kStoredCosts), "1|0.15|\n4|0.02|\n5|0.20|\n");

    test.settings.Write("Billing", "S");
    ComputeCosts(test.application.session, test.settings);
    EXPECT_EQ(test.Rows(kStoredCosts), "1|7.50|\n4|1.20|\n5|12.00|\n");
}

TEST(CostComputation, FailuresOfTheDatabaseArePassedOver) {
    test::TestApplication test;
    test.InsertCall();
    test.Execute("DROP TABLE tblcostcount");
    EXPECT_EQ(ComputeCosts(test.application.session, test.settings), 1);
    test.Execute("DROP TABLE tblphonedata");
    EXPECT_EQ(ComputeCosts(test.application.session, test.settings), 0);
    test.application.session.database.kind = DatabaseKind::Unknown;
    EXPECT_EQ(ComputeCosts(test.application.session, test.settings), 0);
}

}  // namespace
}  // namespace tallix
