#include "Brindle/browser/FeedsOutlineViewDataController.hpp"

#include <algorithm>
#include <iterator>

// Reordering by drag and drop within the outline.

namespace brindle {

std::optional<PasteboardItem> FeedsOutlineViewDataController::pasteboardWriter(const OutlineItem& item) const {
    const auto feed = std::dynamic_pointer_cast<Feed>(item);
    // That there is data counts, not what it says: what is moved is remembered at the start of the drag.
    return feed ? std::optional(PasteboardItem{std::string(pasteboardType), feed->name()}) : std::nullopt;
}

void FeedsOutlineViewDataController::draggingSessionWillBegin(const std::vector<OutlineItem>& items) {
    _draggedFeeds.clear();
    for (const OutlineItem& item : items) {
        if (auto feed = std::dynamic_pointer_cast<Feed>(item))
            _draggedFeeds.push_back(std::move(feed));
    }
}

void FeedsOutlineViewDataController::draggingSessionEnded() {
    _draggedFeeds.clear();
}

/// Whether the group is dragged, or is below an entry that is.
bool FeedsOutlineViewDataController::isInDrag(const FeedGroup& group) const {
    for (const FeedGroup* each = &group; each; each = each->parent.lock().get()) {
        const bool isDragged =
            std::any_of(_draggedFeeds.begin(), _draggedFeeds.end(), [&](const std::shared_ptr<Feed>& feed) { return feed.get() == each; });
        if (isDragged)
            return true;
    }
    return false;
}

DragOperation FeedsOutlineViewDataController::validateDrop(const Pasteboard&, const OutlineItem& item, std::ptrdiff_t index) const {
    bool moves = true;
    if (const auto section = std::dynamic_pointer_cast<CollectionGroup>(item))
        moves = section->kind == CollectionGroup::Kind::feeds;
    else if (const auto collectionItem = std::dynamic_pointer_cast<CollectionItem>(item))
        moves = collectionItem->kind == CollectionItem::Kind::feeds;
    else if (const auto group = std::dynamic_pointer_cast<FeedGroup>(item))
        moves = !isInDrag(*group);
    else if (item)
        moves = index >= 0;
    return moves ? DragOperation::move : DragOperation::none;
}

bool FeedsOutlineViewDataController::acceptDrop(const Pasteboard& pasteboard, const OutlineItem& item, std::ptrdiff_t index) {
    if (_draggedFeeds.empty() || !pasteboard.hasData(pasteboardType))
        return false;
    const auto target = std::dynamic_pointer_cast<FeedGroup>(item);
    const std::size_t count = (target ? target->feeds() : _feedsManager->feeds).size();
    std::size_t place = index < 0 ? count : std::min(static_cast<std::size_t>(index), count);
    // What is moved must not end with the drag.
    const std::vector<std::shared_ptr<Feed>> feeds = _draggedFeeds;
    for (const std::shared_ptr<Feed>& feed : feeds)
        place = move(feed, target, place);
    if (const auto view = outlineView.lock())
        view->reloadItem(outlineParent(target), false);
    if (const auto application = _host.lock())
        application->updateMenu();
    return true;
}

/// Moves an entry to a place of a group, or of the top level, and gives the place of the next entry.
std::size_t FeedsOutlineViewDataController::move(
    const std::shared_ptr<Feed>& feed, const std::shared_ptr<FeedGroup>& target, std::size_t index) {
    const auto source = feed->parent.lock();
    const auto& list = source ? source->feeds() : _feedsManager->feeds;
    const auto oldIndex = static_cast<std::size_t>(std::distance(list.begin(), std::find(list.begin(), list.end(), feed)));
    // Kept as is: the entry leaves a place above also where it comes from another list, and then ends one place higher than it was dropped;
    // and the entry after it goes above it, to the same place.
    const bool leavesPlaceAbove = oldIndex < index;
    if (leavesPlaceAbove)
        --index;
    // Kept as is: a feed loses its timer with its place and is not started again, so that it rests until updating is switched or the next
    // launch.
    _feedsManager->removeFeed(feed, source);
    _feedsManager->addFeed(feed, static_cast<std::ptrdiff_t>(index), target);
    if (const auto view = outlineView.lock()) {
        view->beginUpdates();
        view->moveItem(oldIndex, outlineParent(source), index, outlineParent(target));
        if (source)
            reloadRowAndAncestors(source);
        else
            view->reloadItem(outlineParent(nullptr), false);
        view->endUpdates();
    }
    return leavesPlaceAbove ? index : index + 1;
}

} // namespace brindle
