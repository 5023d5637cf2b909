#include "Brindle/menu/FeedItemArticlesMenuItemRepresentation.hpp"

#include "Brindle/menu/MenuActions.hpp"
#include "foundation/Text.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace brindle {

namespace {

constexpr std::size_t longestShortName = 64; ///< in user-perceived characters

std::string titleOf(const SyndicatedEntry& entry, const ArticleItemOptions& options) {
    const std::string_view title = text::trimmed(entry.title);
    if (!options.usesShortNames)
        return std::string(title);
    const std::string_view shortened = text::prefix(title, longestShortName);
    return shortened.size() < title.size() ? std::string(shortened) + "..." : std::string(title);
}

/// The last one counts.
const Image* enclosureImage(const SyndicatedEntry& entry) {
    static const Image audio = Image::named("feed_audeo");
    static const Image video = Image::named("feed_video");
    const Image* image = nullptr;
    for (const SyndicatedEnclosure& enclosure : entry.enclosures) {
        if (enclosure.kind == SyndicatedEnclosure::Kind::audio)
            image = &audio;
        else if (enclosure.kind == SyndicatedEnclosure::Kind::video)
            image = &video;
    }
    return image;
}

} // namespace

FeedItemArticlesMenuItemRepresentation::FeedItemArticlesMenuItemRepresentation(
    Articles list, bool isOfCollection, std::shared_ptr<MenuRebuild> rebuild)
    : articles(std::move(list)), isCollection(isOfCollection), _rebuild(std::move(rebuild)) {}

void FeedItemArticlesMenuItemRepresentation::configure() {
    if (articles.empty())
        return;
    menuItem()->setEnabled(true);
    submenu()->removeAllItems();
    _looks.clear();
    _looks.reserve(articles.size());
    std::shared_ptr<FeedItem> feed;
    const Image* image = &_rebuild->feedImage(feed);
    for (const std::shared_ptr<FeedItemArticle>& article : articles) {
        // The articles of a feed mostly stand together.
        if (auto item = article->feedItem.lock(); item != feed) {
            image = &_rebuild->feedImage(item);
            feed = std::move(item);
        }
        _looks.push_back({article->entry->isRead(), image});
    }
    submenu()->setItemSource(weak_from_this());
    menuItem()->setTitle({});
}

void FeedItemArticlesMenuItemRepresentation::appendItems(Menu& menu) {
    menu.reserve(articles.size());
    for (std::size_t i = 0; i < articles.size(); ++i)
        appendArticleItem(articles[i], _looks[i], menu);
}

void FeedItemArticlesMenuItemRepresentation::appendArticleItem(
    const std::shared_ptr<FeedItemArticle>& article, const Look& look, Menu& menu) {
    const SyndicatedEntry& entry = *article->entry;
    const ArticleItemOptions& options = _rebuild->articleItems;
    const auto item = std::make_shared<MenuItem>(titleOf(entry, options), actions::showArticle);
    item->setTarget(_rebuild->applicationDelegate);
    item->setRepresentedObject(article);
    const Image* const enclosure = enclosureImage(entry);
    item->setImage(enclosure ? *enclosure : *look.feedImage);
    bool isUnread = !look.isRead;
    if (options.marksItems) {
        // Kept as is: when the mark is for read items, those get the style of unread ones as well.
        isUnread = isUnread != options.marksItemsWhenRead;
        item->setState(isUnread);
    }
    item->setStyle(isUnread ? options.unreadStyle : options.readStyle);
    if (options.hasPreviews)
        item->setSubmenuSource(weak_from_this());
    menu.addItem(item);
}

std::shared_ptr<Menu> FeedItemArticlesMenuItemRepresentation::makeSubmenu(const MenuItem& item) {
    const auto preview = std::make_shared<MenuItem>();
    preview->setRepresentedObject(item.representedObject());
    auto menu = std::make_shared<Menu>();
    menu->addItem(preview);
    menu->delegate = weak_from_this();
    return menu;
}

void FeedItemArticlesMenuItemRepresentation::menuWillOpen(Menu& menu) {
    if (menu.items().empty())
        return;
    MenuItem& item = *menu.items().front();
    const auto article = std::dynamic_pointer_cast<FeedItemArticle>(item.representedObject());
    if (!article || !_rebuild->previews)
        return;
    _currentPreview = _rebuild->previews->makePreview(article);
    item.setView(_currentPreview->view());
    _currentPreview->fill();
}

void FeedItemArticlesMenuItemRepresentation::menuDidClose(Menu& menu) {
    if (menu.items().empty())
        return;
    MenuItem& item = *menu.items().front();
    if (const auto& view = item.view())
        view->removeFromSuperview();
    item.setView(nullptr);
    _currentPreview.reset();
}

} // namespace brindle
