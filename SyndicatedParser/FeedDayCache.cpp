#include "SyndicatedParser/FeedDayCache.hpp"

#include "foundation/UserLocale.hpp"

#include <algorithm>
#include <array>

namespace brindle {

namespace {

constexpr std::size_t maximumTextSize = 64;
constexpr std::size_t maximumDays = 4096;
constexpr std::string_view firstSecond = "00:00:00";
constexpr std::string_view lastSecond = "23:59:59";
constexpr std::chrono::seconds lastSecondOfDay(86399);

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The number that two digits make, up to `maximum`; absent for anything else.
std::optional<int> twoDigits(std::string_view text, int maximum) {
    if (!isDigit(text[0]) || !isDigit(text[1]))
        return std::nullopt;
    const int number = (text[0] - '0') * 10 + (text[1] - '0');
    return number <= maximum ? std::optional(number) : std::nullopt;
}

/// The time that an "HH:mm:ss" is into its day; absent for any other text.
std::optional<std::chrono::seconds> timeOf(std::string_view text) {
    if (text[2] != ':' || text[5] != ':')
        return std::nullopt;
    const std::optional<int> hours = twoDigits(text, 23);
    const std::optional<int> minutes = twoDigits(text.substr(3), 59);
    const std::optional<int> seconds = twoDigits(text.substr(6), 59);
    if (!hours || !minutes || !seconds)
        return std::nullopt;
    return std::chrono::hours(*hours) + std::chrono::minutes(*minutes) + std::chrono::seconds(*seconds);
}

/// Where the "HH:mm:ss" of `text` begins: at its first colon, with no digit on either side; `npos` when there is none.
std::size_t timeOfDayIn(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon < 2 || colon + 6 > text.size())
        return std::string_view::npos;
    const std::size_t begin = colon - 2;
    const std::size_t end = colon + 6;
    const bool isPartOfMore = (begin > 0 && isDigit(text[begin - 1])) || (end < text.size() && isDigit(text[end]));
    return isPartOfMore ? std::string_view::npos : begin;
}

bool areDigits(std::string_view text) {
    return std::ranges::all_of(text, isDigit);
}

/// Whether `text`, which has a time of day, ends with "GMT", "+0100" or "+01:00", in all of which time runs evenly.
bool endsWithFixedZone(std::string_view text) {
    const auto isOffset = [text](std::size_t size) {
        const std::string_view zone = text.substr(text.size() - size);
        return (zone.starts_with('+') || zone.starts_with('-')) && areDigits(zone.substr(1, 2)) && areDigits(zone.substr(size - 2));
    };
    return text.ends_with(" GMT") || isOffset(5) || (isOffset(6) && text[text.size() - 3] == ':');
}

} // namespace

std::optional<Date> FeedDayCache::date(std::string_view text) {
    const std::size_t begin = timeOfDayIn(text);
    if (text.size() > maximumTextSize || begin == std::string_view::npos)
        return _reader(text);
    const std::optional<std::chrono::seconds> time = timeOf(text.substr(begin, firstSecond.size()));
    if (!time)
        return _reader(text);
    std::array<char, maximumTextSize> buffer{};
    std::ranges::copy(text, buffer.begin());
    std::ranges::copy(firstSecond, buffer.begin() + static_cast<std::ptrdiff_t>(begin));
    const Day& known = day({buffer.data(), text.size()}, begin);
    if (!known.isRegular)
        return _reader(text);
    return known.first ? std::optional(*known.first + *time) : std::nullopt;
}

const FeedDayCache::Day& FeedDayCache::day(std::string_view firstText, std::size_t timeOfDay) {
    if (const std::uint64_t changes = userLocaleChanges(); changes != _localeChanges) {
        _days.clear();
        _localeChanges = changes;
    }
    if (const auto found = _days.find(firstText); found != _days.end())
        return found->second;
    if (_days.size() >= maximumDays)
        _days.clear();
    return _days.emplace(firstText, readDay(firstText, timeOfDay)).first->second;
}

FeedDayCache::Day FeedDayCache::readDay(std::string_view firstText, std::size_t timeOfDay) const {
    const std::optional<Date> first = _reader(firstText);
    if (endsWithFixedZone(firstText))
        return {first, true};
    std::string lastText(firstText);
    lastText.replace(timeOfDay, lastSecond.size(), lastSecond);
    const std::optional<Date> last = _reader(lastText);
    if (!first || !last)
        return {std::nullopt, !first && !last};
    return {first, *last - *first == lastSecondOfDay};
}

} // namespace brindle
