#pragma once

#include "Brindle/events/UISyncDispatcher.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "cli/EventLog.hpp"
#include "foundation/NotificationCenter.hpp"
#include "foundation/UserDefaults.hpp"

#include <memory>
#include <optional>
#include <vector>

namespace brindle {

/// Writes down what the desktop program would announce of what feeds report: banners, speech, the dock's badge and the notices to open
/// windows. Passes each report on. Thread: main.
class AnnouncedEvents : public FeedItemDelegate {
public:
    AnnouncedEvents(const std::shared_ptr<EventLog>& log, const std::shared_ptr<FeedsManager>& feedsManager,
        const std::shared_ptr<const UserDefaults>& defaults, std::shared_ptr<FeedItemDelegate> next);

    /// The failure, where something could not be written.
    tl::expected<void, CommandError> result() const { return _log->result(); }

    void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) override;
    void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) override;
    void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) override;
    void feedItemHasImageData(FeedItem& feedItem) override;
    void feedItemIsInvalid(FeedItem& feedItem) override;
    void feedItemDidEndIconStep(FeedItem& feedItem) override;

private:
    std::shared_ptr<EventLog> _log;
    std::shared_ptr<FeedEventNotifier> _notifier;
    std::shared_ptr<InterfaceRefresher> _refresher;
    UISyncDispatcher _dispatcher;
    std::shared_ptr<FeedItemDelegate> _next;
    NotificationCenter::Token _newArticlesObserver;
    NotificationCenter::Token _imageObserver;
};

} // namespace brindle
