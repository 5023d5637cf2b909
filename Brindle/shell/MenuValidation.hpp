#pragma once

#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/menu/ArticleCounts.hpp"
#include "platform/MenuItem.hpp"

#include <string_view>

namespace brindle {

/// Whether the articles must be counted before an item with this action can be judged.
bool dependsOnArticleCounts(std::string_view action);

/// Whether an item can be chosen whose action goes to the application's delegate: marking and opening need articles to mark or open, of the
/// feed or group that the item stands for, else of the whole library, whose `counts` these are; the browser can be shown unless it is
/// visible already. Any other action always can. Thread: main.
bool isMenuItemValid(const MenuItem& item, const ArticleCounts& counts, bool isFeedsBrowserVisible);

} // namespace brindle
