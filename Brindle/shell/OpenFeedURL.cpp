#include "Brindle/shell/OpenFeedURL.hpp"

#include "Brindle/shell/FeedURL.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>

namespace brindle {

std::shared_ptr<FeedItem> openFeedURL(std::string_view address, FeedsManager& feedsManager) {
    assertMainThread();
    const auto given = URL::make(address);
    const auto url = given ? normalizedFeedURL(*given) : std::nullopt;
    if (!url)
        return nullptr;
    const auto feedItem = FeedItem::make({}, *url, FeedItem::defaultUpdateRate, {}, {}, feedsManager.environment());
    feedItem->scheduleUpdates(true);
    feedsManager.addFeed(feedItem, std::ssize(feedsManager.feeds));
    return feedItem;
}

} // namespace brindle
