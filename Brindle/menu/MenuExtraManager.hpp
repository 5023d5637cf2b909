#pragma once

#include "Brindle/menu/MenuEnvironment.hpp"
#include "Brindle/menu/MenuItemRepresentation.hpp"
#include "Brindle/menu/MenuRebuild.hpp"
#include "Brindle/menu/MenuType.hpp"
#include "platform/Menu.hpp"

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace brindle {

/// Owns the status item's menu, and makes it anew from the library, the collections and the preferences whenever that is asked for; never
/// while it is open. Thread: main.
class MenuExtraManager : public MenuDelegate, public ActionHandler, public std::enable_shared_from_this<MenuExtraManager> {
public:
    using CachedMenuItems = std::unordered_map<MenuType, std::shared_ptr<MenuItem>, MenuTypeHash>;

    /// The menu is empty until the first update.
    static std::shared_ptr<MenuExtraManager> make(MenuEnvironment environment);

    const std::shared_ptr<Menu>& menu() const { return _menu; }
    bool isMenuOpen() const { return _isMenuOpen; }
    /// Whether an update waits for the menu to close.
    bool isMenuUpdateRequested() const { return _isMenuUpdateRequested; }
    /// The items of the last rebuild that showed them, some of whose enabled states follow the unread count.
    const CachedMenuItems& cachedMenuItems() const { return _cachedMenuItems; }

    /// Rebuilds the menu and updates the status item in a later turn of the main queue; when the menu is open, after it has closed. The
    /// dock's badge is updated at once.
    void updateMenu();
    /// Icon, title and enabled states.
    void updateStatusItem();

    void menuWillOpen(Menu& menu) override;
    void menuDidClose(Menu& menu) override;

    bool respondsTo(std::string_view action) const override;
    void perform(const Action& action) override;

private:
    explicit MenuExtraManager(MenuEnvironment environment) : _environment(std::move(environment)) {}

    void showAbout();
    void showPreferences(const Action& action);
    void handleQuit();
    void togglePauseFeedUpdates(const Action& action);
    void handleUpdateAll();
    void markAll(std::string_view mark, const Action& action);

    void rebuildIfLast();
    void rebuild();
    void buildMenu(const std::shared_ptr<MenuRebuild>& rebuild);
    void showStatus(std::size_t unreadCount);
    void appendGeneralItem();
    void appendAddItem();
    bool appendGlobalActions();
    void appendCollections(const std::shared_ptr<MenuRebuild>& rebuild);
    void appendCollection(CollectionEntity<FeedItemArticle>& collection, const std::shared_ptr<MenuRebuild>& rebuild);
    std::shared_ptr<MenuItem> appendItem(Menu& menu, std::string_view titleKey, std::string_view action, bool isOwn = false);

    MenuEnvironment _environment;
    std::shared_ptr<Menu> _menu = std::make_shared<Menu>();
    bool _isMenuOpen = false;
    bool _isMenuUpdateRequested = false;
    std::size_t _queuedRebuilds = 0;
    std::shared_ptr<Menu> _generalMenuSubmenu; ///< made once
    CachedMenuItems _cachedMenuItems;
    MenuItemRepresentations _menuItemRepresentations; ///< of the menu as it is
};

} // namespace brindle
