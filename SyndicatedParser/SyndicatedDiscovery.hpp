#pragma once

#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "foundation/Date.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brindle {

/// Finds the feeds that a web page announces.
class SyndicatedDiscovery {
public:
    using Feeds = std::vector<std::shared_ptr<SyndicatedFeed>>;

    /// Reads `page` (its whole text) on a queue of its own and gives the announced feeds in page order. `completion` runs on the main queue
    /// after a success, on the caller's thread for a blank text, and on the discovery queue after a failure; an empty list means no feeds
    /// and failure alike.
    static void discoverFeeds(std::string page, std::shared_ptr<const Clock> clock, std::function<void(Feeds feeds)> completion);
};

} // namespace brindle
