#include "cli/Settings.hpp"

#include "foundation/ISO8601DateFormatter.hpp"
#include "foundation/UserLocale.hpp"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace brindle {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// An RFC 3339 date and time; of fractional seconds, six digits count.
std::optional<Date> moment(std::string_view text) {
    constexpr std::size_t fractionPlace = std::string_view("0000-00-00T00:00:00").size();
    if (text.size() <= fractionPlace || text[fractionPlace] != '.')
        return ISO8601DateFormatter::date(text);
    const auto begin = text.begin() + fractionPlace + 1;
    const auto end = std::find_if_not(begin, text.end(), isDigit);
    if (begin == end)
        return std::nullopt;
    std::chrono::microseconds fraction(0);
    std::chrono::microseconds unit(100'000);
    for (auto digit = begin; digit != end; ++digit, unit /= 10)
        fraction += unit * (*digit - '0');
    const auto date = ISO8601DateFormatter::date(std::string(text.substr(0, fractionPlace)) + std::string(end, text.end()));
    return date ? std::optional(*date + fraction) : std::nullopt;
}

} // namespace

const std::vector<Option>& Settings::options() {
    static const std::vector<Option> options = {
        {"support-dir", "DIR", "the folder that holds the library (default: the desktop program's)"},
        {"json", "", "print JSON instead of text for people"},
        {"now", "TIME", "let the clock stand still at an ISO 8601 date and time with zone"},
        {"locale", "ID", "the ICU locale to read dates in (default: the user's)"},
        {"timezone", "ID", "the time zone (default: the user's)"},
        {"help", "", "print how to use the program, or a command"},
        {"version", "", "print the version"},
    };
    return options;
}

tl::expected<Settings, CommandError> Settings::make(const Arguments& arguments) {
    Settings settings;
    settings.json = arguments.has("json");
    settings.clock = std::make_shared<SystemClock>();
    if (const auto folder = arguments.value("support-dir")) {
        if (folder->empty())
            return wrongUsage("--support-dir needs the name of a folder");
        settings.supportDirectory = *folder;
    }
    if (const auto time = arguments.value("now")) {
        const auto date = moment(*time);
        if (!date)
            return wrongUsage("--now takes a time like 2020-01-31T12:00:00Z, not '" + *time + "'");
        settings.clock = std::make_shared<FixedClock>(*date);
    }
    if (const auto locale = arguments.value("locale"); locale && !setUserLocale(*locale))
        return wrongUsage("unknown locale '" + *locale + "'");
    if (const auto zone = arguments.value("timezone"); zone && !setUserTimeZone(*zone))
        return wrongUsage("unknown time zone '" + *zone + "'");
    return settings;
}

} // namespace brindle
