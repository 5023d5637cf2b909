#include "Brindle/menu/MenuExtraManager.hpp"
#include "Brindle/library/SavedArticlesManager.hpp"
#include "Brindle/menu/MenuActions.hpp"
#include "Brindle/shell/Preferences.hpp"
#include "foundation/LocalizedStrings.hpp"
#include "foundation/RunLoop.hpp"
#include "platform/ResponderChain.hpp"
#include "tests/fakes/ApplicationFake.hpp"
#include "tests/fakes/DockTileFake.hpp"
#include "tests/fakes/StatusItemFake.hpp"
#include "tests/menu/MenuFixture.hpp"

#include <algorithm>
#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

TEST_F(MenuExtraManagerTest, HangsAnEmptyMenuFromTheStatusItemAtFirst) {
    EXPECT_THAT(statusItem->log, ElementsAre("setHighlights false", "setMenu"));
    EXPECT_EQ(statusItem->menu, menuExtraManager->menu());
    EXPECT_THAT(menu().items(), IsEmpty());
    EXPECT_TRUE(menu().autoenablesItems);
    EXPECT_EQ(menu().delegate.lock(), menuExtraManager);
    EXPECT_FALSE(menuExtraManager->isMenuOpen());
    EXPECT_FALSE(menuExtraManager->isMenuUpdateRequested());
}

TEST_F(MenuExtraManagerTest, BuildsTheWholeMenuInOrder) {
    set(preference::hideInDock, true);
    set(preference::showMarkAllUnread, true);
    for (const auto key :
        {preference::showTodayCollectionInMenu, preference::showUnreadCollectionInMenu, preference::showSavedArticlesCollectionInMenu})
        set(key, true);
    const auto group = FeedGroup::make("Group");
    group->add(makeItem("Inner", {"Gamma"}), 0);
    group->add(FeedSeparator::make(), 1);
    group->add(FeedGroup::make("Empty"), 2);
    const auto feed = makeItem("Feed", {"Alpha", "Beta"});
    markRead(*feed, 1);
    add(feed);
    add(FeedSeparator::make());
    add(group);
    saved->savedArticles.push_back(feed->articles()[1]);
    collections->refreshCollections();
    EXPECT_EQ(updated(), R"(General
  aboutMenuTitle <showAbout:>
  preferencesMenuTitle <showPreferences:>
  --------
  quitMenuTitle <handleQuit:>
--------
browserMenuTitle <showFeedsBrowser:>
--------
Add
  Feed <newFeed:>
  Group <newGroup:>
--------
pauseFeedUpdatesMenuTitle <togglePauseFeedUpdates:>
--------
updateAllMenuTitle <handleUpdateAll:>
--------
markAllReadMenuTitle <markArticlesAsRead:>
markAllUnreadMenuTitle (disabled) <markArticlesAsUnread:>
openAllUnreadMenuTitle <openAllUnreadArticles:>
--------
Today (3)
  [x] Alpha <showArticle:>
  Beta <showArticle:>
  [x] Gamma <showArticle:>
Unread Articles (2)
  [x] Alpha <showArticle:>
  [x] Gamma <showArticle:>
Saved Articles (1)
  Beta <showArticle:>
--------
Feed (1) <openFeed:>
  markAllReadMenuTitle <markArticlesAsRead:>
  markAllUnreadMenuTitle <markArticlesAsUnread:>
  openAllUnreadMenuTitle <openAllUnreadArticles:>
  --------
  [x] Alpha <showArticle:>
  Beta <showArticle:>
--------
Group (1) <openFeed:>
  markAllReadMenuTitle <markArticlesAsRead:>
  markAllUnreadMenuTitle <markArticlesAsUnread:>
  openAllUnreadMenuTitle <openAllUnreadArticles:>
  --------
  Inner (1) <openFeed:>
    markAllReadMenuTitle <markArticlesAsRead:>
    markAllUnreadMenuTitle <markArticlesAsUnread:>
    openAllUnreadMenuTitle <openAllUnreadArticles:>
    --------
    [x] Gamma <showArticle:>
  --------
  Empty <openFeed:>
    noFeedsMenuItem
)");
    EXPECT_EQ(rebuilds(), 1U);
}

