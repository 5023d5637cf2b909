#include "desktop/windows/FeedMenu.hpp"

#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "platform/MenuItem.hpp"

#include <string_view>

namespace brindle::desktop {

namespace {

constexpr std::string_view editFeed = "editFeed:";
constexpr std::string_view removeSeparator = "removeSeparator:";

} // namespace

std::shared_ptr<Menu> FeedMenu::make(const std::shared_ptr<Feed>& feed) {
    auto menu = std::make_shared<Menu>();
    const auto append = [&](std::string_view title, std::string_view action) {
        const auto item = std::make_shared<MenuItem>(localized(title), action);
        item->setRepresentedObject(feed);
        menu->addItem(item);
        return item;
    };
    if (feed->kind != Feed::Kind::separator) {
        append("markAllReadMenuTitle", actions::markArticlesAsRead);
        append("markAllUnreadMenuTitle", actions::markArticlesAsUnread);
        append("openAllUnreadMenuTitle", actions::openAllUnreadArticles);
        menu->addItem(MenuItem::separatorItem());
        append(feed->kind == Feed::Kind::group ? "Edit Feed Group" : "Edit Feed", editFeed)->setTarget(weak_from_this());
        append("Remove Feed", browseractions::deleteFeed);
    } else {
        append("Remove Separator", removeSeparator)->setTarget(weak_from_this());
    }
    return menu;
}

bool FeedMenu::respondsTo(std::string_view action) const {
    return action == editFeed || action == removeSeparator;
}

void FeedMenu::perform(const Action& action) {
    if (action.name == editFeed)
        _edit();
    else if (const auto feed = std::dynamic_pointer_cast<Feed>(action.representedObject()))
        _remove(feed);
}

} // namespace brindle::desktop
