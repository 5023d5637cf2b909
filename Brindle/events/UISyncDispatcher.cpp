#include "Brindle/events/UISyncDispatcher.hpp"

#include "foundation/FatalError.hpp"
#include "foundation/NotificationCenter.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

namespace {

std::shared_ptr<FeedItem> shared(FeedItem& feedItem) {
    return std::static_pointer_cast<FeedItem>(feedItem.shared_from_this());
}

void post(std::string_view name, const std::shared_ptr<FeedItem>& item, Notification::UserInfo userInfo) {
    userInfo.emplace("object", std::shared_ptr<Object>(item));
    NotificationCenter::defaultCenter().post(name, item.get(), std::move(userInfo));
}

} // namespace

UISyncDispatcher::UISyncDispatcher(
    std::weak_ptr<FeedEventNotifier> notifier, std::weak_ptr<InterfaceRefresher> refresher, std::shared_ptr<ImageDecoder> imageDecoder)
    : _notifier(std::move(notifier)), _refresher(std::move(refresher)), _imageDecoder(std::move(imageDecoder)) {}

std::shared_ptr<FeedEventNotifier> UISyncDispatcher::notifier() const {
    auto notifier = _notifier.lock();
    if (!notifier)
        fatalError("A feed reports to an application without a notifier.");
    return notifier;
}

void UISyncDispatcher::refreshInterface() {
    assertMainThread();
    const auto refresher = _refresher.lock();
    if (!refresher)
        fatalError("A feed reports to an application without an interface.");
    refresher->refreshCollections();
    refresher->updateMenu();
}

void UISyncDispatcher::feedItemDidFinishParsing(FeedItem& feedItem, const std::vector<std::shared_ptr<FeedItemArticle>>& newArticles) {
    assertMainThread();
    const std::shared_ptr<FeedItem> item = shared(feedItem);
    if (!newArticles.empty())
        notifier()->notifyNewArticles(item, newArticles);
    refreshInterface();
    post(didReceiveNewArticlesNotification, item, {{"newArticles", !newArticles.empty()}});
}

void UISyncDispatcher::feedItemDidDiscoverFeedItems(FeedItem&, const std::vector<std::shared_ptr<FeedItem>>&) {}

void UISyncDispatcher::feedItemDidFail(FeedItem& feedItem, const std::optional<FeedItemError>&) {
    notifier()->notifyError(shared(feedItem));
    if (onFailure)
        onFailure();
}

void UISyncDispatcher::feedItemHasImageData(FeedItem& feedItem) {
    assertMainThread();
    const auto& bytes = feedItem.feedImageData();
    const auto image = bytes && !bytes->empty() ? _imageDecoder->decode(*bytes) : std::nullopt;
    if (!image)
        return;
    const std::shared_ptr<FeedItem> item = shared(feedItem);
    refreshInterface();
    post(didUpdateFeedItemImageNotification, item, {{"image", *image}});
}

void UISyncDispatcher::feedItemIsInvalid(FeedItem&) {}

} // namespace brindle
