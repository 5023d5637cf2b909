#include "Brindle/shell/LibraryHelper.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>
#include <utility>

namespace brindle {

namespace {

/// Kept as is: only feeds of the top level itself are put to rest; those inside groups end with their groups.
void removeAll(FeedsManager& manager) {
    const auto removed = std::exchange(manager.feeds, {});
    for (const std::shared_ptr<Feed>& feed : removed) {
        if (feed->kind != Feed::Kind::item)
            continue;
        auto& item = static_cast<FeedItem&>(*feed);
        item.delegate.reset();
        item.invalidateTimer();
    }
}

} // namespace

void LibraryHelper::importFeeds(FeedsManager& manager, const FeedsManager::Feeds& feeds, ImportMode mode) {
    assertMainThread();
    if (mode == ImportMode::replace)
        removeAll(manager);
    for (const std::shared_ptr<Feed>& feed : feeds)
        manager.addFeed(feed, std::ssize(manager.feeds));
}

} // namespace brindle
