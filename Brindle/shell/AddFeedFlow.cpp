#include "Brindle/shell/AddFeedFlow.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/shell/FeedURL.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <iterator>
#include <utility>

namespace brindle {

namespace {

using Failure = AddFeedFlow::Failure;

AddFeedFlowDelegate::Alert alert(Failure failure, std::string_view address) {
    switch (failure) {
    case Failure::emptyAddress:
        return {localized("URL cannot be empty"), localized("Please provide a valid URL of the feed.")};
    case Failure::invalidAddress:
        return {localized("invalidURLDialogTitle"), localized("invalidURLDialogMessage")};
    case Failure::noFeedDiscovered:
        // Kept as is: asked for as a whole, so that no table has it.
        return {localized("No Feeds Found!"), localized("Brindle could not find any feeds associated to " + std::string(address))};
    case Failure::unreadableFeed:
        break;
    }
    return {localized("An error occured"), localized("Could not connect to or parse feed. Please check the URL is correct and try again.")};
}

} // namespace

std::shared_ptr<AddFeedFlow> AddFeedFlow::make(std::weak_ptr<FeedsManager> feedsManager, std::weak_ptr<AddFeedFlowDelegate> delegate) {
    return std::shared_ptr<AddFeedFlow>(new AddFeedFlow(std::move(feedsManager), std::move(delegate)));
}

std::optional<URL> AddFeedFlow::check(std::string_view address) {
    assertMainThread();
    auto url = address.empty() ? std::nullopt : typedFeedURL(address);
    if (!url)
        fail(address.empty() ? Failure::emptyAddress : Failure::invalidAddress, address);
    return url;
}

void AddFeedFlow::confirm(std::string_view address) {
    const auto url = check(address);
    const auto feedsManager = _feedsManager.lock();
    if (!url || !feedsManager)
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
        notices::post(notices::didAddFeed, feed);
}

void AddFeedFlow::feedItemDidFinishParsing(FeedItem&, const std::vector<std::shared_ptr<FeedItemArticle>>&) {
    if (!_newFeedItem)
        return;
    commit({_newFeedItem});
    if (const auto delegate = _delegate.lock())
        delegate->addFeedFlowDidEnd(*this);
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
