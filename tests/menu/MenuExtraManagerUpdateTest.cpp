#include "tests/menu/MenuExtraManagerFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;

class MenuExtraManagerUpdateTest : public MenuExtraManagerTest {};

TEST_F(MenuExtraManagerUpdateTest, RebuildsOnceWhenTheMenuClosesHoweverManyChangesCame) {
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

TEST_F(MenuExtraManagerUpdateTest, DoesNothingWhenAMenuClosesThatNobodyAskedToUpdate) {
    open();
    menu().didClose();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 0U);
}

TEST_F(MenuExtraManagerUpdateTest, PrintsALineForEachRequestWhileTheMenuIsClosed) {
    menuExtraManager->updateMenu();
    menuExtraManager->updateMenu();
    EXPECT_EQ(rebuilds(), 0U) << "not within the request";
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 2U);
}

TEST_F(MenuExtraManagerUpdateTest, BuildsTheMenuOnceForRequestsThatStandInLine) {
    statusItem->log.clear();
    for (int i = 0; i < 3; ++i)
        menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_EQ(std::count(statusItem->log.begin(), statusItem->log.end(), "setImage menu_feed"), 1);
    menuExtraManager->updateMenu();
    RunLoop::main().runPending();
    EXPECT_EQ(std::count(statusItem->log.begin(), statusItem->log.end(), "setImage menu_feed"), 2);
}

TEST_F(MenuExtraManagerUpdateTest, DoesNotHoldBackARebuildThatWasQueuedBeforeTheMenuOpened) {
    menuExtraManager->updateMenu();
    open();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 1U);
}

TEST_F(MenuExtraManagerUpdateTest, UpdatesTheBadgeAtOnceAlsoWhileTheMenuIsOpen) {
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

TEST_F(MenuExtraManagerUpdateTest, ShowsAnEmptyBadgeForNothingUnreadAndNoneWhenUnwanted) {
    menuExtraManager->updateMenu();
    EXPECT_EQ(dockTile->labels.back(), "");
    add(makeItem("Feed", {"Alpha"}));
    set(preference::showBadgeInDock, false);
    menuExtraManager->updateMenu();
    EXPECT_EQ(dockTile->labels.back(), std::nullopt);
}

TEST_F(MenuExtraManagerUpdateTest, ShowsIconAndUnreadCountBesideEachOther) {
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

TEST_F(MenuExtraManagerUpdateTest, ShowsNoCountOfNothing) {
    const auto feed = makeItem("Feed", {"Alpha"});
    markRead(*feed, 0);
    add(feed);
    menuExtraManager->updateStatusItem();
    EXPECT_EQ(statusItem->title, "");
    EXPECT_EQ(statusItem->image, Image::named("menu_feed"));
}

TEST_F(MenuExtraManagerUpdateTest, CrossesTheIconOutWhileUpdatesArePaused) {
    manager->allowUpdates = false;
    menuExtraManager->updateStatusItem();
    EXPECT_EQ(statusItem->image, Image::named("menu_feed").slashed());
}

TEST_F(MenuExtraManagerUpdateTest, EnablesTheGlobalMarksByTheUnreadCount) {
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

TEST_F(MenuExtraManagerUpdateTest, LetsValidationOverruleItsOwnRules) {
    set(preference::showMarkAllUnread, true);
    add(makeItem("Feed", {"Alpha"}));
    updated();
    open();
    EXPECT_TRUE(itemAt(menu(), {"markAllUnreadMenuTitle"})->isEnabled());
}

TEST_F(MenuExtraManagerUpdateTest, RemembersItemsThatAreShownNoMore) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    const auto item = itemAt(menu(), {"markAllReadMenuTitle"});
    set(preference::showMarkAllRead, false);
    updated();
    EXPECT_EQ(menuExtraManager->cachedMenuItems().at({MenuType::Case::markAllRead}), item);
    EXPECT_EQ(menuExtraManager->cachedMenuItems().at({MenuType::Case::openAllUnread}), itemAt(menu(), {"openAllUnreadMenuTitle"}));
    EXPECT_EQ(menuExtraManager->cachedMenuItems().size(), 2U);
}

TEST_F(MenuExtraManagerUpdateTest, ForgetsARequestThatCameBeforeAQueuedRebuildRan) {
    menuExtraManager->updateMenu();
    open();
    menuExtraManager->updateMenu();
    EXPECT_TRUE(menuExtraManager->isMenuUpdateRequested());
    RunLoop::main().runPending();
    EXPECT_FALSE(menuExtraManager->isMenuUpdateRequested());
    menu().didClose();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 1U);
}

} // namespace
} // namespace brindle
