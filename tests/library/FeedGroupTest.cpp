#include "Brindle/library/FeedGroup.hpp"

#include "Brindle/library/FeedSeparator.hpp"
#include "Brindle/library/FeedTree.hpp"
#include "foundation/Console.hpp"
#include "tests/fakes/DecoderFake.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedGroupTest : public LibraryTest {};

TEST_F(FeedGroupTest, AppendsAtAnIndexOutsideItsRangeAndAtItsCount) {
    const auto group = FeedGroup::make("Group");
    const auto first = FeedGroup::make("1"), second = FeedGroup::make("2"), third = FeedGroup::make("3"), fourth = FeedGroup::make("4");
    group->add(first, 0);
    group->add(second, -1);
    group->add(third, 3);
    group->add(fourth, 3);
    EXPECT_THAT(group->feeds(), ElementsAre(first, second, third, fourth));
}

TEST_F(FeedGroupTest, InsertsAtAnIndexAndBecomesTheParent) {
    const auto group = FeedGroup::make("Group");
    const auto first = FeedSeparator::make(), second = FeedSeparator::make();
    group->add(first, 0);
    group->add(second, 0);
    EXPECT_THAT(group->feeds(), ElementsAre(second, first));
    EXPECT_EQ(first->parent.lock(), group);
    EXPECT_EQ(second->parent.lock(), group);
}

TEST_F(FeedGroupTest, LeavesAnAddedEntryInItsEarlierParent) {
    const auto earlier = FeedGroup::make("Earlier"), later = FeedGroup::make("Later");
    const auto feed = FeedSeparator::make();
    earlier->add(feed, 0);
    later->add(feed, 0);
    EXPECT_THAT(earlier->feeds(), ElementsAre(feed));
    EXPECT_EQ(feed->parent.lock(), later);
}

TEST_F(FeedGroupTest, RemovesTheFirstMatchAndEmptiesItsParent) {
    const auto group = FeedGroup::make("Group");
    const auto feed = FeedSeparator::make(), other = FeedSeparator::make();
    for (const auto& added : {feed, other, feed})
        group->add(added, -1);
    group->remove(feed);
    EXPECT_THAT(group->feeds(), ElementsAre(other, feed));
    EXPECT_EQ(feed->parent.lock(), nullptr);
}

TEST_F(FeedGroupTest, LeavesEverythingAsItWasWhenTheRemovedEntryIsNoDirectChild) {
    const auto group = FeedGroup::make("Group"), inner = FeedGroup::make("Inner");
    const auto feed = FeedSeparator::make();
    group->add(inner, 0);
    inner->add(feed, 0);
    group->remove(feed);
    EXPECT_THAT(group->feeds(), ElementsAre(inner));
    EXPECT_THAT(inner->feeds(), ElementsAre(feed));
    EXPECT_EQ(feed->parent.lock(), inner);
}

TEST_F(FeedGroupTest, RemovesAllAndEmptiesTheirParents) {
    const auto group = FeedGroup::make("Group");
    const auto first = FeedSeparator::make(), second = FeedSeparator::make();
    group->add(first, 0);
    group->add(second, 0);
    group->removeAll();
    EXPECT_THAT(group->feeds(), IsEmpty());
    EXPECT_EQ(first->parent.lock(), nullptr);
    EXPECT_EQ(second->parent.lock(), nullptr);
}

TEST_F(FeedGroupTest, HasItsKindAndASeparatorHasNoName) {
    EXPECT_EQ(FeedGroup::make("Group")->kind, Feed::Kind::group);
    EXPECT_EQ(static_cast<int>(Feed::Kind::item), 0);
    EXPECT_EQ(static_cast<int>(Feed::Kind::group), 1);
    EXPECT_EQ(static_cast<int>(Feed::Kind::separator), 2);
    EXPECT_EQ(FeedSeparator::make()->kind, Feed::Kind::separator);
    EXPECT_EQ(FeedSeparator::make()->name(), "");
}

TEST_F(FeedGroupTest, WritesItsNameAndItsChildrenInOrder) {
    const auto group = FeedGroup::make("Group");
    const auto first = FeedSeparator::make();
    const auto second = FeedGroup::make("Inner");
    group->add(first, 0);
    group->add(second, 1);
    CoderFake coder;
    group->encode(coder);
    EXPECT_THAT(coder.keys, ElementsAre("groupName", "groupList"));
    EXPECT_EQ(coder.fields.texts["groupName"], "Group");
    EXPECT_THAT(coder.fields.arrays["groupList"], ElementsAre(first, second));
    EXPECT_THAT(group->archiveClasses(), ElementsAre("FeedGroup", "Feed"));
}

