#pragma once

#include "Brindle/library/SavedArticlesManager.hpp"
#include "Brindle/menu/MenuExtraManager.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"
#include "platform/ResponderChain.hpp"
#include "tests/fakes/ApplicationFake.hpp"
#include "tests/fakes/DockTileFake.hpp"
#include "tests/fakes/StatusItemFake.hpp"
#include "tests/menu/MenuFixture.hpp"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace brindle {

/// A manager whose menu hangs from a status item, with an empty library and none of the collections in the menu.
class MenuExtraManagerTest : public MenuTest {
protected:
    MenuExtraManagerTest() {
        // Shown in the tests that are about them.
        for (const auto key :
            {preference::showTodayCollectionInMenu, preference::showUnreadCollectionInMenu, preference::showSavedArticlesCollectionInMenu})
            set(key, false);
        saved = std::make_shared<SavedArticlesManager>(folder.path(), environment);
        collections = std::make_shared<CollectionEntityManager>(manager, saved, defaults, clock);
        menuExtraManager = MenuExtraManager::make(
            {manager, collections, defaults, statusItem, dockTile, application, applicationDelegate, previews, statusIconName});
    }
    ~MenuExtraManagerTest() override {
        menuExtraManager.reset();
        LocalizedStrings::set({});
    }

    Menu& menu() { return *menuExtraManager->menu(); }
    std::size_t rebuilds() {
        const auto lines = takeLines();
        return static_cast<std::size_t>(std::count(lines.begin(), lines.end(), "Building Menu..."));
    }
    /// Updates the menu and waits for it.
    std::string updated() {
        menuExtraManager->updateMenu();
        RunLoop::main().runPending();
        return outline(menu());
    }
    /// What of the menu lies between the pause item with its separator, and the separator before the tree.
    std::string updatedBlocks() {
        const std::string all = updated();
        const std::string begin = "pauseFeedUpdatesMenuTitle <togglePauseFeedUpdates:>\n--------\n";
        const auto from = all.find(begin) + begin.size();
        return all.substr(from, all.find("--------\nFeed") - from);
    }
    void perform(std::string_view action, std::shared_ptr<ActionSender> sender = nullptr) {
        menuExtraManager->perform({action, std::move(sender)});
    }
    void open() { menu().willOpen(ResponderChain({applicationDelegate})); }

    std::shared_ptr<SavedArticlesManager> saved;
    std::shared_ptr<CollectionEntityManager> collections;
    std::shared_ptr<StatusItemFake> statusItem = std::make_shared<StatusItemFake>();
    std::shared_ptr<DockTileFake> dockTile = std::make_shared<DockTileFake>();
    std::shared_ptr<ApplicationFake> application = std::make_shared<ApplicationFake>();
    std::shared_ptr<MenuExtraManager> menuExtraManager;
};

} // namespace brindle
