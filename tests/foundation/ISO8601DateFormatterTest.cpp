#include "foundation/ISO8601DateFormatter.hpp"

#include <gtest/gtest.h>

namespace brindle {

namespace {

std::string date(std::string_view text) {
    const std::optional<Date> date = ISO8601DateFormatter::date(text);
    return date ? iso8601String(*date) : "none";
}

} // namespace

TEST(ISO8601DateFormatterTest, ReadsUTCAndZonesWithAColon) {
    EXPECT_EQ(date("2020-01-01T00:00:00Z"), "2020-01-01T00:00:00.000Z");
    EXPECT_EQ(date("2020-01-01T00:00:00+01:30"), "2019-12-31T22:30:00.000Z");
    EXPECT_EQ(date("2020-02-29T23:59:59-08:00"), "2020-03-01T07:59:59.000Z");
}

TEST(ISO8601DateFormatterTest, ALeapSecondIsTheStartOfTheNextMinute) {
    EXPECT_EQ(date("2016-12-31T23:59:60Z"), "2017-01-01T00:00:00.000Z");
}

TEST(ISO8601DateFormatterTest, RefusesEveryOtherForm) {
    for (const std::string_view bad : {"", "2020-01-01", "2020-01-01T00:00:00", "2020-01-01T00:00:00.000Z", "2020-01-01T00:00:00+0100",
             "2020-01-01T00:00:00+01", "2020-01-01 00:00:00Z", "2020-01-01T00:00:00z", " 2020-01-01T00:00:00Z", "2020-01-01T00:00:00Z ",
             "2020-1-01T00:00:00Z", "20200101T000000Z", "2020-01-01T00:00:00Zx", "2020-0a-01T00:00:00Z", "2020-01-01T00:00:00+0a:00"})
        EXPECT_EQ(date(bad), "none") << bad;
}

TEST(ISO8601DateFormatterTest, RefusesFieldsOutOfRange) {
    for (const std::string_view bad :
        {"2019-02-29T00:00:00Z", "2020-13-01T00:00:00Z", "2020-00-01T00:00:00Z", "2020-01-00T00:00:00Z", "2020-01-01T24:00:00Z",
            "2020-01-01T00:60:00Z", "2020-01-01T00:00:61Z", "2020-01-01T00:00:00+24:00", "2020-01-01T00:00:00+00:60"})
        EXPECT_EQ(date(bad), "none") << bad;
}

} // namespace brindle
