#include "Brindle/menu/FeedMenuItems.hpp"

#include "Brindle/menu/FeedGroupMenuItemRepresentation.hpp"
#include "Brindle/menu/FeedItemMenuItemRepresentation.hpp"
#include "Brindle/menu/FeedSeparatorMenuItemRepresentation.hpp"
#include "Brindle/menu/MenuActions.hpp"

#include <vector>

namespace brindle {

namespace {

/// A list of the tree whose items are still to be made.
struct Level {
    const FeedsManager::Feeds* feeds = nullptr;
    Menu* menu = nullptr;
    MenuItemRepresentations* representations = nullptr;
};

void addOpenAction(const MenuItemRepresentation& representation, const std::shared_ptr<Feed>& feed) {
    representation.menuItem()->setAction(actions::openFeed);
    representation.menuItem()->setRepresentedObject(feed);
}

std::shared_ptr<MenuItemRepresentation> representationOf(
    const std::shared_ptr<Feed>& feed, const std::shared_ptr<MenuRebuild>& rebuild, std::vector<Level>& open) {
    switch (feed->kind) {
    case Feed::Kind::item: {
        const auto item = std::make_shared<FeedItemMenuItemRepresentation>(std::static_pointer_cast<FeedItem>(feed), rebuild);
        addOpenAction(*item, feed);
        item->configure();
        return item;
    }
    case Feed::Kind::group: {
        const auto group = std::make_shared<FeedGroupMenuItemRepresentation>(std::static_pointer_cast<FeedGroup>(feed), rebuild);
        addOpenAction(*group, feed);
        group->configureItem();
        open.push_back({&group->feedGroup->feeds(), group->submenu().get(), &group->menuItemRepresentations});
        return group;
    }
    case Feed::Kind::separator:
        break;
    }
    return std::make_shared<FeedSeparatorMenuItemRepresentation>();
}

} // namespace

void appendFeedItems(
    const FeedsManager::Feeds& feeds, Menu& menu, MenuItemRepresentations& representations, const std::shared_ptr<MenuRebuild>& rebuild) {
    std::vector<Level> open = {{&feeds, &menu, &representations}};
    while (!open.empty()) {
        const Level level = open.back();
        open.pop_back();
        for (const std::shared_ptr<Feed>& feed : *level.feeds) {
            level.representations->push_back(representationOf(feed, rebuild, open));
            level.menu->addItem(level.representations->back()->menuItem());
        }
    }
}

} // namespace brindle
