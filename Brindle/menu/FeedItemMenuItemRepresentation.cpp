#include "Brindle/menu/FeedItemMenuItemRepresentation.hpp"

#include "Brindle/menu/FeedMenuActions.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <cstddef>
#include <string>

namespace brindle {

void FeedItemMenuItemRepresentation::configure() {
    std::string title = feedItem->name();
    if (feedItem->articles().empty()) {
        submenu()->addItem(std::make_shared<MenuItem>(localized("noArticlesMenuItem")));
    } else {
        menuItem()->setEnabled(addFeedActions());
        addArticles();
        const auto count = _rebuild->counts.of(*feedItem);
        if (_rebuild->showsUnreadInFeeds && count && count->unread > 0)
            title += " (" + std::to_string(count->unread) + ")";
    }
    menuItem()->setImage(_rebuild->feedImage(feedItem));
    menuItem()->setTitle(std::move(title));
}

bool FeedItemMenuItemRepresentation::addFeedActions() {
    if (feedItem->articles().empty() && submenu()->items().empty()) {
        submenu()->addItem(std::make_shared<MenuItem>(localized("noArticlesMenuItem")));
        return false;
    }
    appendFeedMenuActions(*submenu(), feedItem);
    return true;
}

void FeedItemMenuItemRepresentation::addArticles() {
    _articles = std::make_shared<FeedItemArticlesMenuItemRepresentation>(feedItem->articles(), false, _rebuild);
    _articles->configure();
    submenu()->moveItems(*_articles->submenu());
}

} // namespace brindle
