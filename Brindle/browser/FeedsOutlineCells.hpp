#pragma once

#include "Brindle/browser/FeedsOutlineViewDataControllerCollectionGroup.hpp"
#include "Brindle/library/CollectionEntityManager.hpp"
#include "Brindle/library/Feed.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "platform/Image.hpp"
#include "platform/TableCellView.hpp"

#include <memory>

namespace brindle {

/// The icon of the feed, the default one that all feeds share for a feed without and for no feed. Thread: main.
Image feedImage(const FeedItem* item);

/// What the rows of the browser's outline show. Thread: main.
class FeedsOutlineCells {
public:
    explicit FeedsOutlineCells(std::shared_ptr<const CollectionEntityManager> collectionEntityManager)
        : _collectionEntityManager(std::move(collectionEntityManager)) {}

    std::shared_ptr<TableCellView> cell(const FeedsOutlineViewDataControllerCollectionGroup& group) const;
    std::shared_ptr<TableCellView> cell(const FeedsOutlineViewDataControllerCollectionItem& item) const;
    std::shared_ptr<TableCellView> cell(const std::shared_ptr<Feed>& feed) const;

    /// Null for an item that stands for no collection.
    std::shared_ptr<const CollectionEntity<FeedItemArticle>> collection(const FeedsOutlineViewDataControllerCollectionItem& item) const;

private:
    std::shared_ptr<const CollectionEntityManager> _collectionEntityManager;
};

} // namespace brindle
