#include "SyndicatedParser/SyndicatedDiscovery.hpp"

#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Console.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/Text.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

#include <utility>

namespace brindle {

namespace {

using Feeds = SyndicatedDiscovery::Feeds;

/// The kind of feed behind a link's MIME type, given in lower case; `unknown` for any other type.
SyndicatedFeedKind feedKindOfMIMEType(std::string_view type) {
    if (type == "application/rss+xml")
        return SyndicatedFeedKind::rss;
    if (type == "application/rdf+xml")
        return SyndicatedFeedKind::rdf;
    if (type == "application/atom+xml")
        return SyndicatedFeedKind::atom;
    if (type == "application/json" || type == "application/feed+json")
        return SyndicatedFeedKind::json;
    return SyndicatedFeedKind::unknown;
}

/// The feed that a link element announces; null when it announces none.
std::shared_ptr<SyndicatedFeed> announcedFeed(const html::Element& element, const Clock& clock) {
    if (text::lowercased(element.attr("rel")) != "alternate")
        return nullptr;
    const SyndicatedFeedKind kind = feedKindOfMIMEType(text::lowercased(element.attr("type")));
    if (kind == SyndicatedFeedKind::unknown)
        return nullptr;
    SyndicatedLink link;
    // Kept as is: the whole address is taken in lower case, though servers may tell paths apart by case.
    link.url = sanitizedURL(std::nullopt, text::lowercased(element.attr("href")));
    // Kept as is: a link without a title has the empty one, and no name is made of its address.
    link.title = element.attr("title");
    auto feed = std::make_shared<SyndicatedFeed>(kind, clock.now());
    feed->title = link.title;
    feed->links.push_back(std::move(link));
    return feed;
}

/// Absent, with a line on the console, when the page could not be read.
std::optional<Feeds> announcedFeeds(std::string page, const Clock& clock) {
    std::unique_ptr<html::Document> document;
    try {
        // The builder for XML gives no element a meaning of its own: an unclosed link holds what follows it.
        html::Parser parser = html::Parser::xmlParser();
        document = html::parse(std::move(page), "", parser);
    } catch (const html::Error&) {
        Console::print("SyndicatedDiscovery: Could not generate document");
        return std::nullopt;
    }
    try {
        Feeds feeds;
        for (const html::Element* const element : document->getElementsByTag("link")) {
            if (std::shared_ptr<SyndicatedFeed> feed = announcedFeed(*element, clock))
                feeds.push_back(std::move(feed));
        }
        return feeds;
    } catch (const html::Error&) {
        Console::print("SyndicatedDiscovery: Could not get link tags");
        return std::nullopt;
    }
}

} // namespace

void SyndicatedDiscovery::discoverFeeds(std::string page, std::shared_ptr<const Clock> clock, std::function<void(Feeds feeds)> completion) {
    if (text::trimmedOfIllegalCharacters(page).empty())
        return completion({});
    const DispatchQueue queue("feeds_discovery_queue");
    queue.async([page = std::move(page), clock = std::move(clock), completion = std::move(completion)]() mutable {
        std::optional<Feeds> feeds = announcedFeeds(std::move(page), *clock);
        if (!feeds)
            return completion({});
        DispatchQueue::main().async(
            [completion = std::move(completion), feeds = std::move(*feeds)]() mutable { completion(std::move(feeds)); });
    });
}

} // namespace brindle
