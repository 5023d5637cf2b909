#include "Brindle/menu/MenuExtraManager.hpp"

#include "Brindle/library/PreferenceKeys.hpp"
#include "Brindle/menu/DockBadge.hpp"
#include "Brindle/menu/FeedItemArticlesMenuItemRepresentation.hpp"
#include "Brindle/menu/FeedMenuItems.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "foundation/Console.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"

#include <string>
#include <utility>

namespace brindle {

std::shared_ptr<MenuExtraManager> MenuExtraManager::make(MenuEnvironment environment) {
    const std::shared_ptr<MenuExtraManager> manager(new MenuExtraManager(std::move(environment)));
    manager->_menu->delegate = manager;
    manager->_menu->autoenablesItems = true;
    manager->_environment.statusItem->setHighlights(false);
    manager->_environment.statusItem->setMenu(manager->_menu);
    return manager;
}

void MenuExtraManager::updateMenu() {
    assertMainThread();
    if (_isMenuOpen) {
        _isMenuUpdateRequested = true;
    } else {
        // Out of the present call, which may be handling an event of this very menu. Kept as is: whether the menu is open is not asked
        // again.
        ++_queuedRebuilds;
        DispatchQueue::main().async([manager = weak_from_this()] {
            if (const auto self = manager.lock())
                self->rebuildIfLast();
        });
    }
    updateDockBadge(*_environment.feedsManager, *_environment.defaults, *_environment.dockTile);
}

/// Of many that stand in line only the last is seen by anybody: to mark all of a large library, which asks for one after each entry, must
/// not keep a person waiting.
void MenuExtraManager::rebuildIfLast() {
    // Kept as is: a line for each request.
    Console::print("Building Menu...");
    if (--_queuedRebuilds == 0)
        rebuild();
}

void MenuExtraManager::rebuild() {
    const UserDefaults::Snapshot snapshot(*_environment.defaults);
    const auto rebuild = std::make_shared<MenuRebuild>(
        *_environment.defaults, _environment.feedsManager->feeds, _environment.applicationDelegate, _environment.previews);
    buildMenu(rebuild);
    showStatus(rebuild->counts.total().unread);
    _isMenuUpdateRequested = false;
}

void MenuExtraManager::updateStatusItem() {
    assertMainThread();
    showStatus(ArticleCounts(_environment.feedsManager->feeds).total().unread);
}

void MenuExtraManager::showStatus(std::size_t count) {
    const UserDefaults& defaults = *_environment.defaults;
    const Image icon = Image::named(_environment.statusIconName(defaults, count != 0));
    StatusItem& statusItem = *_environment.statusItem;
    statusItem.setImage(_environment.feedsManager->allowUpdates ? icon : icon.slashed());
    statusItem.setImagePosition(StatusItem::ImagePosition::left);
    const bool showsCount = defaults.boolForKey(preference::showUnreadArticlesInMenu) && count != 0;
    statusItem.setTitle(showsCount ? std::to_string(count) : std::string());
    statusItem.setToolTip(showsCount ? "Brindle (" + std::to_string(count) + ")" : "Brindle");
    // Kept as is: what opens the menu validates these items, and overrules both.
    for (const auto& [menuType, item] : _cachedMenuItems) {
        if (menuType.type == MenuType::Case::markAllRead)
            item->setEnabled(count != 0);
        else if (menuType.type == MenuType::Case::markAllUnread)
            item->setEnabled(count == 0);
    }
}

void MenuExtraManager::menuWillOpen(Menu&) {
    _isMenuOpen = true;
}

void MenuExtraManager::menuDidClose(Menu&) {
    _isMenuOpen = false;
    if (_isMenuUpdateRequested)
        updateMenu();
}

bool MenuExtraManager::respondsTo(std::string_view action) const {
    for (const std::string_view own : {actions::showAbout, actions::showPreferences, actions::handleQuit, actions::togglePauseFeedUpdates,
             actions::handleUpdateAll, actions::handleMarkAllRead, actions::handleMarkAllUnread}) {
        if (action == own)
            return true;
    }
    return false;
}

void MenuExtraManager::perform(const Action& action) {
    if (action.name == actions::showAbout)
        showAbout();
    else if (action.name == actions::showPreferences)
        showPreferences(action);
    else if (action.name == actions::handleQuit)
        handleQuit();
    else if (action.name == actions::togglePauseFeedUpdates)
        togglePauseFeedUpdates(action);
    else if (action.name == actions::handleUpdateAll)
        handleUpdateAll();
    else if (action.name == actions::handleMarkAllRead)
        markAll(actions::markArticlesAsRead, action);
    else if (action.name == actions::handleMarkAllUnread)
        markAll(actions::markArticlesAsUnread, action);
}

void MenuExtraManager::showAbout() {
    _environment.application->activate();
    _environment.application->orderFrontStandardAboutPanel();
}

void MenuExtraManager::showPreferences(const Action& action) {
    _environment.application->activate();
    if (const auto delegate = _environment.applicationDelegate.lock())
        delegate->perform({actions::showPreferences, action.sender});
}

void MenuExtraManager::handleQuit() {
    _environment.feedsManager->save();
    _environment.application->terminate();
}

void MenuExtraManager::togglePauseFeedUpdates(const Action& action) {
    FeedsManager& feedsManager = *_environment.feedsManager;
    // The title names what the next click does.
    if (const auto item = std::dynamic_pointer_cast<MenuItem>(action.sender))
        item->setTitle(localized(feedsManager.allowUpdates ? "unpauseFeedUpdatesMenuTitle" : "pauseFeedUpdatesMenuTitle"));
    feedsManager.allowUpdates = !feedsManager.allowUpdates;
    feedsManager.applyUpdateState(feedsManager.feeds);
    updateStatusItem();
}

void MenuExtraManager::handleUpdateAll() {
    FeedsManager& feedsManager = *_environment.feedsManager;
    feedsManager.allowUpdates = true;
    feedsManager.applyUpdateState(feedsManager.feeds);
    feedsManager.save();
}

void MenuExtraManager::markAll(std::string_view mark, const Action& action) {
    if (const auto delegate = _environment.applicationDelegate.lock())
        delegate->perform({mark, action.sender});
    updateMenu();
    _environment.feedsManager->save();
}

void MenuExtraManager::buildMenu(const std::shared_ptr<MenuRebuild>& rebuild) {
    const UserDefaults& defaults = *_environment.defaults;
    const FeedsManager::Feeds& feeds = _environment.feedsManager->feeds;
    _menuItemRepresentations.clear();
    _menu->removeAllItems();
    if (!_environment.hasApplicationMenu || defaults.boolForKey(preference::hideInDock)) {
        appendGeneralItem();
        _menu->addItem(MenuItem::separatorItem());
    }
    if (defaults.boolForKey(preference::showFeedsBrowser)) {
        appendItem(*_menu, "browserMenuTitle", actions::showFeedsBrowser);
        _menu->addItem(MenuItem::separatorItem());
    }
    appendAddItem();
    _menu->addItem(MenuItem::separatorItem());
    if (feeds.empty())
        return appendItem(*_menu, "No feeds...", {})->setEnabled(false);
    // Kept as is: the title is this one also while updates are paused.
    appendItem(*_menu, "pauseFeedUpdatesMenuTitle", actions::togglePauseFeedUpdates, true);
    _menu->addItem(MenuItem::separatorItem());
    if (appendGlobalActions())
        _menu->addItem(MenuItem::separatorItem());
    appendCollections(rebuild);
    // Kept as is: also where no collection stands before it.
    _menu->addItem(MenuItem::separatorItem());
    appendFeedItems(feeds, *_menu, _menuItemRepresentations, rebuild);
}

/// With `isOwn` this object takes the action, else whoever does along the responder chain.
std::shared_ptr<MenuItem> MenuExtraManager::appendItem(Menu& menu, std::string_view titleKey, std::string_view action, bool isOwn) {
    const auto item = std::make_shared<MenuItem>(localized(titleKey), action);
    if (isOwn)
        item->setTarget(weak_from_this());
    menu.addItem(item);
    return item;
}

void MenuExtraManager::appendGeneralItem() {
    if (!_generalMenuSubmenu) {
        _generalMenuSubmenu = std::make_shared<Menu>();
        appendItem(*_generalMenuSubmenu, "aboutMenuTitle", actions::showAbout, true);
        appendItem(*_generalMenuSubmenu, "preferencesMenuTitle", actions::showPreferences);
        _generalMenuSubmenu->addItem(MenuItem::separatorItem());
        appendItem(*_generalMenuSubmenu, "quitMenuTitle", actions::handleQuit, true);
    }
    appendItem(*_menu, "General", {})->setSubmenu(_generalMenuSubmenu);
}

void MenuExtraManager::appendAddItem() {
    const auto submenu = std::make_shared<Menu>();
    appendItem(*submenu, "Feed", actions::newFeed);
    appendItem(*submenu, "Group", actions::newGroup);
    appendItem(*_menu, "Add", {})->setSubmenu(submenu);
}

/// Whether there are any.
bool MenuExtraManager::appendGlobalActions() {
    const std::size_t before = _menu->items().size();
    const UserDefaults& defaults = *_environment.defaults;
    const auto appendCached = [&](std::string_view shown, std::string_view titleKey, std::string_view action, MenuType::Case type) {
        if (defaults.boolForKey(shown))
            _cachedMenuItems[{type}] = appendItem(*_menu, titleKey, action);
    };
    if (defaults.boolForKey(preference::showUpdateAll)) {
        appendItem(*_menu, "updateAllMenuTitle", actions::handleUpdateAll, true);
        _menu->addItem(MenuItem::separatorItem());
    }
    using Case = MenuType::Case;
    appendCached(preference::showMarkAllRead, "markAllReadMenuTitle", actions::markArticlesAsRead, Case::markAllRead);
    appendCached(preference::showMarkAllUnread, "markAllUnreadMenuTitle", actions::markArticlesAsUnread, Case::markAllUnread);
    appendCached(preference::showOpenAllUnread, "openAllUnreadMenuTitle", actions::openAllUnreadArticles, Case::openAllUnread);
    return _menu->items().size() > before;
}

void MenuExtraManager::appendCollections(const std::shared_ptr<MenuRebuild>& rebuild) {
    const CollectionEntityManager& manager = *_environment.collectionEntityManager;
    const auto append = [&](CollectionEntity<FeedItemArticle>& collection, std::string_view shown) {
        // Kept as is: what counts is the list before its refresh, so that a collection shows from the rebuild after its first articles on.
        if (!collection.entities().empty() && _environment.defaults->boolForKey(shown))
            appendCollection(collection, rebuild);
    };
    append(*manager.todayCollectionEntity, preference::showTodayCollectionInMenu);
    append(*manager.unreadArticlesCollectionEntity, preference::showUnreadCollectionInMenu);
    append(*manager.savedArticlesCollectionEntity, preference::showSavedArticlesCollectionInMenu);
}

void MenuExtraManager::appendCollection(CollectionEntity<FeedItemArticle>& collection, const std::shared_ptr<MenuRebuild>& rebuild) {
    static const Image smartFolder = menuItemImage(Image::named("NSImageNameFolderSmart"));
    collection.refresh();
    const auto articles = std::make_shared<FeedItemArticlesMenuItemRepresentation>(collection.entities(), true, rebuild);
    articles->configure();
    articles->menuItem()->setTitle(collection.name + " (" + std::to_string(collection.entities().size()) + ")");
    articles->menuItem()->setImage(smartFolder);
    _menuItemRepresentations.push_back(articles);
    _menu->addItem(articles->menuItem());
}

} // namespace brindle
