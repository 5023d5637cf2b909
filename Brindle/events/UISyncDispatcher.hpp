#pragma once

#include "Brindle/events/FeedEventNotifier.hpp"
#include "Brindle/events/InterfaceRefresher.hpp"
#include "Brindle/library/FeedItemDelegate.hpp"
#include "platform/ImageDecoder.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace brindle {

/// Receives what all feeds of the library report, and tells each thing to the notifier, to what shows the library, and, on the default
/// notification centre, to the open windows. At once and in full: nothing is gathered. The object of each notice is the `FeedItem`, which
/// stands in its user info as well: "object", a `std::shared_ptr<Object>`. Thread: main.
class UISyncDispatcher : public FeedItemDelegate {
public:
    /// After each parse. User info: "newArticles", a bool, whether the parse brought any.
    static constexpr std::string_view didReceiveNewArticlesNotification = "UISyncDispatcherDidReceiveNewArticlesNotification";
    /// When an icon came that can be shown. User info: "image", an `Image`.
    static constexpr std::string_view didUpdateFeedItemImageNotification = "UISyncDispatcherDidUpdateFeedItemImage";

    /// A notifier or a refresher that is gone when it is needed is fatal.
    UISyncDispatcher(
        std::weak_ptr<FeedEventNotifier> notifier, std::weak_ptr<InterfaceRefresher> refresher, std::shared_ptr<ImageDecoder> imageDecoder);

    /// Collections, then the menu.
    void refreshInterface();

    void feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) override;
    void feedItemDidDiscoverFeedItems(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItem>>& feedItems) override;
    void feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>& error) override;
    void feedItemHasImageData(FeedItem& feedItem) override;
    void feedItemIsInvalid(FeedItem& feedItem) override;

    /// After a failure was announced, of which nothing is posted; empty: nobody asks.
    std::function<void()> onFailure;

private:
    std::shared_ptr<FeedEventNotifier> notifier() const;

    std::weak_ptr<FeedEventNotifier> _notifier;
    std::weak_ptr<InterfaceRefresher> _refresher;
    std::shared_ptr<ImageDecoder> _imageDecoder;
};

} // namespace brindle
