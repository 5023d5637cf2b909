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
