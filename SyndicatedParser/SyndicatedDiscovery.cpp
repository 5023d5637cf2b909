#include "SyndicatedParser/SyndicatedDiscovery.hpp"

#include "SyndicatedParser/IconLinks.hpp"
#include "SyndicatedParser/Normalisation.hpp"
#include "foundation/Console.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/StringEncoding.hpp"
#include "foundation/Text.hpp"
#include "foundation/URLFetch.hpp"
#include "html/Error.hpp"
#include "html/Parser.hpp"

#include <chrono>
#include <cstddef>
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

constexpr std::chrono::milliseconds iconTimeout{60'000};
constexpr std::size_t maximumIconBody = 1 << 24; ///< no icon and no page that links one is larger in good faith

bool isReadable(const URLFetch::Answer& answer) {
    return answer.statusCode >= 200 && answer.statusCode < 300;
}

/// The page's text; absent, with a line on the console where one is due, when there is none.
std::optional<std::string> pageOf(tl::expected<URLFetch::Answer, URLError> answer) {
    const auto refuse = [](std::string_view line) {
        Console::print(line);
        return std::nullopt;
    };
    if (!answer)
        return refuse("Could not fetch feed icon because an error occured: " + answer.error().description);
    if (!isReadable(*answer))
        return refuse("Could not fetch icon data because the status code was not in the range of 2xx");
    if (answer->body.empty())
        return refuse("Could not fetch icon data because the HTML data was empty");
    if (!isValidUTF8(answer->body))
        return std::nullopt;
    return std::move(answer->body);
}

/// Tries icon links one after another. Thread: main.
class IconLadder : public std::enable_shared_from_this<IconLadder> {
public:
    IconLadder(std::vector<URL> links, SyndicatedDiscovery::IconCompletion completion)
        : _links(std::move(links)), _completion(std::move(completion)) {}

    void tryNext() {
        if (_next == _links.size())
            return _completion(std::nullopt);
        SyndicatedDiscovery::readIcon(_links[_next++], [self = shared_from_this()](std::optional<std::string> bytes) {
            if (bytes)
                self->_completion(std::move(bytes));
            else
                self->tryNext();
        });
    }

private:
    const std::vector<URL> _links;
    std::size_t _next = 0;
    const SyndicatedDiscovery::IconCompletion _completion;
};

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

void SyndicatedDiscovery::discoverIcon(const URL& root, IconCompletion completion) {
    DispatchQueue::main().async([root, completion = std::move(completion)]() mutable {
        URLFetch::begin(root, iconTimeout, maximumIconBody,
            [root, completion = std::move(completion)](tl::expected<URLFetch::Answer, URLError> answer) mutable {
                std::optional<std::string> page = pageOf(std::move(answer));
                if (!page)
                    return completion(std::nullopt);
                // Pages are large: they are read off the main thread.
                DispatchQueue("icon_discovery_from_url_queue").async([root, page = std::move(*page), completion]() mutable {
                    const auto ladder = std::make_shared<IconLadder>(iconLinks(std::move(page), root), std::move(completion));
                    DispatchQueue::main().async([ladder] { ladder->tryNext(); });
                });
            });
    });
}

void SyndicatedDiscovery::readIcon(const URL& url, IconCompletion completion) {
    URLFetch::begin(
        url, iconTimeout, maximumIconBody, [completion = std::move(completion)](tl::expected<URLFetch::Answer, URLError> answer) {
            completion(answer && isReadable(*answer) ? std::optional(std::move(answer->body)) : std::nullopt);
        });
}

} // namespace brindle
