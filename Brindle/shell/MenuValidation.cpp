#include "Brindle/shell/MenuValidation.hpp"

#include "Brindle/menu/MenuActions.hpp"

#include <memory>
#include <string_view>

namespace brindle {

namespace {

ArticleCounts::Count representedCount(const MenuItem& item, const ArticleCounts& counts) {
    const auto feed = std::dynamic_pointer_cast<Feed>(item.representedObject());
    if (!feed)
        return counts.total();
    const auto count = counts.of(*feed);
    // One that has left the library since the menu was made.
    return count ? *count : ArticleCounts({feed}).total();
}

} // namespace

bool dependsOnArticleCounts(std::string_view action) {
    return action == actions::markArticlesAsRead || action == actions::markArticlesAsUnread || action == actions::openAllUnreadArticles;
}

bool isMenuItemValid(const MenuItem& item, const ArticleCounts& counts, bool isFeedsBrowserVisible) {
    const std::string_view action = item.action();
    if (action == actions::showFeedsBrowser)
        return !isFeedsBrowserVisible;
    if (action == actions::markArticlesAsRead || action == actions::openAllUnreadArticles)
        return representedCount(item, counts).unread > 0;
    if (action == actions::markArticlesAsUnread)
        return representedCount(item, counts).read > 0;
    return true;
}

} // namespace brindle
