#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindle {

class AddFeedFlow;
class FeedsManager;

/// Follows an `AddFeedFlow`, on the main thread. Any call may come from within a call of the flow's own operations.
class AddFeedFlowDelegate {
public:
    /// What keeps an address out of the library.
    enum class Failure {
        emptyAddress,
        invalidAddress,
        unreadableFeed,  ///< the candidate could not be fetched or is no feed
        noFeedDiscovered ///< the candidate is a page that announces no feed
    };

    /// What a person is told of a failure, in that person's language.
    struct Alert {
        std::string title;
        std::string text;
    };

    virtual ~AddFeedFlowDelegate() = default;
    /// Nothing was changed; another try may follow.
    virtual void addFeedFlowDidFail(AddFeedFlow& flow, Failure failure, const Alert& alert) = 0;
    /// The candidate is a page that announces the flow's `discoveredFeedItems`: some of them may be committed.
    virtual void addFeedFlowDidDiscoverFeedItems(AddFeedFlow& flow) = 0;
    /// The feeds are in the library, fetch, and are saved; their notices are still to be posted.
    virtual void addFeedFlowDidCommit(AddFeedFlow& flow, const std::vector<std::shared_ptr<FeedItem>>& feeds) = 0;
    /// The candidate itself was committed, and all was told of it.
    virtual void addFeedFlowDidEnd(AddFeedFlow&) {}
};

/// The way of a typed address into the library: a candidate feed is made of it and fetched, and only a candidate that parsed, or what was
/// picked of a page's feeds, enters the library. Knows nothing of windows. Thread: main.
class AddFeedFlow : public FeedItemDelegate, public std::enable_shared_from_this<AddFeedFlow> {
public:
    using Failure = AddFeedFlowDelegate::Failure;
    using FeedItems = std::vector<std::shared_ptr<FeedItem>>;

    static constexpr std::int64_t defaultUpdateRate = 5; ///< minutes; what is offered before a person chooses

    static std::shared_ptr<AddFeedFlow> make(std::weak_ptr<FeedsManager> feedsManager, std::weak_ptr<AddFeedFlowDelegate> delegate);

    std::string name; ///< what the feeds are to be called; may be empty. Read when the candidate is made and again at the commit
    std::int64_t updateRate = defaultUpdateRate; ///< minutes

    /// The address that a typed text stands for; absent for none, once the delegate was told.
    std::optional<URL> check(std::string_view address);
    /// Makes a candidate of the address and fetches it; an earlier candidate is dropped.
    void confirm(std::string_view address);
    /// Appends the feeds to the end of the library's top level, fetches each again, saves, and posts `notices::didAddFeed` for each. With
    /// no feeds only the candidate is let go.
    void commit(const FeedItems& feeds);
    /// Lets the candidate and what it led to go.
    void stop();

    /// The candidate while it is fetched, or null.
    const std::shared_ptr<FeedItem>& newFeedItem() const { return _newFeedItem; }
    /// The feeds that the candidate's page announces, in page order.
    const FeedItems& discoveredFeedItems() const { return _discoveredFeedItems; }

    void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) override;
    void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const FeedItems& feedItems) override;
    void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) override;

private:
    AddFeedFlow(std::weak_ptr<FeedsManager> feedsManager, std::weak_ptr<AddFeedFlowDelegate> delegate)
        : _feedsManager(std::move(feedsManager)), _delegate(std::move(delegate)) {}
    void fail(Failure failure, std::string_view address);

    const std::weak_ptr<FeedsManager> _feedsManager;
    const std::weak_ptr<AddFeedFlowDelegate> _delegate;
    std::shared_ptr<FeedItem> _newFeedItem;
    FeedItems _discoveredFeedItems;
};

} // namespace brindle
