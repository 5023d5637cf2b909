#include "foundation/Calendar.hpp"

#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/UserLocale.hpp"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace brindle {
namespace {

class CalendarTest : public ::testing::Test {
protected:
    ~CalendarTest() override {
        setUserTimeZone("GMT");
        setUserLocale("en_US");
    }

    static Date date(std::string_view text) { return ISO8601DateFormatter::date(text).value(); }

    /// The day of a moment as "begin end".
    static std::string day(std::string_view zone, std::string_view moment) {
        EXPECT_TRUE(setUserTimeZone(zone));
        const DateInterval interval = Calendar::day(date(moment));
        return iso8601String(interval.begin).substr(0, 16) + ' ' + iso8601String(interval.end).substr(0, 16);
    }
};

TEST_F(CalendarTest, ADayIsThatOfTheUsersTimeZone) {
    EXPECT_EQ(day("GMT", "2020-01-02T23:30:00Z"), "2020-01-02T00:00 2020-01-03T00:00");
    EXPECT_EQ(day("Europe/Berlin", "2020-01-02T23:30:00Z"), "2020-01-02T23:00 2020-01-03T23:00");
    EXPECT_EQ(day("America/Los_Angeles", "2020-01-02T07:59:59Z"), "2020-01-01T08:00 2020-01-02T08:00");
    EXPECT_EQ(day("Asia/Kathmandu", "2020-01-02T18:15:00Z"), "2020-01-02T18:15 2020-01-03T18:15");
}

TEST_F(CalendarTest, HoldsItsFirstMomentAndNotThatOfTheNextDay) {
    setUserTimeZone("GMT");
    const DateInterval day = Calendar::day(date("2020-01-02T12:00:00Z"));
    EXPECT_TRUE(day.contains(date("2020-01-02T00:00:00Z")));
    EXPECT_TRUE(day.contains(date("2020-01-03T00:00:00Z") - std::chrono::microseconds(1)));
    EXPECT_FALSE(day.contains(date("2020-01-03T00:00:00Z")));
    EXPECT_FALSE(day.contains(date("2020-01-02T00:00:00Z") - std::chrono::microseconds(1)));
}

TEST_F(CalendarTest, TheMomentBeforeMidnightIsOfTheOldDay) {
    setUserTimeZone("GMT");
    EXPECT_EQ(Calendar::day(date("2020-01-03T00:00:00Z") - std::chrono::microseconds(1)).begin, date("2020-01-02T00:00:00Z"));
    EXPECT_EQ(Calendar::day(date("1969-07-20T00:00:00Z") - std::chrono::microseconds(1)).begin, date("1969-07-19T00:00:00Z"));
}

TEST_F(CalendarTest, DaysOnWhichClocksChangeAreLongerOrShorter) {
    EXPECT_EQ(day("Europe/Berlin", "2020-03-29T12:00:00Z"), "2020-03-28T23:00 2020-03-29T22:00");
    EXPECT_EQ(day("Europe/Berlin", "2020-10-25T12:00:00Z"), "2020-10-24T22:00 2020-10-25T23:00");
}

TEST_F(CalendarTest, ADayWhoseMidnightIsSkippedBeginsBehindTheGap) {
    // 2018-11-04 began at 1:00 in Brazil.
    EXPECT_EQ(day("America/Sao_Paulo", "2018-11-04T12:00:00Z"), "2018-11-04T03:00 2018-11-05T02:00");
    EXPECT_EQ(day("America/Sao_Paulo", "2018-11-03T12:00:00Z"), "2018-11-03T03:00 2018-11-04T03:00");
}

TEST_F(CalendarTest, ADayWhoseMidnightComesTwiceBeginsWithTheFirst) {
    // In Havana, 2020-11-01 went from 1:00 back to 0:00.
    EXPECT_EQ(day("America/Havana", "2020-11-01T12:00:00Z"), "2020-11-01T04:00 2020-11-02T05:00");
    EXPECT_EQ(day("America/Havana", "2020-11-01T04:30:00Z"), "2020-11-01T04:00 2020-11-02T05:00");
}

TEST_F(CalendarTest, ADayAfterOneThatNeverWasBeginsBehindIt) {
    // Samoa had no 2011-12-30.
    EXPECT_EQ(day("Pacific/Apia", "2011-12-30T09:00:00Z"), "2011-12-29T10:00 2011-12-30T10:00");
}

TEST_F(CalendarTest, OtherCalendarsHaveTheSameDays) {
    for (const char* locale : {"th_TH@calendar=buddhist", "ar_SA@calendar=islamic", "ja_JP@calendar=japanese", "he_IL@calendar=hebrew"}) {
        EXPECT_TRUE(setUserLocale(locale));
        EXPECT_EQ(day("Europe/Berlin", "2020-01-02T23:30:00Z"), "2020-01-02T23:00 2020-01-03T23:00") << locale;
    }
}

} // namespace
} // namespace brindle
