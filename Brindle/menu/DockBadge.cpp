#include "Brindle/menu/DockBadge.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/menu/ArticleCounts.hpp"

#include <cstddef>
#include <optional>
#include <string>

namespace brindle {

void updateDockBadge(const FeedsManager& feedsManager, const UserDefaults& defaults, DockTile& dockTile) {
    if (!defaults.boolForKey(preference::showBadgeInDock))
        return dockTile.setBadgeLabel(std::nullopt);
    const std::size_t count = ArticleCounts(feedsManager.feeds).total().unread;
    dockTile.setBadgeLabel(count == 0 ? std::string() : std::to_string(count));
}

} // namespace brindle
