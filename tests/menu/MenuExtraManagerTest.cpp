#include "tests/menu/MenuExtraManagerFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(MenuExtraManagerTest, HangsAnEmptyMenuFromTheStatusItemAtFirst) {
    EXPECT_THAT(statusItem->log, ElementsAre("setHighlights false", "setMenu"));
    EXPECT_EQ(statusItem->menu, menuExtraManager->menu());
    EXPECT_THAT(menu().items(), IsEmpty());
    EXPECT_TRUE(menu().autoenablesItems);
    EXPECT_EQ(menu().delegate.lock(), menuExtraManager);
    EXPECT_FALSE(menuExtraManager->isMenuOpen());
    EXPECT_FALSE(menuExtraManager->isMenuUpdateRequested());
}

TEST_F(MenuExtraManagerTest, HasTheGeneralItemWhereTheDesktopHasNoMenuOfTheApplication) {
    set(preference::showFeedsBrowser, false);
    menuExtraManager = MenuExtraManager::make(
        {manager, collections, defaults, statusItem, dockTile, application, applicationDelegate, previews, statusIconName, false});
    EXPECT_EQ(updated().substr(0, 8), "General\n");
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

TEST_F(MenuExtraManagerTest, IsTheDelegateOfTheTopMenuAlone) {
    set(preference::hideInDock, true);
    const auto group = FeedGroup::make("Group");
    group->add(makeItem("Inner", {"Alpha"}), 0);
    add(group);
    updated();
    for (const auto& path : std::vector<std::vector<std::string>>{{"General"}, {"Add"}, {"Group (1)"}, {"Group (1)", "Inner (1)"}}) {
        itemAt(menu(), path)->submenu()->willOpen({});
        EXPECT_FALSE(menuExtraManager->isMenuOpen()) << path.back();
    }
}

} // namespace
} // namespace brindle
