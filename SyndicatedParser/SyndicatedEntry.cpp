#include "SyndicatedParser/SyndicatedEntry.hpp"

#include "SyndicatedParser/SyndicatedFeed.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

void SyndicatedEntry::setContent(std::shared_ptr<SyndicatedContent> content) {
    _content = std::move(content);
    const std::shared_ptr<SyndicatedFeed> owner = feed.lock();
    if (owner && owner->kind == SyndicatedFeedKind::atom && !summary)
        summary = _content;
}

std::string SyndicatedEntry::effectiveIdentifier() const {
    if (!identifier.empty())
        return identifier;
    if (const std::optional<URL> link = preferredLinkURL(); link && !link->absoluteString().empty())
        return link->absoluteString();
    return title;
}

std::optional<URL> SyndicatedEntry::preferredLinkURL() const {
    if (links.size() == 1)
        return links.front().url;
    const auto alternate = std::ranges::find(links, SyndicatedLinkRelation::alternate, &SyndicatedLink::relation);
    return alternate != links.end() ? alternate->url : std::nullopt;
}

} // namespace brindle
