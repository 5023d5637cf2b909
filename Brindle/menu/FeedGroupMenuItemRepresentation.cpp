#include "Brindle/menu/FeedGroupMenuItemRepresentation.hpp"

#include "Brindle/menu/FeedMenuActions.hpp"
#include "Brindle/menu/FeedMenuItems.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <iterator>
#include <string>
#include <utility>

namespace brindle {

FeedGroupMenuItemRepresentation::~FeedGroupMenuItemRepresentation() {
    // Groups may be nested deeper than any stack: each one that dies with this one hands what it holds over before its own destructor runs.
    MenuItemRepresentations dying = std::move(menuItemRepresentations);
    while (!dying.empty()) {
        const std::shared_ptr<MenuItemRepresentation> representation = std::move(dying.back());
        dying.pop_back();
        auto* const group = dynamic_cast<FeedGroupMenuItemRepresentation*>(representation.get());
        if (!group || representation.use_count() > 1)
            continue;
        std::move(group->menuItemRepresentations.begin(), group->menuItemRepresentations.end(), std::back_inserter(dying));
        group->menuItemRepresentations.clear();
    }
}

void FeedGroupMenuItemRepresentation::configure() {
    configureItem();
    appendFeedItems(feedGroup->feeds(), *submenu(), menuItemRepresentations, _rebuild);
}

void FeedGroupMenuItemRepresentation::configureItem() {
    static const Image folder = menuItemImage(Image::named("NSImageNameFolder"));
    menuItemRepresentations.clear();
    submenu()->removeAllItems();
    menuItem()->setImage(folder);
    std::string title = feedGroup->name();
    const auto count = _rebuild->counts.of(*feedGroup);
    if (_rebuild->showsUnreadInGroups && count && count->unread > 0)
        title += " (" + std::to_string(count->unread) + ")";
    menuItem()->setTitle(std::move(title));
    if (feedGroup->feeds().empty())
        submenu()->addItem(std::make_shared<MenuItem>(localized("noFeedsMenuItem")));
    else
        appendFeedMenuActions(*submenu(), feedGroup);
}

} // namespace brindle
