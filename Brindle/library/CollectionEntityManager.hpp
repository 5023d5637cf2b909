#pragma once

#include "Brindle/library/SavedArticlesCollectionEntity.hpp"
#include "Brindle/library/TodayCollectionEntity.hpp"
#include "Brindle/library/UnreadArticlesCollectionEntity.hpp"
#include "foundation/UserDefaults.hpp"

#include <memory>

namespace brindle {

/// Owns the three collections. Thread: main.
class CollectionEntityManager {
public:
    /// Makes the collections, each with its first result. The library and the saved articles must live; a refresh without them is fatal.
    CollectionEntityManager(const std::weak_ptr<const FeedsManager>& feedsManager,
        const std::weak_ptr<const SavedArticlesManager>& savedArticlesManager, std::shared_ptr<const UserDefaults> defaults,
        const std::shared_ptr<const Clock>& clock);
    virtual ~CollectionEntityManager() = default;

    const std::shared_ptr<TodayCollectionEntity> todayCollectionEntity;
    const std::shared_ptr<UnreadArticlesCollectionEntity> unreadArticlesCollectionEntity;
    const std::shared_ptr<SavedArticlesCollectionEntity> savedArticlesCollectionEntity;

    /// Refreshes the collections that the preferences show in the menu or in the browser; one that is shown nowhere keeps its old result,
    /// for each refresh walks the whole library.
    virtual void refreshCollections();

private:
    std::shared_ptr<const UserDefaults> _defaults;
};

} // namespace brindle
