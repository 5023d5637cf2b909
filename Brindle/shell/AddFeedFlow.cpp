#include "Brindle/shell/AddFeedFlow.hpp"

#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/shell/FeedURL.hpp"
#include "foundation/NotificationCenter.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>
#include <utility>

namespace brindle {

namespace {

using Failure = AddFeedFlow::Failure;

AddFeedFlowDelegate::Alert alert(Failure failure, std::string_view address) {
    switch (failure) {
    case Failure::emptyAddress:
        return {"URL cannot be empty", "Please provide a valid URL of the feed."};
    case Failure::invalidAddress:
        return {"invalidURLDialogTitle", "invalidURLDialogMessage"};
    case Failure::noFeedDiscovered:
        return {"No Feeds Found!", "Brindle could not find any feeds associated to " + std::string(address)};
    case Failure::unreadableFeed:
        break;
    }
    return {"An error occured", "Could not connect to or parse feed. Please check the URL is correct and try again."};
}

} // namespace

std::shared_ptr<AddFeedFlow> AddFeedFlow::make(std::weak_ptr<FeedsManager> feedsManager, std::weak_ptr<AddFeedFlowDelegate> delegate) {
    return std::shared_ptr<AddFeedFlow>(new AddFeedFlow(std::move(feedsManager), std::move(delegate)));
}

void AddFeedFlow::confirm(std::string_view address) {
    assertMainThread();
    if (address.empty())
        return fail(Failure::emptyAddress, address);
    const auto url = typedFeedURL(address);
    if (!url)
        return fail(Failure::invalidAddress, address);
    const auto feedsManager = _feedsManager.lock();
    if (!feedsManager)
        return;
    const auto candidate = FeedItem::make(name, *url, updateRate, {}, {}, feedsManager->environment());
    candidate->delegate = weak_from_this();
    stop();
    _newFeedItem = candidate;
    candidate->scheduleUpdates(true);
}

void AddFeedFlow::stop() {
    _discoveredFeedItems.clear();
    if (!_newFeedItem)
        return;
    _newFeedItem->delegate.reset();
    _newFeedItem->invalidateTimer();
    _newFeedItem.reset();
}

void AddFeedFlow::commit(const FeedItems& feeds) {
    assertMainThread();
    const FeedItems committed = feeds; // stopping empties the lists that they come from
    stop();
    const auto feedsManager = _feedsManager.lock();
    if (committed.empty() || !feedsManager)
        return;
    for (const std::shared_ptr<FeedItem>& feed : committed) {
        feed->setName(name);
        feedsManager->addFeed(feed, std::ssize(feedsManager->feeds));
        feed->scheduleUpdates(true);
    }
    feedsManager->save();
    if (const auto delegate = _delegate.lock())
        delegate->addFeedFlowDidCommit(*this, committed);
    for (const std::shared_ptr<FeedItem>& feed : committed)
        NotificationCenter::defaultCenter().post(didAddFeedNotification, feed.get());
}

void AddFeedFlow::feedItemDidFinishParsing(FeedItem&, const std::vector<std::shared_ptr<FeedItemArticle>>&) {
    if (_newFeedItem)
        commit({_newFeedItem});
}

void AddFeedFlow::feedItemDidDiscoverFeedItems(FeedItem& feedItem, const FeedItems& feedItems) {
    if (feedItems.empty()) {
        stop();
        return fail(Failure::noFeedDiscovered, feedItem.url().absoluteString());
    }
    _discoveredFeedItems = feedItems;
    if (const auto delegate = _delegate.lock())
        delegate->addFeedFlowDidDiscoverFeedItems(*this);
}

void AddFeedFlow::feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>&) {
    stop();
    fail(Failure::unreadableFeed, feedItem.url().absoluteString());
}

void AddFeedFlow::fail(Failure failure, std::string_view address) {
    if (const auto delegate = _delegate.lock())
        delegate->addFeedFlowDidFail(*this, failure, alert(failure, address));
}

} // namespace brindle
