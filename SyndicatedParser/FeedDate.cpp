#include "SyndicatedParser/FeedDate.hpp"

#include "foundation/DateFormatter.hpp"

namespace brindle {

std::optional<Date> parseFeedDate(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    for (const std::string_view pattern : FeedFormat::all) {
        if (const std::optional<Date> date = DateFormatter::date(text, pattern))
            return date;
    }
    return std::nullopt;
}

} // namespace brindle
