#include "text/ip_address.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tallix {
namespace {

TEST(IpAddress, IsFourNumbersUpTo255) {
    for (const char* valid : {"1.2.3.4", "0.0.0.0", "255.255.255.255", "010.000.0000.0255"}) {
        EXPECT_TRUE(IsIpAddress(valid, EmptyPart::CountsAsZero)) << valid;
        EXPECT_TRUE(IsIpAddress(valid, EmptyPart::Refused)) << valid;
    }
    for (const char* invalid :
         {"", ".", "...", ".1.2.3", "1.2.3.", "1.2.3", "1.2.3.4.5", "1.2.3.256", "4294967297.2.3.4",
          "99999999999999999999.1.1.1", "-1.2.3.4", "1.2.3.4 ", "1.2.3.a", "localhost", "::1"}) {
        EXPECT_FALSE(IsIpAddress(invalid, EmptyPart::CountsAsZero)) << invalid;
        EXPECT_FALSE(IsIpAddress(invalid, EmptyPart::Refused)) << invalid;
    }
    for (const char* gaps : {"1..2.3", "1.2..3", "1...2"}) {
        EXPECT_TRUE(IsIpAddress(gaps, EmptyPart::CountsAsZero)) << gaps;
        EXPECT_FALSE(IsIpAddress(gaps, EmptyPart::Refused)) << gaps;
    }
}

}  // namespace
}  // namespace tallix
