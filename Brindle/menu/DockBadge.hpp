#pragma once

#include "Brindle/library/FeedsManager.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/DockTile.hpp"

namespace brindle {

/// Sets the badge to the number of unread articles, the empty text for none of them; takes it away where the preferences want none.
/// Thread: main.
void updateDockBadge(const FeedsManager& feedsManager, const UserDefaults& defaults, DockTile& dockTile);

} // namespace brindle
