#include "SyndicatedParser/SyndicatedFeed.hpp"

#include <algorithm>

namespace brindle {

std::optional<URL> SyndicatedFeed::primaryURL() const {
    if (links.empty())
        return std::nullopt;
    const auto alternate = std::ranges::find(links, SyndicatedLinkRelation::alternate, &SyndicatedLink::relation);
    return alternate != links.end() ? alternate->url : links.front().url;
}

} // namespace brindle
