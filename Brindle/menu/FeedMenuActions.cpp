#include "Brindle/menu/FeedMenuActions.hpp"

#include "Brindle/menu/MenuActions.hpp"
#include "foundation/LocalizedStrings.hpp"

#include <string_view>

namespace brindle {

void appendFeedMenuActions(Menu& menu, const std::shared_ptr<Feed>& feed) {
    const auto append = [&](std::string_view titleKey, std::string_view action) {
        const auto item = std::make_shared<MenuItem>(localized(titleKey), action);
        item->setRepresentedObject(feed);
        menu.addItem(item);
    };
    append("markAllReadMenuTitle", actions::markArticlesAsRead);
    append("markAllUnreadMenuTitle", actions::markArticlesAsUnread);
    append("openAllUnreadMenuTitle", actions::openAllUnreadArticles);
    menu.addItem(MenuItem::separatorItem());
}

} // namespace brindle
