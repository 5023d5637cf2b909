#pragma once

#include "foundation/Date.hpp"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace brindle {

/// Dates from text by a slow reader that is asked once for each day: texts that differ in nothing but their time of day, "HH:mm:ss", differ
/// by that much time, where their zone is a fixed one or neither end of the day shows that its clocks were changed. What the reader makes
/// of a day's text otherwise (locale, calendar, zone) is all its own. Thread: one.
class FeedDayCache {
public:
    using Reader = std::optional<Date> (*)(std::string_view text);

    explicit FeedDayCache(Reader reader) : _reader(reader) {}

    /// What the reader makes of `text`.
    std::optional<Date> date(std::string_view text);

private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    /// What is known of a day, by the text of its first second.
    struct Day {
        std::optional<Date> first; ///< absent when the texts of this day are no dates
        bool isRegular = false;    ///< whether time runs evenly from the first to the last second
    };

    const Day& day(std::string_view firstText, std::size_t timeOfDay);
    Day readDay(std::string_view firstText, std::size_t timeOfDay) const;

    Reader _reader;
    std::uint64_t _localeChanges = 0;
    std::unordered_map<std::string, Day, Hash, std::equal_to<>> _days;
};

} // namespace brindle
