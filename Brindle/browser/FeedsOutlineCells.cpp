#include "Brindle/browser/FeedsOutlineCells.hpp"

#include "Brindle/browser/CollectionEntityTableCellView.hpp"
#include "Brindle/browser/FeedTableCellView.hpp"
#include "Brindle/browser/GroupTableCellView.hpp"
#include "Brindle/browser/SeparatorTableCellView.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

namespace brindle {

namespace {

using CollectionGroup = FeedsOutlineViewDataControllerCollectionGroup;
using CollectionItem = FeedsOutlineViewDataControllerCollectionItem;

/// Of a feed, or of all feeds below a group.
std::size_t unreadCount(const std::shared_ptr<Feed>& feed) {
    std::ptrdiff_t count = 0;
    forEachFeed({feed}, [&](const std::shared_ptr<Feed>& entry) {
        if (entry->kind != Feed::Kind::item)
            return;
        const auto& articles = static_cast<const FeedItem&>(*entry).articles();
        count += std::count_if(articles.begin(), articles.end(), [](const auto& article) { return !article->entry->isRead(); });
    });
    return static_cast<std::size_t>(count);
}

} // namespace

Image feedImage(const FeedItem* item) {
    const auto* const data = item && item->feedImageData() ? &*item->feedImageData() : nullptr;
    return data && !data->empty() ? Image::withData(*data) : Image::defaultFeedIcon();
}

std::shared_ptr<TableCellView> FeedsOutlineCells::cell(const CollectionGroup& group) const {
    const auto cell = std::make_shared<GroupTableCellView>();
    cell->nameTextField.setStringValue(localized(group.kind == CollectionGroup::Kind::collections ? "Collections" : "Feeds"));
    return cell;
}

std::shared_ptr<TableCellView> FeedsOutlineCells::cell(const CollectionItem& item) const {
    const auto entity = collection(item);
    if (!entity)
        return std::make_shared<SeparatorTableCellView>();
    const auto cell = std::make_shared<CollectionEntityTableCellView>();
    cell->iconImageView.setImage(Image::named("NSImageNameFolderSmart"));
    cell->nameTextField.setStringValue(entity->name);
    cell->counterTextField.setStringValue(std::to_string(entity->entities().size()));
    return cell;
}

std::shared_ptr<TableCellView> FeedsOutlineCells::cell(const std::shared_ptr<Feed>& feed) const {
    if (feed->kind == Feed::Kind::separator)
        return std::make_shared<SeparatorTableCellView>();
    const auto cell = std::make_shared<FeedTableCellView>();
    const bool isItem = feed->kind == Feed::Kind::item;
    cell->iconImageView.setImage(isItem ? feedImage(&static_cast<const FeedItem&>(*feed)) : Image::named("NSImageNameFolder"));
    cell->nameTextField.setStringValue(feed->name());
    const std::size_t count = unreadCount(feed);
    cell->counterTextField.setStringValue(count == 0 ? std::string() : std::to_string(count));
    cell->counterTextField.setTextColor(TextField::Color::systemGray);
    cell->counterTextField.setDrawsBackground(false);
    return cell;
}

std::shared_ptr<const CollectionEntity<FeedItemArticle>> FeedsOutlineCells::collection(const CollectionItem& item) const {
    switch (item.kind) {
    case CollectionItem::Kind::today:
        return _collectionEntityManager->todayCollectionEntity;
    case CollectionItem::Kind::unread:
        return _collectionEntityManager->unreadArticlesCollectionEntity;
    case CollectionItem::Kind::saved:
        return _collectionEntityManager->savedArticlesCollectionEntity;
    case CollectionItem::Kind::separator:
    case CollectionItem::Kind::feeds:
        break;
    }
    return nullptr;
}

} // namespace brindle
