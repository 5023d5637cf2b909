#include "Brindle/shell/MenuValidation.hpp"

#include "Brindle/menu/MenuActions.hpp"

#include <string_view>

namespace brindle {

bool isMenuItemValid(const MenuItem& item, const CountArticles& count, bool isFeedsBrowserVisible) {
    const std::string_view action = item.action();
    const auto represented = [&] { return count(std::dynamic_pointer_cast<Feed>(item.representedObject())); };
    if (action == actions::showFeedsBrowser)
        return !isFeedsBrowserVisible;
    if (action == actions::markArticlesAsRead || action == actions::openAllUnreadArticles)
        return represented().unread > 0;
    if (action == actions::markArticlesAsUnread)
        return represented().read > 0;
    return true;
}

} // namespace brindle