TEST_F(MenuExtraManagerTest, ShowsNoMoreThanANoteForAnEmptyLibrary) {
    EXPECT_EQ(updated(), R"(browserMenuTitle <showFeedsBrowser:>
--------
Add
  Feed <newFeed:>
  Group <newGroup:>
--------
No feeds... (disabled)
)");
    set(preference::showFeedsBrowser, false);
    EXPECT_EQ(updated(), "Add\n  Feed <newFeed:>\n  Group <newGroup:>\n--------\nNo feeds... (disabled)\n");
}

TEST_F(MenuExtraManagerTest, MakesTheGeneralSubmenuOnceAndShowsItWithoutADockIconOnly) {
    EXPECT_EQ(updated().find("General"), std::string::npos);
    set(preference::hideInDock, true);
    updated();
    const auto first = itemAt(menu(), {"General"});
    updated();
    const auto second = itemAt(menu(), {"General"});
    EXPECT_NE(first, second);
    EXPECT_EQ(first->submenu(), second->submenu());
}

TEST_F(MenuExtraManagerTest, TakesItsOwnActionsItselfAndLeavesTheOthersToTheChain) {
    set(preference::hideInDock, true);
    add(makeItem("Feed", {"Alpha"}));
    updated();
    for (const auto& path : std::vector<std::vector<std::string>>{
             {"General", "aboutMenuTitle"}, {"General", "quitMenuTitle"}, {"pauseFeedUpdatesMenuTitle"}, {"updateAllMenuTitle"}})
        EXPECT_EQ(itemAt(menu(), path)->target(), menuExtraManager) << path.back();
    for (const auto& path :
        std::vector<std::vector<std::string>>{{"General", "preferencesMenuTitle"}, {"browserMenuTitle"}, {"Add", "Feed"}, {"Add", "Group"},
            {"markAllReadMenuTitle"}, {"openAllUnreadMenuTitle"}, {"Feed (1)"}, {"Feed (1)", "markAllReadMenuTitle"}})
        EXPECT_FALSE(itemAt(menu(), path)->hasTarget()) << path.back();
    EXPECT_EQ(itemAt(menu(), {"Feed (1)", "Alpha"})->target(), applicationDelegate);
}

TEST_F(MenuExtraManagerTest, ShowsEachGlobalActionUnderItsPreference) {
    add(makeItem("Feed", {"Alpha"}));
    const std::vector<std::pair<std::string_view, std::string>> actions = {
        {preference::showUpdateAll, "updateAllMenuTitle <handleUpdateAll:>\n--------\n"},
        {preference::showMarkAllRead, "markAllReadMenuTitle <markArticlesAsRead:>\n"},
        {preference::showMarkAllUnread, "markAllUnreadMenuTitle (disabled) <markArticlesAsUnread:>\n"},
        {preference::showOpenAllUnread, "openAllUnreadMenuTitle <openAllUnreadArticles:>\n"}};
    for (const auto& [key, text] : actions)
        set(key, false);
    EXPECT_EQ(updatedBlocks(), "") << "no separator for an empty block";
    for (const auto& [key, text] : actions) {
        set(key, true);
        EXPECT_EQ(updatedBlocks(), text + "--------\n");
        set(key, false);
    }
    for (const auto& [key, text] : actions)
        set(key, true);
    EXPECT_EQ(updatedBlocks(), actions[0].second + actions[1].second + actions[2].second + actions[3].second + "--------\n");
}

TEST_F(MenuExtraManagerTest, LetsTheGlobalActionsStandForTheWholeLibrary) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    EXPECT_EQ(itemAt(menu(), {"markAllReadMenuTitle"})->representedObject(), nullptr);
}

