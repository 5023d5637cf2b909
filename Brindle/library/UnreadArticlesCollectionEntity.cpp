#include "Brindle/library/UnreadArticlesCollectionEntity.hpp"

#include "foundation/FatalError.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <utility>

namespace brindle {

UnreadArticlesCollectionEntity::UnreadArticlesCollectionEntity(std::weak_ptr<const FeedsManager> feedsManager)
    : CollectionEntity(localized("Unread Articles")), _feedsManager(std::move(feedsManager)) {
    UnreadArticlesCollectionEntity::refresh();
}

void UnreadArticlesCollectionEntity::refresh() {
    assertMainThread();
    const auto feedsManager = _feedsManager.lock();
    if (!feedsManager)
        fatalError("The unread articles need a library.");
    setEntities(feedsManager->articles(ArticleStateFilter::unread));
}

} // namespace brindle
