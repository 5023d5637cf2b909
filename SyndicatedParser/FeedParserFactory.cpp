#include "SyndicatedParser/FeedParserFactory.hpp"

#include "SyndicatedParser/SyndicatedAtomFeedParser.hpp"
#include "SyndicatedParser/SyndicatedJSONFeedParser.hpp"
#include "SyndicatedParser/SyndicatedRSSFeedParser.hpp"

#include <utility>

namespace brindle {

std::unique_ptr<SyndicatedFeedParser> makeFeedParser(SyndicatedFeedKind detected, std::shared_ptr<SyndicatedFeed> feed, SharedBytes text,
    StringEncoding encoding, std::shared_ptr<const Clock> clock) {
    switch (detected) {
    case SyndicatedFeedKind::rss:
    case SyndicatedFeedKind::rdf:
        return std::make_unique<SyndicatedRSSFeedParser>(std::move(feed), std::move(text), encoding, std::move(clock));
    case SyndicatedFeedKind::atom:
        return std::make_unique<SyndicatedAtomFeedParser>(std::move(feed), std::move(text), encoding, std::move(clock));
    case SyndicatedFeedKind::json:
        return std::make_unique<SyndicatedJSONFeedParser>(std::move(feed), std::move(text), encoding, std::move(clock));
    case SyndicatedFeedKind::unknown:
    case SyndicatedFeedKind::html:
    case SyndicatedFeedKind::opml:
        break;
    }
    return nullptr;
}

} // namespace brindle