TEST_F(MenuExtraManagerTest, ShowsACollectionUnderItsPreference) {
    const auto feed = makeItem("Feed", {"Alpha"});
    add(feed);
    saved->savedArticles = feed->articles();
    collections->todayCollectionEntity->refresh();
    collections->unreadArticlesCollectionEntity->refresh();
    collections->savedArticlesCollectionEntity->refresh();
    set(preference::showUpdateAll, false);
    set(preference::showMarkAllRead, false);
    set(preference::showOpenAllUnread, false);
    EXPECT_EQ(updatedBlocks(), "");
    const std::string article = "  [x] Alpha <showArticle:>\n";
    for (const auto& [key, title] : {std::pair(preference::showTodayCollectionInMenu, "Today (1)\n"),
             std::pair(preference::showUnreadCollectionInMenu, "Unread Articles (1)\n"),
             std::pair(preference::showSavedArticlesCollectionInMenu, "Saved Articles (1)\n")}) {
        set(key, true);
        EXPECT_EQ(updatedBlocks(), title + article);
        set(key, false);
    }
}

TEST_F(MenuExtraManagerTest, ShowsACollectionWithASmartFolder) {
    add(makeItem("Feed", {"Alpha"}));
    set(preference::showUnreadCollectionInMenu, true);
    collections->refreshCollections();
    updated();
    EXPECT_EQ(itemAt(menu(), {"Unread Articles (1)"})->image(), Image::named("NSImageNameFolderSmart").resized({16, 16}));
}

TEST_F(MenuExtraManagerTest, JudgesACollectionByItsListBeforeTheRefresh) {
    set(preference::showUnreadCollectionInMenu, true);
    const auto feed = makeItem("Feed", {"Alpha", "Beta"});
    add(feed);
    EXPECT_EQ(itemAt((updated(), menu()), {"Unread Articles (2)"}), nullptr) << "its list is still empty";
    collections->refreshCollections();
    markRead(*feed, 0);
    EXPECT_NE(itemAt((updated(), menu()), {"Unread Articles (1)"}), nullptr) << "it is refreshed by the rebuild";
    markRead(*feed, 1);
    updated();
    EXPECT_NE(itemAt(menu(), {"Unread Articles (0)"}), nullptr);
    EXPECT_EQ(itemAt((updated(), menu()), {"Unread Articles (0)"}), nullptr);
}

TEST_F(MenuExtraManagerTest, RebuildsOnceWhenTheMenuClosesHoweverManyChangesCame) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    const std::string before = outline(menu());
    takeLines();
    open();
    add(makeItem("Another", {"Beta"}));
    menuExtraManager->updateMenu();
    menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_TRUE(menuExtraManager->isMenuUpdateRequested());
    EXPECT_NE(itemAt(menu(), {"Feed (1)"}), nullptr);
    EXPECT_EQ(itemAt(menu(), {"Another (1)"}), nullptr);
    EXPECT_EQ(rebuilds(), 0U);
    menu().didClose();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 1U);
    EXPECT_NE(itemAt(menu(), {"Another (1)"}), nullptr);
    EXPECT_FALSE(menuExtraManager->isMenuUpdateRequested());
}

TEST_F(MenuExtraManagerTest, DoesNothingWhenAMenuClosesThatNobodyAskedToUpdate) {
    open();
    menu().didClose();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 0U);
}

TEST_F(MenuExtraManagerTest, RebuildsForEachRequestWhileTheMenuIsClosed) {
    menuExtraManager->updateMenu();
    menuExtraManager->updateMenu();
    EXPECT_EQ(rebuilds(), 0U) << "not within the request";
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 2U);
}

TEST_F(MenuExtraManagerTest, DoesNotHoldBackARebuildThatWasQueuedBeforeTheMenuOpened) {
    menuExtraManager->updateMenu();
    open();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 1U);
}

TEST_F(MenuExtraManagerTest, UpdatesTheBadgeAtOnceAlsoWhileTheMenuIsOpen) {
    const auto feed = makeItem("Feed", {"Alpha", "Beta"});
    add(feed);
    menuExtraManager->updateMenu();
    EXPECT_THAT(dockTile->labels, ElementsAre("2"));
    EXPECT_EQ(statusItem->title, "") << "the status item comes with the rebuild";
    RunLoop::main().runPending();
    EXPECT_EQ(statusItem->title, "2");
    open();
    markRead(*feed, 0);
    menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_EQ(dockTile->labels.back(), "1");
    EXPECT_EQ(statusItem->title, "2");
    EXPECT_EQ(dockTile->labels.size(), 2U);
}

