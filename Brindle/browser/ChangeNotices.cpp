#include "Brindle/browser/ChangeNotices.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedTree.hpp"

namespace brindle::notices {

namespace {

constexpr std::string_view objectKey = "object";

/// Whether the entry is at an address, as a pointer to it or to its class would have it.
bool isAt(const void* address, const Feed& feed) {
    switch (feed.kind) {
    case Feed::Kind::item:
        return address == &feed || address == static_cast<const FeedItem*>(&feed);
    case Feed::Kind::group:
        return address == &feed || address == static_cast<const FeedGroup*>(&feed);
    case Feed::Kind::separator:
        break;
    }
    return address == &feed;
}

} // namespace

void post(std::string_view name, const std::shared_ptr<Object>& object) {
    NotificationCenter::defaultCenter().post(name, object.get(), {{std::string(objectKey), object}});
}

std::shared_ptr<Object> subject(const Notification& notification, const FeedsManager& feedsManager) {
    if (auto object = notification.value<std::shared_ptr<Object>>(objectKey))
        return *std::move(object);
    std::shared_ptr<Object> found;
    if (notification.object) {
        forEachFeed(feedsManager.feeds, [&](const std::shared_ptr<Feed>& feed) {
            if (isAt(notification.object, *feed))
                found = feed;
        });
    }
    return found;
}

} // namespace brindle::notices
