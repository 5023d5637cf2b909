#include "SyndicatedParser/FeedDate.hpp"

#include "SyndicatedParser/FeedDayCache.hpp"
#include "foundation/DateFormatter.hpp"
#include "foundation/Text.hpp"

namespace brindle {

namespace {

/// Whether `text` lacks a character that stands for itself in `pattern`: most texts are told from most patterns by that, at once.
bool isOfAnotherForm(std::string_view text, std::string_view pattern) {
    return (pattern == FeedFormat::atom && !text.ends_with('Z')) ||
           (pattern == FeedFormat::atom3 && text.find('.') == std::string_view::npos);
}

std::optional<Date> dateByPatterns(std::string_view text) {
    for (const std::string_view pattern : FeedFormat::all) {
        if (isOfAnotherForm(text, pattern))
            continue;
        if (const std::optional<Date> date = DateFormatter::date(text, pattern))
            return date;
    }
    return std::nullopt;
}

} // namespace

std::optional<Date> parseFeedDate(std::string_view text) {
    // The formatter passes over white space as well; without it, texts of one day look alike.
    const std::string_view trimmed = text::trimmed(text);
    if (trimmed.empty())
        return std::nullopt;
    thread_local FeedDayCache cache(dateByPatterns);
    return cache.date(trimmed);
}

} // namespace brindle
