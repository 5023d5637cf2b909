#include "foundation/ISO8601DateFormatter.hpp"

#include <array>

namespace brindle {

namespace {

/// The decimal number in the two or four digits at `at`; absent when they are none. The caller has checked the size.
std::optional<int> number(std::string_view text, std::size_t at, std::size_t digits) {
    int value = 0;
    for (const char digit : text.substr(at, digits)) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        value = value * 10 + (digit - '0');
    }
    return value;
}

bool matches(std::string_view text, std::size_t at, std::string_view form) {
    for (std::size_t index = 0; index < form.size(); ++index) {
        if (form[index] != '0' && text[at + index] != form[index])
            return false;
    }
    return true;
}

/// The offset from UTC that the end of a date text names.
std::optional<std::chrono::minutes> zone(std::string_view text) {
    if (text == "Z")
        return std::chrono::minutes(0);
    const bool signedForm = text.size() == 6 && (text.front() == '+' || text.front() == '-') && text[3] == ':';
    if (!signedForm)
        return std::nullopt;
    const std::optional<int> hours = number(text, 1, 2);
    const std::optional<int> minutes = number(text, 4, 2);
    if (!hours || !minutes || *hours > 23 || *minutes > 59)
        return std::nullopt;
    const std::chrono::minutes offset = std::chrono::hours(*hours) + std::chrono::minutes(*minutes);
    return text.front() == '-' ? -offset : offset;
}

} // namespace

std::optional<Date> ISO8601DateFormatter::date(std::string_view text) {
    constexpr std::string_view form = "0000-00-00T00:00:00";
    if (text.size() <= form.size() || !matches(text, 0, form))
        return std::nullopt;
    const std::optional<int> year = number(text, 0, 4);
    const std::array<std::optional<int>, 5> fields = {
        number(text, 5, 2), number(text, 8, 2), number(text, 11, 2), number(text, 14, 2), number(text, 17, 2)};
    const std::optional<std::chrono::minutes> offset = zone(text.substr(form.size()));
    if (!year || !offset)
        return std::nullopt;
    for (const std::optional<int>& field : fields) {
        if (!field)
            return std::nullopt;
    }
    const auto [month, day, hour, minute, second] = fields;
    const std::chrono::year_month_day civil(
        std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)), std::chrono::day(static_cast<unsigned>(*day)));
    // RFC 3339 has a second 60 for leap seconds; this clock knows none, so it is the start of the next minute.
    if (!civil.ok() || *hour > 23 || *minute > 59 || *second > 60)
        return std::nullopt;
    return Date(std::chrono::sys_days(civil)) + std::chrono::hours(*hour) + std::chrono::minutes(*minute) + std::chrono::seconds(*second) -
           *offset;
}

} // namespace brindle
