#include "Brindle/menu/MenuActions.hpp"
#include "tests/menu/MenuExtraManagerFixture.hpp"

#include <filesystem>
#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;

class MenuExtraManagerActionsTest : public MenuExtraManagerTest {
protected:
    bool isSaved() const { return std::filesystem::exists(folder.path() / "Feeds.brindle"); }
};

TEST_F(MenuExtraManagerActionsTest, NamesWhatTheNextClickOnThePauseItemDoes) {
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

TEST_F(MenuExtraManagerActionsTest, PutsThePauseWordingBackWithARebuildWhilePaused) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    perform(actions::togglePauseFeedUpdates, itemAt(menu(), {"pauseFeedUpdatesMenuTitle"}));
    updated();
    EXPECT_NE(itemAt(menu(), {"pauseFeedUpdatesMenuTitle"}), nullptr);
    EXPECT_TRUE(statusItem->image->isSlashed());
}

TEST_F(MenuExtraManagerActionsTest, ShowsTheAboutPanelInFront) {
    perform(actions::showAbout);
    EXPECT_THAT(application->log, ElementsAre("activate", "orderFrontStandardAboutPanel"));
}

TEST_F(MenuExtraManagerActionsTest, HandsThePreferencesToTheDelegate) {
    perform(actions::showPreferences);
    EXPECT_THAT(application->log, ElementsAre("activate"));
    EXPECT_THAT(applicationDelegate->log, ElementsAre("showPreferences:"));
}

TEST_F(MenuExtraManagerActionsTest, SavesBeforeTheProgramEnds) {
    add(makeItem("Feed", {"Alpha"}));
    bool wasSaved = false;
    application->onTerminate = [&] { wasSaved = isSaved(); };
    perform(actions::handleQuit);
    EXPECT_THAT(application->log, ElementsAre("terminate"));
    EXPECT_TRUE(wasSaved);
}

TEST_F(MenuExtraManagerActionsTest, EndsAPauseWhenAllAreUpdatedAndSaves) {
    const auto feed = makeItem("Feed", {"Alpha"});
    add(feed);
    manager->allowUpdates = false;
    perform(actions::handleUpdateAll);
    EXPECT_TRUE(manager->allowUpdates);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_TRUE(feed->session().isQueued()) << "a fetch was asked for at once";
    EXPECT_TRUE(isSaved());
}

TEST_F(MenuExtraManagerActionsTest, MarksAllThroughTheDelegateThenUpdatesTheMenuAndSaves) {
    add(makeItem("Feed", {"Alpha"}));
    const auto sender = std::make_shared<MenuItem>();
    std::vector<std::string> marks;
    applicationDelegate->onPerform = [&](const Action& action) {
        EXPECT_EQ(action.sender, sender);
        EXPECT_EQ(dockTile->labels.size(), marks.size()) << "the badge is updated with the menu";
        EXPECT_FALSE(isSaved());
        marks.emplace_back(action.name);
    };
    dockTile->onSetBadgeLabel = [&] { EXPECT_FALSE(isSaved()); };
    for (const auto action : {actions::handleMarkAllRead, actions::handleMarkAllUnread}) {
        perform(action, sender);
        EXPECT_EQ(dockTile->labels.size(), marks.size());
        EXPECT_TRUE(isSaved());
        std::filesystem::remove(folder.path() / "Feeds.brindle");
    }
    EXPECT_THAT(marks, ElementsAre("markArticlesAsRead:", "markArticlesAsUnread:"));
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 2U);
}

TEST_F(MenuExtraManagerActionsTest, RespondsToItsOwnActionsAlone) {
    EXPECT_TRUE(menuExtraManager->respondsTo(actions::handleQuit));
    EXPECT_FALSE(menuExtraManager->respondsTo(actions::openFeed));
}

TEST_F(MenuExtraManagerActionsTest, PausesAtOnceWhileTheMenuIsOpenAndWithoutARebuild) {
    add(makeItem("Feed", {"Alpha"}));
    updated();
    open();
    takeLines();
    const auto item = itemAt(menu(), {"pauseFeedUpdatesMenuTitle"});
    perform(actions::togglePauseFeedUpdates, item);
    EXPECT_TRUE(statusItem->image->isSlashed());
    EXPECT_EQ(item->title(), "unpauseFeedUpdatesMenuTitle");
    menu().didClose();
    RunLoop::main().runPending();
    EXPECT_EQ(rebuilds(), 0U);
    EXPECT_EQ(item->menu(), &menu());
}

} // namespace
} // namespace brindle
