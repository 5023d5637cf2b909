#include "SyndicatedParser/FeedDate.hpp"
#include "foundation/UserLocale.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using testsupport::date;

/// The user's locale and zone for one test; the others go on under what all tests have.
class FeedDateTest : public testing::Test {
protected:
    void TearDown() override {
        setUserLocale("en_US");
        setUserTimeZone("UTC");
    }
};

TEST_F(FeedDateTest, ReadsTheDateOfRSS) {
    EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 15:04:05 GMT"), date("2006-01-02T15:04:05Z"));
    EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 15:04:05 EST"), date("2006-01-02T20:04:05Z"));
    EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 15:04:05 -0800"), date("2006-01-02T23:04:05Z"));
}

TEST_F(FeedDateTest, ReadsADateThatEndsInZInTheUsersZone) {
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05Z"), date("2006-01-02T15:04:05Z"));
    setUserTimeZone("Europe/Berlin");
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05Z"), date("2006-01-02T14:04:05Z"));
}

TEST_F(FeedDateTest, ReadsADateWithAZone) {
    setUserTimeZone("Asia/Tokyo");
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05+01:00"), date("2006-01-02T14:04:05Z"));
}

TEST_F(FeedDateTest, ReadsADateWithTenths) {
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05.1+0100"), date("2006-01-02T14:04:05Z") + std::chrono::milliseconds(100));
}

TEST_F(FeedDateTest, ReadsADateWithWhiteSpaceAround) {
    EXPECT_EQ(parseFeedDate("\n    Mon, 02 Jan 2006 15:04:05 GMT\n   "), date("2006-01-02T15:04:05Z"));
    EXPECT_EQ(parseFeedDate("\n 2006-01-02T15:04:05+01:00 "), date("2006-01-02T14:04:05Z"));
}

TEST_F(FeedDateTest, ReadsNamesOfTheUsersLocaleOnly) {
    ASSERT_TRUE(setUserLocale("de_DE"));
    EXPECT_EQ(parseFeedDate("Wed, 04 Oct 2006 15:04:05 GMT"), std::nullopt);
    EXPECT_EQ(parseFeedDate("Mi, 04 Okt. 2006 15:04:05 GMT"), date("2006-10-04T15:04:05Z"));
}

TEST_F(FeedDateTest, ReadsTheTimesOfADayOneByOne) {
    const Date day = date("2006-01-02T00:00:00Z");
    for (const int second : {0, 1, 59, 60, 3599, 3600, 43200, 86398, 86399}) {
        const std::string text = iso8601String(day + std::chrono::seconds(second)).substr(11, 8);
        EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 " + text + " -0130"), day + std::chrono::seconds(second + 5400)) << text;
        EXPECT_EQ(parseFeedDate("2006-01-02T" + text + ".5+0000"), day + std::chrono::milliseconds(second * 1000 + 500)) << text;
    }
}

TEST_F(FeedDateTest, ReadsTheTimesOfADayWhoseClocksAreChanged) {
    ASSERT_TRUE(setUserTimeZone("Europe/Berlin"));
    EXPECT_EQ(parseFeedDate("2020-03-29T01:59:59Z"), date("2020-03-29T00:59:59Z"));
    EXPECT_EQ(parseFeedDate("2020-03-29T03:00:00Z"), date("2020-03-29T01:00:00Z"));
    EXPECT_EQ(parseFeedDate("2020-10-25T01:59:59Z"), date("2020-10-24T23:59:59Z"));
    EXPECT_EQ(parseFeedDate("2020-10-25T03:00:00Z"), date("2020-10-25T02:00:00Z"));
}

TEST_F(FeedDateTest, ForgetsTheDaysOfAnotherZone) {
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05Z"), date("2006-01-02T15:04:05Z"));
    ASSERT_TRUE(setUserTimeZone("Asia/Tokyo"));
    EXPECT_EQ(parseFeedDate("2006-01-02T15:04:05Z"), date("2006-01-02T06:04:05Z"));
}

TEST_F(FeedDateTest, ReadsMoreDaysThanItKeeps) {
    const Date first = date("2001-01-01T10:00:00Z");
    for (int day = 0; day < 5000; ++day) {
        const Date expected = first + std::chrono::days(day);
        ASSERT_EQ(parseFeedDate(iso8601String(expected).substr(0, 19) + "Z"), expected);
    }
}

TEST_F(FeedDateTest, RefusesTimesThatNoDayHas) {
    for (const std::string_view time : {"24:00:00", "10:60:00", "10:00:61", "1O:00:00", "10:00", "110:00:00"})
        EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 " + std::string(time) + " GMT"), std::nullopt) << time;
}

TEST_F(FeedDateTest, FindsNoneInAnyOtherText) {
    EXPECT_EQ(parseFeedDate(""), std::nullopt);
    EXPECT_EQ(parseFeedDate(" \n"), std::nullopt);
    EXPECT_EQ(parseFeedDate("yesterday"), std::nullopt);
    EXPECT_EQ(parseFeedDate("2006-01-02"), std::nullopt);
    EXPECT_EQ(parseFeedDate("Mon, 32 Jan 2006 15:04:05 GMT"), std::nullopt);
    EXPECT_EQ(parseFeedDate("Mon, 02 Jan 2006 15:04:05 GMT and more"), std::nullopt);
}

} // namespace
} // namespace brindle
