#pragma once

#include "Brindle/library/Feed.hpp"
#include "Brindle/menu/ArticleCounts.hpp"
#include "platform/MenuItem.hpp"

#include <functional>
#include <memory>

namespace brindle {

/// How many articles a feed has, or all feeds below a group; those of the whole library for null.
using CountArticles = std::function<ArticleCounts::Count(const std::shared_ptr<Feed>& feed)>;

/// Whether an item can be chosen whose action goes to the application's delegate: marking and opening need articles to mark or open, of the
/// feed or group that the item stands for, else of the whole library; the browser can be shown unless it is visible already. Any other
/// action always can, and nothing is counted for it. Thread: main.
bool isMenuItemValid(const MenuItem& item, const CountArticles& count, bool isFeedsBrowserVisible);

} // namespace brindle
