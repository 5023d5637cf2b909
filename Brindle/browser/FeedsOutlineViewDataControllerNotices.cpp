#include "Brindle/browser/FeedsOutlineViewDataController.hpp"

#include "Brindle/library/FeedItemArticle.hpp"

#include <algorithm>
#include <iterator>

// What the outline does when it hears of a change.

namespace brindle {

namespace {

/// The entry that a notice is about: itself, or the feed of its article. Null where there is none.
std::shared_ptr<Feed> feedOfSubject(const std::shared_ptr<Object>& subject) {
    if (const auto article = std::dynamic_pointer_cast<FeedItemArticle>(subject))
        return article->feedItem.lock();
    return std::dynamic_pointer_cast<Feed>(subject);
}

} // namespace

void FeedsOutlineViewDataController::feedItemDidFinishParsing(const std::shared_ptr<Object>& subject) {
    reloadCollectionRows();
    reloadRowAndAncestors(feedOfSubject(subject));
}

void FeedsOutlineViewDataController::feedItemDidUpdateFeedItemImage(const std::shared_ptr<Object>& subject) {
    const auto view = outlineView.lock();
    const auto feed = feedOfSubject(subject);
    if (view && feed)
        view->reloadItem(feed, false);
}

void FeedsOutlineViewDataController::didSaveArticle(const std::shared_ptr<Object>&) {
    reloadCollectionRows(CollectionItem::Kind::saved);
}

void FeedsOutlineViewDataController::didUnsaveArticle(const std::shared_ptr<Object>& subject) {
    reloadCollectionRows(CollectionItem::Kind::saved);
    reloadRowAndAncestors(feedOfSubject(subject));
}

void FeedsOutlineViewDataController::didAddFeed(const std::shared_ptr<Object>& subject) {
    const auto view = outlineView.lock();
    const auto feed = feedOfSubject(subject);
    if (!view || !feed)
        return;
    const auto parent = feed->parent.lock();
    const auto& list = parent ? parent->feeds() : _feedsManager->feeds;
    const auto place = std::find(list.begin(), list.end(), feed);
    if (place == list.end())
        return;
    view->beginUpdates();
    view->insertItem(static_cast<std::size_t>(std::distance(list.begin(), place)), outlineParent(parent));
    view->endUpdates();
}

void FeedsOutlineViewDataController::didUpdateFeed(const std::shared_ptr<Object>& subject) {
    reloadRowAndAncestors(feedOfSubject(subject));
    reloadCollectionRows();
}

void FeedsOutlineViewDataController::didUpdateCollections(const std::shared_ptr<Object>&) {
    const std::vector<OutlineItem> selected = selectedItems();
    reload();
    const auto view = outlineView.lock();
    if (!view || selected.empty())
        return;
    OutlineItem item = selected.front();
    if (const auto feed = std::dynamic_pointer_cast<Feed>(item)) {
        expandAncestors(*feed);
    } else if (const auto before = std::dynamic_pointer_cast<CollectionItem>(item)) {
        // The row of the same collection is another object now, if it is still there.
        const auto section = groupOfKind(CollectionGroup::Kind::collections);
        const CollectionGroup::Items items = section ? section->items : CollectionGroup::Items();
        const auto now = std::find_if(items.begin(), items.end(), [&](const auto& each) { return each->kind == before->kind; });
        item = now == items.end() ? nullptr : *now;
    }
    if (const auto row = item ? view->rowForItem(item) : std::nullopt)
        view->selectRow(*row, false);
}

/// The rows of all collections, or of those of one kind.
void FeedsOutlineViewDataController::reloadCollectionRows(std::optional<CollectionItem::Kind> kind) {
    const auto view = outlineView.lock();
    const auto section = groupOfKind(CollectionGroup::Kind::collections);
    if (!view || !section)
        return;
    for (const auto& item : section->items) {
        if (!kind || item->kind == *kind)
            view->reloadItem(item, false);
    }
}

void FeedsOutlineViewDataController::reloadRowAndAncestors(const std::shared_ptr<Feed>& feed) {
    const auto view = outlineView.lock();
    if (!view)
        return;
    for (std::shared_ptr<Feed> each = feed; each; each = each->parent.lock())
        view->reloadItem(each, false);
}

} // namespace brindle
