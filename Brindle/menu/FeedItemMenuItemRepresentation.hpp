#pragma once

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/menu/FeedItemArticlesMenuItemRepresentation.hpp"

#include <memory>

namespace brindle {

/// The item of a feed, with its articles below it. Thread: main.
class FeedItemMenuItemRepresentation : public MenuItemRepresentation {
public:
    FeedItemMenuItemRepresentation(std::shared_ptr<FeedItem> item, std::shared_ptr<MenuRebuild> rebuild)
        : feedItem(std::move(item)), _rebuild(std::move(rebuild)) {}

    const std::shared_ptr<FeedItem> feedItem;

    void configure() override;
    /// Fills the head of the submenu with the actions on the feed; for a feed without articles, and a submenu that is empty, with the note
    /// that says so. Whether there are actions.
    bool addFeedActions();

    /// Null for a feed without articles. Its own submenu is empty, but it serves the previews of this one's items.
    const std::shared_ptr<FeedItemArticlesMenuItemRepresentation>& feedItemArticlesMenuItemRepresentation() const { return _articles; }

private:
    void addArticles();

    std::shared_ptr<MenuRebuild> _rebuild;
    std::shared_ptr<FeedItemArticlesMenuItemRepresentation> _articles;
};

} // namespace brindle
