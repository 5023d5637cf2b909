#include "Brindle/shell/LibraryHelper.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "tests/fakes/FeedItemDelegateFake.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace brindle {

using ImportMode = LibraryHelper::ImportMode;

class LibraryHelperTest : public ::testing::Test {
protected:
    LibraryHelperTest() {
        Console::redirect([](std::string_view) {});
    }
    ~LibraryHelperTest() override { Console::redirect({}); }

    std::shared_ptr<FeedItem> makeItem(const std::string& name) const {
        return FeedItem::make(name, URL::make("http://a.test/feed").value(), 30, {}, {}, environment);
    }

    /// A feed of the library: with its delegate and a timer.
    std::shared_ptr<FeedItem> libraryItem(const std::string& name, const std::shared_ptr<FeedGroup>& group = nullptr) {
        const auto item = makeItem(name);
        manager.addFeed(item, group ? -1 : std::ssize(manager.feeds), group);
        item->scheduleUpdates(false);
        return item;
    }

    const TemporaryFolder folder;
    const SyndicatedSessionEnvironment environment{std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
    const std::shared_ptr<FeedItemDelegateFake> delegate = std::make_shared<FeedItemDelegateFake>();
    FeedsManager manager{folder.path(), environment, delegate};
};

TEST_F(LibraryHelperTest, AppendsInOrder) {
    const auto old = libraryItem("Old");
    const FeedsManager::Feeds entries = {makeItem("A"), FeedGroup::make("G"), makeItem("B")};
    LibraryHelper::importFeeds(manager, entries, ImportMode::merge);
    EXPECT_EQ(manager.feeds, (FeedsManager::Feeds{old, entries[0], entries[1], entries[2]}));
    EXPECT_TRUE(old->hasTimer());
}

TEST_F(LibraryHelperTest, AttachesTheDelegateToFeedsOfTheTopLevelOnly) {
    const auto top = makeItem("A");
    const auto inner = makeItem("B");
    const auto group = FeedGroup::make("G");
    group->add(inner, 0);
    LibraryHelper::importFeeds(manager, {top, group}, ImportMode::merge);
    EXPECT_EQ(top->delegate.lock(), delegate);
    EXPECT_EQ(inner->delegate.lock(), nullptr);
}

TEST_F(LibraryHelperTest, StartsAndSavesNothing) {
    const auto item = makeItem("A");
    LibraryHelper::importFeeds(manager, {item}, ImportMode::replace);
    EXPECT_FALSE(item->hasTimer());
    EXPECT_FALSE(item->session().isQueued());
    EXPECT_FALSE(FileManager::fileExists(folder / "Feeds.brindle"));
}

TEST_F(LibraryHelperTest, ReplacingPutsFeedsOfTheTopLevelToRest) {
    const auto old = libraryItem("Old");
    const auto item = makeItem("A");
    manager.addFeed(FeedSeparator::make(), 1);
    LibraryHelper::importFeeds(manager, {item}, ImportMode::replace);
    EXPECT_EQ(manager.feeds, FeedsManager::Feeds{item});
    EXPECT_FALSE(old->hasTimer());
    EXPECT_EQ(old->delegate.lock(), nullptr);
}

TEST_F(LibraryHelperTest, ReplacingLeavesFeedsInsideGroupsAsTheyAre) {
    const auto group = FeedGroup::make("G");
    manager.addFeed(group, 0);
    const auto inner = libraryItem("Inner", group);
    LibraryHelper::importFeeds(manager, {}, ImportMode::replace);
    EXPECT_TRUE(manager.feeds.empty());
    EXPECT_EQ(group->feeds(), FeedsManager::Feeds{inner});
    EXPECT_TRUE(inner->hasTimer());
    EXPECT_EQ(inner->delegate.lock(), delegate);
    inner->invalidateTimer();
}

TEST_F(LibraryHelperTest, ReplacingByNothingEmptiesTheTopLevel) {
    libraryItem("Old");
    LibraryHelper::importFeeds(manager, {}, ImportMode::replace);
    EXPECT_TRUE(manager.feeds.empty());
}

} // namespace brindle