TEST_F(FeedGroupTest, DecodesNothingAsANamelessEmptyGroup) {
    const auto group = FeedGroup::decode(DecoderFake());
    EXPECT_EQ(group->name(), "");
    EXPECT_THAT(group->feeds(), IsEmpty());
}

TEST_F(FeedGroupTest, DecodesTheFeedsOfItsListAndSkipsEverythingElse) {
    const auto first = FeedSeparator::make(), second = FeedSeparator::make();
    DecoderFake decoder;
    decoder.texts["groupName"] = "Group";
    decoder.arrays["groupList"] = {
        first, std::make_shared<FeedItemArticle>(std::make_shared<SyndicatedEntry>(Date()), std::weak_ptr<FeedItem>()), second};
    const auto group = FeedGroup::decode(decoder);
    EXPECT_EQ(group->name(), "Group");
    EXPECT_THAT(group->feeds(), ElementsAre(first, second));
    EXPECT_EQ(first->parent.lock(), group);
}

TEST_F(FeedGroupTest, ASeparatorWritesNothing) {
    CoderFake coder;
    const auto separator = FeedSeparator::make();
    separator->encode(coder);
    EXPECT_THAT(coder.keys, IsEmpty());
    EXPECT_THAT(separator->archiveClasses(), ElementsAre("FeedSeparator", "Feed"));
}

TEST_F(FeedGroupTest, TellsOfItsEndBeforeThatOfItsChildren) {
    auto group = FeedGroup::make("1");
    const auto second = [&] {
        auto inner = FeedGroup::make("2");
        inner->add(FeedGroup::make("3"), 0);
        inner->add(makeItem("4"), 1);
        return inner;
    };
    group->add(second(), 0);
    group->add(FeedGroup::make("5"), 1);
    group.reset();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup 1", "Removing FeedGroup 2", "Removing FeedGroup 3", "Removing FeedItem: 4",
                                 "Removing FeedGroup 5"));
}

TEST_F(FeedGroupTest, LeavesAliveWhatOthersHold) {
    auto group = FeedGroup::make("Group");
    const auto held = FeedGroup::make("Held"), inner = FeedGroup::make("Inner");
    held->add(inner, 0);
    group->add(held, 0);
    group.reset();
    EXPECT_THAT(takeLines(), ElementsAre("Removing FeedGroup Group"));
    EXPECT_THAT(held->feeds(), ElementsAre(inner));
    EXPECT_EQ(held->parent.lock(), nullptr);
}

TEST_F(FeedGroupTest, IsWalkedAGroupBeforeItsChildrenInOrder) {
    const auto group = FeedGroup::make("1"), inner = FeedGroup::make("2");
    group->add(inner, 0);
    inner->add(FeedGroup::make("3"), 0);
    group->add(FeedGroup::make("4"), 1);
    std::string order;
    forEachFeed({group, FeedGroup::make("5")}, [&](const std::shared_ptr<Feed>& feed) { order += feed->name(); });
    EXPECT_EQ(order, "12345");
}

/// What the tree's depth costs is heap: everything is done here on half a megabyte of stack.
TEST_F(FeedGroupTest, TakesNoStackForDepth) {
    constexpr int depth = 100'000;
    if (!isChild()) {
        EXPECT_TRUE(runThisTestInChild(512 * 1024));
        return;
    }
    std::size_t groupsRemoved = 0;
    Console::redirect([&](std::string_view line) { groupsRemoved += line == "Removing FeedGroup Deep" ? 1 : 0; });
    {
        std::shared_ptr<Feed> top = makeItem("Bottom");
        for (int i = 0; i < depth; ++i) {
            const auto group = FeedGroup::make("Deep");
            group->add(top, 0);
            top = group;
        }
        const auto manager = makeManager();
        manager->addFeed(top, 0);
        manager->save();
    }
    EXPECT_EQ(groupsRemoved, std::size_t{depth});
    const auto manager = loadedManager();
    ASSERT_EQ(FeedsManager::items(manager->feeds).size(), 1U);
    const auto item = FeedsManager::items(manager->feeds).front();
    EXPECT_EQ(item->delegate.lock(), delegate);
    EXPECT_EQ(manager->feedItem(url("http://127.0.0.1/feed.xml")), item);
    parse(*item, rss({{"Article", "http://a.invalid/"}}));
    EXPECT_EQ(manager->articles(ArticleStateFilter::unread).size(), 1U);
    EXPECT_EQ(manager->markArticles(ArticleStateFilter::read), 1U);
    manager->allowUpdates = false;
    manager->applyUpdateState(manager->feeds);
    manager->clearImages(manager->feeds);
    groupsRemoved = 0;
    manager->feeds.clear();
    EXPECT_EQ(groupsRemoved, std::size_t{depth});
    Console::redirect({});
    removeFolder();
    endChild();
}

} // namespace
} // namespace brindle
