#pragma once

#include "Brindle/library/CollectionEntityManager.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "Brindle/menu/ArticlePreview.hpp"
#include "foundation/UserDefaults.hpp"
#include "platform/ActionHandler.hpp"
#include "platform/Application.hpp"
#include "platform/DockTile.hpp"
#include "platform/StatusItem.hpp"

#include <functional>
#include <memory>
#include <string>

namespace brindle {

/// What the menu is made from, and what it asks of those above it. Thread: main.
struct MenuEnvironment {
    std::shared_ptr<FeedsManager> feedsManager;
    std::shared_ptr<CollectionEntityManager> collectionEntityManager;
    std::shared_ptr<const UserDefaults> defaults;
    std::shared_ptr<StatusItem> statusItem;
    std::shared_ptr<DockTile> dockTile;
    std::shared_ptr<Application> application;
    /// Takes what items of articles ask for, and the marking of all articles and the preferences window, which the menu only passes on.
    std::weak_ptr<ActionHandler> applicationDelegate;
    /// Null: previews stay empty.
    std::shared_ptr<ArticlePreviewFactory> previews;
    /// The name of the status item's image, by whether any article is unread.
    std::function<std::string(const UserDefaults& defaults, bool hasUnreadArticles)> statusIconName;
    /// Whether the desktop shows a menu of the application somewhere, as long as the program is listed among the running ones.
    bool hasApplicationMenu = true;
};

} // namespace brindle