TEST_F(MenuExtraManagerTest, ShowsAnEmptyBadgeForNothingUnreadAndNoneWhenUnwanted) {
    menuExtraManager->updateMenu();
    EXPECT_EQ(dockTile->labels.back(), "");
    add(makeItem("Feed", {"Alpha"}));
    set(preference::showBadgeInDock, false);
    menuExtraManager->updateMenu();
    EXPECT_EQ(dockTile->labels.back(), std::nullopt);
}

TEST_F(MenuExtraManagerTest, ShowsIconAndUnreadCountBesideEachOther) {
    const auto group = FeedGroup::make("Group");
    group->add(makeItem("Inner", {"Beta"}), 0);
    add(makeItem("Feed", {"Alpha"}));
    add(group);
    statusItem->log.clear();
    menuExtraManager->updateStatusItem();
    EXPECT_THAT(statusItem->log, ElementsAre("setImage menu_feed_alt", "setImagePosition 2", "setTitle 2", "setToolTip Brindle (2)"));
    set(preference::showUnreadArticlesInMenu, false);
    menuExtraManager->updateStatusItem();
    EXPECT_EQ(statusItem->title, "");
    EXPECT_EQ(statusItem->toolTip, "Brindle");
}

TEST_F(MenuExtraManagerTest, ShowsNoCountOfNothing) {
    const auto feed = makeItem("Feed", {"Alpha"});
    markRead(*feed, 0);
    add(feed);
    menuExtraManager->updateStatusItem();
    EXPECT_EQ(statusItem->title, "");
    EXPECT_EQ(statusItem->image, Image::named("menu_feed"));
}

TEST_F(MenuExtraManagerTest, CrossesTheIconOutWhileUpdatesArePaused) {
    manager->allowUpdates = false;
    menuExtraManager->updateStatusItem();
    EXPECT_EQ(statusItem->image, Image::named("menu_feed").slashed());
}

TEST_F(MenuExtraManagerTest, EnablesTheGlobalMarksByTheUnreadCount) {
    set(preference::showMarkAllUnread, true);
    const auto feed = makeItem("Feed", {"Alpha"});
    add(feed);
    updated();
    const auto read = itemAt(menu(), {"markAllReadMenuTitle"});
    const auto unread = itemAt(menu(), {"markAllUnreadMenuTitle"});
    EXPECT_TRUE(read->isEnabled());
    EXPECT_FALSE(unread->isEnabled());
    markRead(*feed, 0);
    menuExtraManager->updateStatusItem();
    EXPECT_FALSE(read->isEnabled());
    EXPECT_TRUE(unread->isEnabled());
    EXPECT_TRUE(itemAt(menu(), {"openAllUnreadMenuTitle"})->isEnabled());
}

TEST_F(MenuExtraManagerTest, LetsValidationOverruleItsOwnRules) {
    set(preference::showMarkAllUnread, true);
    add(makeItem("Feed", {"Alpha"}));
    updated();
    open();
    EXPECT_TRUE(itemAt(menu(), {"markAllUnreadMenuTitle"})->isEnabled());
}

TEST_F(MenuExtraManagerTest, RemembersItemsThatAreShownNoMore) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    const auto item = itemAt(menu(), {"markAllReadMenuTitle"});
    set(preference::showMarkAllRead, false);
    updated();
    EXPECT_EQ(menuExtraManager->cachedMenuItems().at({MenuType::Case::markAllRead}), item);
    EXPECT_EQ(menuExtraManager->cachedMenuItems().at({MenuType::Case::openAllUnread}), itemAt(menu(), {"openAllUnreadMenuTitle"}));
    EXPECT_EQ(menuExtraManager->cachedMenuItems().size(), 2U);
}

TEST_F(MenuExtraManagerTest, NamesWhatTheNextClickOnThePauseItemDoes) {
    const auto feed = makeItem("Feed", {"Alpha"});
    add(feed);
    manager->applyUpdateState(manager->feeds);
    updated();
    const auto item = itemAt(menu(), {"pauseFeedUpdatesMenuTitle"});
    perform(actions::togglePauseFeedUpdates, item);
    EXPECT_EQ(item->title(), "unpauseFeedUpdatesMenuTitle");
    EXPECT_FALSE(manager->allowUpdates);
    EXPECT_FALSE(feed->hasTimer());
    EXPECT_TRUE(statusItem->image->isSlashed());
    perform(actions::togglePauseFeedUpdates, item);
    EXPECT_EQ(item->title(), "pauseFeedUpdatesMenuTitle");
    EXPECT_TRUE(manager->allowUpdates);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_FALSE(statusItem->image->isSlashed());
}

