#pragma once

#include "Brindle/library/CollectionEntity.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "Brindle/library/FeedsManager.hpp"

#include <memory>

namespace brindle {

/// The unread articles of all feeds, in the order of the tree. Thread: main.
class UnreadArticlesCollectionEntity : public CollectionEntity<FeedItemArticle> {
public:
    explicit UnreadArticlesCollectionEntity(std::weak_ptr<const FeedsManager> feedsManager);

    /// Fatal when the library is gone.
    void refresh() override;

private:
    std::weak_ptr<const FeedsManager> _feedsManager;
};

} // namespace brindle
