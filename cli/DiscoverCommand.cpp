#include "cli/DiscoverCommand.hpp"

#include "SyndicatedParser/FeedKindDetection.hpp"
#include "SyndicatedParser/SyndicatedDiscovery.hpp"
#include "cli/DocumentSequence.hpp"
#include "cli/FeedJSON.hpp"
#include "cli/Input.hpp"
#include "cli/TextTable.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/RunLoop.hpp"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace brindle {

namespace {

using JSON = nlohmann::ordered_json;
using Feeds = SyndicatedDiscovery::Feeds;

/// The feeds of a page as a session finds them: in the page's text after detection.
Feeds discoveredFeeds(std::string bytes, const std::shared_ptr<const Clock>& clock) {
    std::string page = decodeDocument(std::move(bytes)).text;
    if (!page.empty())
        detectFeedKind(page);
    const auto found = std::make_shared<std::optional<Feeds>>();
    SyndicatedDiscovery::discoverFeeds(std::move(page), clock,
        [found](Feeds feeds) { DispatchQueue::main().async([found, feeds = std::move(feeds)]() mutable { *found = std::move(feeds); }); });
    // The end always comes; there is no input to wait for.
    while (!RunLoop::main().runUntil([&] { return found->has_value(); }, std::chrono::hours(1))) {
    }
    return std::move(**found);
}

JSON discoveredJSON(const Feeds& feeds) {
    JSON array = JSON::array();
    for (const std::shared_ptr<SyndicatedFeed>& feed : feeds) {
        JSON json = JSON::object();
        json["kind"] = kindName(feed->kind);
        json["title"] = feed->title;
        json["link"] = feed->links.empty() ? JSON() : linkJSON(feed->links.front());
        array.push_back(std::move(json));
    }
    return array;
}

std::string discoveredText(const Feeds& feeds) {
    TextTable table({"Kind", "Title", "Address"});
    for (const std::shared_ptr<SyndicatedFeed>& feed : feeds) {
        const auto url = feed->primaryURL();
        table.add({std::string(displayString(feed->kind)), feed->title, url ? url->absoluteString() : std::string()});
    }
    return table.text();
}

CommandResult run(const CommandContext& context) {
    auto bytes = readInput(context.arguments.plain.front());
    if (!bytes)
        return tl::unexpected(bytes.error());
    const Feeds feeds = discoveredFeeds(*std::move(bytes), context.settings.clock);
    if (context.settings.json)
        context.output.json(discoveredJSON(feeds));
    else
        context.output.text(discoveredText(feeds));
    return ExitStatus::done;
}

} // namespace

Command discoverCommand() {
    return {"discover", "FILE", "Lists the feeds that a web page announces.", {}, 1, 1, run};
}

} // namespace brindle
