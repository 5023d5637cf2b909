#include "foundation/Date.hpp"

#include <gtest/gtest.h>

namespace brindle {

using namespace std::chrono_literals;

TEST(DateTest, WritesMilliseconds) {
    EXPECT_EQ(iso8601String(Date(0s)), "1970-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601String(Date(1136214245s + 678ms)), "2006-01-02T15:04:05.678Z");
    EXPECT_EQ(iso8601String(Date(951782399s)), "2000-02-28T23:59:59.000Z");
    EXPECT_EQ(iso8601String(Date(951782400s)), "2000-02-29T00:00:00.000Z");
}

TEST(DateTest, RoundsDownAlsoBeforeTheEpoch) {
    EXPECT_EQ(iso8601String(Date(1ms + 999us)), "1970-01-01T00:00:00.001Z");
    EXPECT_EQ(iso8601String(Date(-1us)), "1969-12-31T23:59:59.999Z");
}

TEST(DateTest, WritesYearsOutsideFourDigits) {
    EXPECT_EQ(iso8601String(Date(-62167219200s)), "0000-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601String(Date(-62167219201s)), "-1-12-31T23:59:59.000Z");
    EXPECT_EQ(iso8601String(Date(253402300800s)), "10000-01-01T00:00:00.000Z");
    EXPECT_EQ(iso8601String(Date::max()), "294247-01-10T04:00:54.775Z");
    EXPECT_EQ(iso8601String(Date::min()), "-290308-12-21T19:59:05.224Z");
}

TEST(DateTest, AFixedClockStandsStill) {
    const FixedClock clock(Date(5s));
    EXPECT_EQ(clock.now(), Date(5s));
}

TEST(DateTest, TheSystemsClockGoesOn) {
    const SystemClock clock;
    const Date first = clock.now();
    EXPECT_GT(first, Date(1'600'000'000s));
}

} // namespace brindle
