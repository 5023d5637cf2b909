#include "foundation/DateFormatter.hpp"

#include "foundation/UserLocale.hpp"

#include <gtest/gtest.h>
#include <thread>

namespace brindle {

namespace {

constexpr std::string_view rss = "EEE, dd MMM yyyy HH:mm:ss zzz";
constexpr std::string_view atom = "yyyy-MM-dd'T'HH:mm:ss'Z'";
constexpr std::string_view atomZone = "yyyy-MM-dd'T'HH:mm:ssZZZZZ";
constexpr std::string_view atomFraction = "yyyy-MM-dd'T'HH:mm:ss.SZ";

class DateFormatterTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(setUserLocale("en_US"));
        ASSERT_TRUE(setUserTimeZone("UTC"));
    }

    static std::string date(std::string_view text, std::string_view pattern) {
        const std::optional<Date> date = DateFormatter::date(text, pattern);
        return date ? iso8601String(*date) : "none";
    }
};

} // namespace

TEST_F(DateFormatterTest, ReadsADateWithTheNameOfItsZone) {
    for (const std::string_view zone : {"GMT", "UT", "UTC", "Z", "+0000"})
        EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 " + std::string(zone), rss), "2006-01-02T15:04:05.000Z") << zone;
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 EST", rss), "2006-01-02T20:04:05.000Z");
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 -08:00", rss), "2006-01-02T23:04:05.000Z");
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 +0530", rss), "2006-01-02T09:34:05.000Z");
}

TEST_F(DateFormatterTest, ReadsALiteralZInTheUsersZone) {
    EXPECT_EQ(date("2006-01-02T15:04:05Z", atom), "2006-01-02T15:04:05.000Z");
    ASSERT_TRUE(setUserTimeZone("Europe/Berlin"));
    EXPECT_EQ(date("2006-01-02T15:04:05Z", atom), "2006-01-02T14:04:05.000Z");
    EXPECT_EQ(date("2006-07-02T15:04:05Z", atom), "2006-07-02T13:04:05.000Z");
}

TEST_F(DateFormatterTest, ReadsNumericZonesAndFractions) {
    EXPECT_EQ(date("2006-01-02T15:04:05+01:00", atomZone), "2006-01-02T14:04:05.000Z");
    EXPECT_EQ(date("2006-01-02T15:04:05.1+0100", atomFraction), "2006-01-02T14:04:05.100Z");
}

TEST_F(DateFormatterTest, PassesOverWhiteSpaceAtTheEndsOnly) {
    EXPECT_EQ(date("\n\t Mon, 02 Jan 2006 15:04:05 GMT \n", rss), "2006-01-02T15:04:05.000Z");
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 GMT x", rss), "none");
    EXPECT_EQ(date("x Mon, 02 Jan 2006 15:04:05 GMT", rss), "none");
    EXPECT_EQ(date("2006-01-02T15:04:05Z+01:00", atom), "none");
}

TEST_F(DateFormatterTest, RefusesFieldsOutOfRange) {
    EXPECT_EQ(date("2006-13-02T15:04:05Z", atom), "none");
    EXPECT_EQ(date("2006-02-30T15:04:05Z", atom), "none");
    EXPECT_EQ(date("2006-01-02T25:04:05Z", atom), "none");
    EXPECT_EQ(date("Mon, 32 Jan 2006 15:04:05 GMT", rss), "none");
}

TEST_F(DateFormatterTest, RefusesTextsOfAnotherForm) {
    for (const std::string_view bad :
        {"", " ", "yesterday", "2006-01-02", "2006-01-02T15:04", "Mon, 02 Jan 2006", "Mon, 02 Jan 2006 15:04:05"}) {
        EXPECT_EQ(date(bad, rss), "none") << bad;
        EXPECT_EQ(date(bad, atom), "none") << bad;
        EXPECT_EQ(date(bad, atomZone), "none") << bad;
    }
    EXPECT_EQ(date("2006-01-02T15:04:05Z", rss), "none");
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 GMT", atom), "none");
    EXPECT_EQ(date(std::string(1'000'000, '1'), atom), "none");
}

TEST_F(DateFormatterTest, ALiteralAtTheEndOfThePatternMayBeMissing) {
    EXPECT_EQ(date("2006-01-02T15:04:05", atom), "2006-01-02T15:04:05.000Z");
    EXPECT_EQ(date("2006-01-02T15:04:05", atomZone), "none");
}

TEST_F(DateFormatterTest, ReadsNamesOfTheUsersLocale) {
    ASSERT_TRUE(setUserLocale("de_DE"));
    EXPECT_EQ(date("Mo., 02 M\xC3\xA4rz 2020 15:04:05 GMT", rss), "2020-03-02T15:04:05.000Z");
    EXPECT_EQ(date("Mon, 02 Mar 2020 15:04:05 GMT", rss), "none");
    ASSERT_TRUE(setUserLocale("en-US"));
    EXPECT_EQ(date("Mon, 02 Mar 2020 15:04:05 GMT", rss), "2020-03-02T15:04:05.000Z");
}

TEST_F(DateFormatterTest, RefusesUnknownLocalesAndZonesAndKeepsTheOldOnes) {
    EXPECT_FALSE(setUserLocale("qqq_QQ"));
    EXPECT_FALSE(setUserLocale(""));
    EXPECT_FALSE(setUserTimeZone("Nowhere/Town"));
    EXPECT_FALSE(setUserTimeZone(""));
    EXPECT_EQ(date("Mon, 02 Jan 2006 15:04:05 GMT", rss), "2006-01-02T15:04:05.000Z");
    EXPECT_TRUE(setUserTimeZone("GMT+1"));
    EXPECT_EQ(date("2006-01-02T15:04:05Z", atom), "2006-01-02T14:04:05.000Z");
}

TEST_F(DateFormatterTest, EveryThreadSeesTheUsersZone) {
    ASSERT_TRUE(setUserTimeZone("Asia/Tokyo"));
    std::string other;
    std::thread([&other] { other = date("2006-01-02T15:04:05Z", atom); }).join();
    EXPECT_EQ(other, "2006-01-02T06:04:05.000Z");
}

TEST_F(DateFormatterTest, APatternOutOfTheAlphabetReadsNothing) {
    EXPECT_EQ(date("2006", "'open"), "none");
}

} // namespace brindle