TEST_F(MenuExtraManagerTest, PutsThePauseWordingBackWithARebuildWhilePaused) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    perform(actions::togglePauseFeedUpdates, itemAt(menu(), {"pauseFeedUpdatesMenuTitle"}));
    updated();
    EXPECT_NE(itemAt(menu(), {"pauseFeedUpdatesMenuTitle"}), nullptr);
    EXPECT_TRUE(statusItem->image->isSlashed());
}

TEST_F(MenuExtraManagerTest, ShowsTheAboutPanelInFront) {
    perform(actions::showAbout);
    EXPECT_THAT(application->log, ElementsAre("activate", "orderFrontStandardAboutPanel"));
}

TEST_F(MenuExtraManagerTest, HandsThePreferencesToTheDelegate) {
    perform(actions::showPreferences);
    EXPECT_THAT(application->log, ElementsAre("activate"));
    EXPECT_THAT(applicationDelegate->log, ElementsAre("showPreferences:"));
}

TEST_F(MenuExtraManagerTest, SavesBeforeItQuits) {
    add(makeItem("Feed", {"Alpha"}));
    perform(actions::handleQuit);
    EXPECT_THAT(application->log, ElementsAre("terminate"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Feeds.brindle"));
}

TEST_F(MenuExtraManagerTest, EndsAPauseWhenAllAreUpdatedAndSaves) {
    const auto feed = makeItem("Feed", {"Alpha"});
    add(feed);
    manager->allowUpdates = false;
    perform(actions::handleUpdateAll);
    EXPECT_TRUE(manager->allowUpdates);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_TRUE(feed->session().isQueued()) << "a fetch was asked for at once";
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Feeds.brindle"));
}

TEST_F(MenuExtraManagerTest, MarksAllThroughTheDelegateThenRebuildsAndSaves) {
    add(makeItem("Feed", {"Alpha"}));
    const auto sender = std::make_shared<MenuItem>();
    perform(actions::handleMarkAllRead, sender);
    perform(actions::handleMarkAllUnread, sender);
    EXPECT_THAT(applicationDelegate->log, ElementsAre("markArticlesAsRead:", "markArticlesAsUnread:"));
    EXPECT_THAT(applicationDelegate->senders, ElementsAre(sender, sender));
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 2U);
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Feeds.brindle"));
}

TEST_F(MenuExtraManagerTest, RespondsToItsOwnActionsAlone) {
    EXPECT_TRUE(menuExtraManager->respondsTo(actions::handleQuit));
    EXPECT_FALSE(menuExtraManager->respondsTo(actions::openFeed));
}

TEST_F(MenuExtraManagerTest, SpeaksTheLanguageOfTheUser) {
    LocalizedStrings::set({{"browserMenuTitle", "Show Feeds Browser"}, {"No feeds...", "Keine Feeds..."}});
    const std::string text = updated();
    EXPECT_TRUE(text.starts_with("Show Feeds Browser ")) << text;
    EXPECT_TRUE(text.ends_with("Keine Feeds... (disabled)\n")) << text;
}

TEST_F(MenuExtraManagerTest, TakesGroupsNestedDeeperThanAnyStack) {
    constexpr int depth = 100'000;
    std::shared_ptr<FeedGroup> top = FeedGroup::make("Deep");
    top->add(makeItem("Feed", {"Alpha"}), 0);
    for (int i = 1; i < depth; ++i) {
        const auto group = FeedGroup::make("Deep");
        group->add(top, 0);
        top = group;
    }
    add(top);
    menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_EQ(menu().items().back()->title(), "Deep (1)");
    manager->feeds.clear();
    top.reset();
    menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_EQ(menu().items().back()->title(), "No feeds...");
}

} // namespace
} // namespace brindle
