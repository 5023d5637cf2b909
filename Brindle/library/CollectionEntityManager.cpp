#include "Brindle/library/CollectionEntityManager.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "foundation/RunLoop.hpp"

#include <string_view>
#include <utility>

namespace brindle {

CollectionEntityManager::CollectionEntityManager(const std::weak_ptr<const FeedsManager>& feedsManager,
    const std::weak_ptr<const SavedArticlesManager>& savedArticlesManager, std::shared_ptr<const UserDefaults> defaults,
    const std::shared_ptr<const Clock>& clock)
    : todayCollectionEntity(std::make_shared<TodayCollectionEntity>(feedsManager, clock)),
      unreadArticlesCollectionEntity(std::make_shared<UnreadArticlesCollectionEntity>(feedsManager)),
      savedArticlesCollectionEntity(std::make_shared<SavedArticlesCollectionEntity>(savedArticlesManager)), _defaults(std::move(defaults)) {
}

void CollectionEntityManager::refreshCollections() {
    assertMainThread();
    const auto refresh = [&](CollectionEntity<FeedItemArticle>& collection, std::string_view inMenu, std::string_view inBrowser) {
        if (_defaults->boolForKey(inMenu) || _defaults->boolForKey(inBrowser))
            collection.refresh();
    };
    refresh(*todayCollectionEntity, preference::showTodayCollectionInMenu, preference::showTodayCollectionInFeedsBrowser);
    refresh(*unreadArticlesCollectionEntity, preference::showUnreadCollectionInMenu, preference::showUnreadCollectionInFeedsBrowser);
    refresh(*savedArticlesCollectionEntity, preference::showSavedArticlesCollectionInMenu,
        preference::showSavedArticlesCollectionInFeedsBrowser);
}

} // namespace brindle
