#include "foundation/Date.hpp"

#include <cstdint>

namespace brindle {

namespace {

struct CivilDay {
    std::int64_t year = 0;
    std::int64_t month = 0;
    std::int64_t day = 0;
};

/// The Gregorian date of a day counted from 1970-01-01. The library's calendar types end at the year 32767, moments do not.
CivilDay civilDay(std::int64_t daysSince1970) {
    constexpr std::int64_t daysPerEra = 146097; // 400 years, beginning on 1 March
    const std::int64_t days = daysSince1970 + 719468;
    const std::int64_t era = (days >= 0 ? days : days - (daysPerEra - 1)) / daysPerEra;
    const std::int64_t dayOfEra = days - era * daysPerEra;
    const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    CivilDay civil;
    civil.day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    civil.month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    civil.year = yearOfEra + era * 400 + (civil.month <= 2 ? 1 : 0);
    return civil;
}

void appendPadded(std::string& text, std::int64_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    if (digits.size() < width)
        text.append(width - digits.size(), '0');
    text.append(digits);
}

} // namespace

std::string iso8601String(Date date) {
    using std::chrono::floor;
    const auto milliseconds = floor<std::chrono::milliseconds>(date);
    const auto day = floor<std::chrono::days>(milliseconds);
    const std::int64_t ofDay = (milliseconds - day).count();
    const CivilDay civil = civilDay(day.time_since_epoch().count());
    std::string text;
    appendPadded(text, civil.year, civil.year < 0 ? 0 : 4);
    appendPadded(text.append("-"), civil.month, 2);
    appendPadded(text.append("-"), civil.day, 2);
    appendPadded(text.append("T"), ofDay / 3'600'000, 2);
    appendPadded(text.append(":"), ofDay / 60'000 % 60, 2);
    appendPadded(text.append(":"), ofDay / 1000 % 60, 2);
    appendPadded(text.append("."), ofDay % 1000, 3);
    return text.append("Z");
}

Date SystemClock::now() const {
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

} // namespace brindle
