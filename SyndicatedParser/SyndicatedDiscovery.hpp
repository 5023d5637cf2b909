#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "foundation/Date.hpp"
#include "foundation/URL.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brindle {

/// Finds the feeds and the icon that a web page announces.
class SyndicatedDiscovery {
public:
    using Feeds = std::vector<std::shared_ptr<SyndicatedFeed>>;

    /// Reads `page` (its whole text) on a queue of its own and gives the announced feeds in page order. `completion` runs on the main queue
    /// after a success, on the caller's thread for a blank text, and on the discovery queue after a failure; an empty list means no feeds
    /// and failure alike.
    static void discoverFeeds(std::string page, std::shared_ptr<const Clock> clock, std::function<void(Feeds feeds)> completion);

    using IconCompletion = std::function<void(std::optional<std::string> bytes)>;

    /// Fetches the page at `root` and then its icon links in order, until one can be read: its bytes, which may be empty, or nothing. A
    /// page that can't be had prints why. `completion` runs on the main queue. Thread: any.
    static void discoverIcon(const URL& root, IconCompletion completion);

    /// The bytes behind an http or https address that answers with 2xx within 60 seconds. Thread: main.
    static void readIcon(const URL& url, IconCompletion completion);
};

} // namespace brindle
