#include "Brindle/browser/FeedsOutlineViewDataController.hpp"

#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <utility>

namespace brindle {

namespace {

constexpr double separatorHeight = 8.0;

std::shared_ptr<Feed> feedOf(const OutlineItem& item) {
    return std::dynamic_pointer_cast<Feed>(item);
}

std::shared_ptr<FeedGroup> groupOf(const OutlineItem& item) {
    return std::dynamic_pointer_cast<FeedGroup>(item);
}

bool isSeparator(const OutlineItem& item) {
    if (const auto collectionItem = std::dynamic_pointer_cast<FeedsOutlineViewDataControllerCollectionItem>(item))
        return collectionItem->kind == FeedsOutlineViewDataControllerCollectionItem::Kind::separator;
    const auto feed = feedOf(item);
    return feed && feed->kind == Feed::Kind::separator;
}

} // namespace

std::shared_ptr<FeedsOutlineViewDataController> FeedsOutlineViewDataController::make(std::shared_ptr<FeedsManager> feedsManager,
    std::shared_ptr<const CollectionEntityManager> collectionEntityManager, std::shared_ptr<const UserDefaults> defaults,
    std::weak_ptr<FeedsBrowserHost> host) {
    std::shared_ptr<FeedsOutlineViewDataController> controller(new FeedsOutlineViewDataController(
        std::move(feedsManager), std::move(collectionEntityManager), std::move(defaults), std::move(host)));
    using Self = FeedsOutlineViewDataController;
    controller->observe(notices::didReceiveNewArticles, &Self::feedItemDidFinishParsing);
    controller->observe(notices::didUpdateFeedItemImage, &Self::feedItemDidUpdateFeedItemImage);
    controller->observe(SavedArticlesManager::didSaveArticleNotification, &Self::didSaveArticle);
    controller->observe(SavedArticlesManager::didUnsaveArticleNotification, &Self::didUnsaveArticle);
    controller->observe(notices::didAddFeed, &Self::didAddFeed);
    controller->observe(notices::didUpdateFeed, &Self::didUpdateFeed);
    controller->observe(notices::didUpdateCollections, &Self::didUpdateCollections);
    return controller;
}

FeedsOutlineViewDataController::FeedsOutlineViewDataController(std::shared_ptr<FeedsManager> feedsManager,
    std::shared_ptr<const CollectionEntityManager> collectionEntityManager, std::shared_ptr<const UserDefaults> defaults,
    std::weak_ptr<FeedsBrowserHost> host)
    : _feedsManager(std::move(feedsManager)), _defaults(std::move(defaults)), _host(std::move(host)),
      _cells(std::move(collectionEntityManager)) {
    buildCollections();
}

void FeedsOutlineViewDataController::observe(std::string_view name, Reaction reaction) {
    _tokens.push_back(NotificationCenter::defaultCenter().addObserver(
        name, nullptr, [controller = weak_from_this(), reaction](const Notification& notification) {
            assertMainThread();
            if (const auto self = controller.lock())
                (self.get()->*reaction)(notices::subject(notification));
        }));
}

void FeedsOutlineViewDataController::configure() {
    const auto view = outlineView.lock();
    if (!view)
        return;
    view->setDelegate(weak_from_this());
    view->setDataSource(weak_from_this());
    view->setAllowsMultipleSelection(false);
    view->setVerticalMotionCanBeginDrag(true);
    view->registerForDraggedType(pasteboardType);
}

void FeedsOutlineViewDataController::buildCollections() {
    CollectionGroup::Items items;
    const auto add = [&](std::string_view key, CollectionItem::Kind kind) {
        if (_defaults->boolForKey(key))
            items.push_back(std::make_shared<CollectionItem>(kind));
    };
    add(preference::showTodayCollectionInFeedsBrowser, CollectionItem::Kind::today);
    add(preference::showUnreadCollectionInFeedsBrowser, CollectionItem::Kind::unread);
    add(preference::showSavedArticlesCollectionInFeedsBrowser, CollectionItem::Kind::saved);
    _collections.clear();
    if (!items.empty())
        _collections.push_back(std::make_shared<CollectionGroup>(CollectionGroup::Kind::collections, std::move(items)));
    _collections.push_back(std::make_shared<CollectionGroup>(CollectionGroup::Kind::feeds));
}

void FeedsOutlineViewDataController::reload() {
    buildCollections();
    const auto view = outlineView.lock();
    if (!view)
        return;
    view->reloadData();
    for (const auto kind : {CollectionGroup::Kind::collections, CollectionGroup::Kind::feeds}) {
        if (const auto group = groupOfKind(kind))
            view->expandItem(group);
    }
}

std::shared_ptr<FeedsOutlineViewDataControllerCollectionGroup> FeedsOutlineViewDataController::groupOfKind(
    CollectionGroup::Kind kind) const {
    const auto found = std::find_if(_collections.begin(), _collections.end(), [&](const auto& group) { return group->kind == kind; });
    return found == _collections.end() ? nullptr : *found;
}

std::vector<OutlineItem> FeedsOutlineViewDataController::selectedItems() const {
    std::vector<OutlineItem> items;
    if (const auto view = outlineView.lock()) {
        for (const std::size_t row : view->selectedRows()) {
            if (auto item = view->itemAtRow(row))
                items.push_back(std::move(item));
        }
    }
    return items;
}

// What the outline shows.

/// The entries that are a row's children; null where its children are of another class, or it has none.
const std::vector<std::shared_ptr<Feed>>* FeedsOutlineViewDataController::feedsBelow(const OutlineItem& item) const {
    if (const auto section = std::dynamic_pointer_cast<CollectionGroup>(item))
        return section->kind == CollectionGroup::Kind::feeds ? &_feedsManager->feeds : nullptr;
    const auto group = groupOf(item);
    return group ? &group->feeds() : nullptr;
}

std::size_t FeedsOutlineViewDataController::numberOfChildren(const OutlineItem& item) const {
    if (!item)
        return _collections.size();
    if (const auto* feeds = feedsBelow(item))
        return feeds->size();
    const auto section = std::dynamic_pointer_cast<CollectionGroup>(item);
    return section ? section->items.size() : 0;
}

OutlineItem FeedsOutlineViewDataController::child(std::size_t index, const OutlineItem& item) const {
    if (index >= numberOfChildren(item))
        return nullptr;
    if (!item)
        return _collections[index];
    if (const auto* feeds = feedsBelow(item))
        return (*feeds)[index];
    return std::static_pointer_cast<CollectionGroup>(item)->items[index];
}

bool FeedsOutlineViewDataController::isItemExpandable(const OutlineItem& item) const {
    return isGroupItem(item) || groupOf(item);
}

bool FeedsOutlineViewDataController::isGroupItem(const OutlineItem& item) const {
    return std::dynamic_pointer_cast<CollectionGroup>(item) != nullptr;
}

double FeedsOutlineViewDataController::heightOfRow(const OutlineItem& item) const {
    if (isSeparator(item))
        return separatorHeight;
    const auto view = outlineView.lock();
    return view ? view->rowHeight() : 0;
}

bool FeedsOutlineViewDataController::shouldSelectItem(const OutlineItem& item) const {
    return item && !isGroupItem(item) && !isSeparator(item);
}

std::shared_ptr<TableCellView> FeedsOutlineViewDataController::viewFor(const OutlineItem& item) const {
    if (const auto section = std::dynamic_pointer_cast<CollectionGroup>(item))
        return _cells.cell(*section);
    if (const auto collectionItem = std::dynamic_pointer_cast<CollectionItem>(item))
        return _cells.cell(*collectionItem);
    const auto feed = feedOf(item);
    return feed ? _cells.cell(feed) : nullptr;
}

void FeedsOutlineViewDataController::outlineViewSelectionDidChange() {
    const std::vector<OutlineItem> items = selectedItems();
    if (const auto receiver = delegate.lock())
        receiver->outlineSelectionDidChange(items.empty() ? nullptr : items.front());
}

OutlineItem FeedsOutlineViewDataController::outlineParent(const std::shared_ptr<FeedGroup>& group) const {
    return group ? OutlineItem(group) : groupOfKind(CollectionGroup::Kind::feeds);
}

void FeedsOutlineViewDataController::expandAncestors(const Feed& feed) {
    const auto view = outlineView.lock();
    if (!view)
        return;
    std::vector<std::shared_ptr<FeedGroup>> ancestors;
    for (auto group = feed.parent.lock(); group; group = group->parent.lock())
        ancestors.push_back(group);
    std::for_each(ancestors.rbegin(), ancestors.rend(), [&](const auto& group) { view->expandItem(group); });
}

void FeedsOutlineViewDataController::reveal(const std::shared_ptr<Feed>& feed) {
    const auto view = outlineView.lock();
    if (!view)
        return;
    view->expandItem(groupOfKind(CollectionGroup::Kind::feeds));
    expandAncestors(*feed);
    if (const auto row = view->rowForItem(feed)) {
        view->selectRow(*row, false);
        view->scrollRowToVisible(*row);
    }
}

void FeedsOutlineViewDataController::reloadCounts(const std::shared_ptr<FeedGroup>& group) {
    reloadCollectionRows();
    reloadRowAndAncestors(group);
}

void FeedsOutlineViewDataController::removeRow(std::size_t index, const std::shared_ptr<FeedGroup>& parent) {
    const auto view = outlineView.lock();
    if (!view)
        return;
    view->beginUpdates();
    view->removeItem(index, outlineParent(parent));
    view->endUpdates();
}

} // namespace brindle
