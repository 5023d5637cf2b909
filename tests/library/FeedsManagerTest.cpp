#include "Brindle/library/FeedsManager.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedSeparator.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/library/LibraryFixture.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FeedsManagerTest : public LibraryTest {
protected:
    FeedsManagerTest() : manager(makeManager()) {}

    std::shared_ptr<FeedItem> add(const std::string& name, const std::string& address, const std::shared_ptr<FeedGroup>& group = nullptr) {
        auto item = makeItem(name, address);
        manager->addFeed(item, group ? -1 : std::ssize(manager->feeds), group);
        return item;
    }

    std::shared_ptr<FeedGroup> addGroup(const std::string& name, const std::shared_ptr<FeedGroup>& group = nullptr) {
        auto made = FeedGroup::make(name);
        manager->addFeed(made, group ? -1 : std::ssize(manager->feeds), group);
        return made;
    }

    std::unique_ptr<FeedsManager> manager;
};

TEST_F(FeedsManagerTest, StartsEmptyWithUpdatesAllowed) {
    EXPECT_THAT(manager->feeds, IsEmpty());
    EXPECT_TRUE(manager->allowUpdates);
}

TEST_F(FeedsManagerTest, AddsAtAnIndexOfTheTopLevelAndAttachesItsDelegate) {
    const auto first = makeItem(), second = makeItem();
    first->delegate.reset();
    manager->addFeed(first, 0);
    manager->addFeed(second, 0);
    EXPECT_THAT(manager->feeds, ElementsAre(second, first));
    EXPECT_EQ(first->delegate.lock(), delegate);
    EXPECT_EQ(first->parent.lock(), nullptr);
    EXPECT_FALSE(first->hasTimer());
}

TEST_F(FeedsManagerTest, EndsTheProcessForAnIndexOutsideTheTopLevel) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH((removeFolder(), manager->addFeed(FeedSeparator::make(), -1)), "Fatal error: ");
    EXPECT_DEATH((removeFolder(), manager->addFeed(FeedSeparator::make(), 1)), "Fatal error: ");
}

TEST_F(FeedsManagerTest, AddsToAGroupAtAnyIndex) {
    const auto group = addGroup("Group");
    const auto first = makeItem(), second = makeItem();
    manager->addFeed(first, 77, group);
    manager->addFeed(second, 0, group);
    EXPECT_THAT(group->feeds(), ElementsAre(second, first));
    EXPECT_THAT(manager->feeds, ElementsAre(group));
    EXPECT_EQ(first->delegate.lock(), delegate);
}

TEST_F(FeedsManagerTest, RemovesAFeedWithItsTimerAndDelegate) {
    const auto item = add("1", "http://a.invalid/1");
    item->scheduleUpdates(false);
    manager->removeFeed(item);
    EXPECT_THAT(manager->feeds, IsEmpty());
    EXPECT_FALSE(item->hasTimer());
    EXPECT_EQ(item->delegate.lock(), nullptr);
}

TEST_F(FeedsManagerTest, RemovesAFeedFromItsGroup) {
    const auto group = addGroup("Group");
    const auto item = add("1", "http://a.invalid/1", group);
    manager->removeFeed(item, group);
    EXPECT_THAT(group->feeds(), IsEmpty());
    EXPECT_EQ(item->parent.lock(), nullptr);
    EXPECT_EQ(item->delegate.lock(), nullptr);
}

TEST_F(FeedsManagerTest, LeavesTheListAloneWhenTheRemovedFeedIsNotInIt) {
    const auto group = addGroup("Group");
    const auto item = add("1", "http://a.invalid/1", group);
    manager->removeFeed(item);
    EXPECT_THAT(manager->feeds, ElementsAre(group));
    EXPECT_THAT(group->feeds(), ElementsAre(item));
}

TEST_F(FeedsManagerTest, LeavesTheFeedsOfARemovedGroupRunning) {
    const auto group = addGroup("Group");
    const auto item = add("1", "http://a.invalid/1", group);
    item->scheduleUpdates(false);
    manager->removeFeed(group);
    EXPECT_TRUE(item->hasTimer());
    EXPECT_EQ(item->delegate.lock(), delegate);
}

TEST_F(FeedsManagerTest, FindsAFeedByItsAddressAsTextInAnyDepth) {
    const auto group = addGroup("Group");
    const auto inner = addGroup("Inner", group);
    const auto item = add("1", "http://a.invalid/1", inner);
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1")), item);
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1"), group), item);
    EXPECT_EQ(manager->feedItem(url("http://A.invalid/1")), nullptr);
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/2")), nullptr);
}

TEST_F(FeedsManagerTest, FindsTheLastOfSeveralMatches) {
    add("1", "http://a.invalid/1");
    const auto last = add("2", "http://a.invalid/1");
    add("3", "http://a.invalid/3");
    manager->addFeed(FeedSeparator::make(), 3);
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1")), last);
}

TEST_F(FeedsManagerTest, LosesAMatchToALaterGroupWithoutOne) {
    const auto item = add("1", "http://a.invalid/1");
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1")), item);
    const auto group = addGroup("Empty");
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1")), nullptr);
    const auto later = add("2", "http://a.invalid/1");
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1")), later);
    EXPECT_EQ(manager->feedItem(url("http://a.invalid/1"), group), nullptr);
}

TEST_F(FeedsManagerTest, GathersArticlesInTheOrderOfTheTree) {
    const auto first = add("1", "http://a.invalid/1");
    const auto group = addGroup("Group");
    const auto inner = addGroup("Inner", group);
    const auto second = add("2", "http://a.invalid/2", inner);
    const auto third = add("3", "http://a.invalid/3", group);
    const auto separator = FeedSeparator::make();
    manager->addFeed(separator, 2);
    parse(*third, rss({{"3a", ""}}));
    parse(*second, rss({{"2a", ""}, {"2b", ""}}));
    parse(*first, rss({{"1a", ""}}));
    second->markArticle(*second->articles()[0], ArticleStateFilter::read);
    EXPECT_THAT(titles(manager->articles(ArticleStateFilter::any)), ElementsAre("1a", "2a", "2b", "3a"));
    EXPECT_THAT(titles(manager->articles(ArticleStateFilter::unread)), ElementsAre("1a", "2b", "3a"));
    EXPECT_THAT(titles(manager->articles(ArticleStateFilter::read)), ElementsAre("2a"));
    EXPECT_THAT(titles(manager->articles(ArticleStateFilter::any, group)), ElementsAre("2a", "2b", "3a"));
    EXPECT_THAT(titles(manager->articles(ArticleStateFilter::unread, second)), ElementsAre("2b"));
    EXPECT_THAT(manager->articles(ArticleStateFilter::any, separator), IsEmpty());
}

TEST_F(FeedsManagerTest, MarksTheArticlesOfASelection) {
    const auto first = add("1", "http://a.invalid/1");
    const auto group = addGroup("Group");
    const auto second = add("2", "http://a.invalid/2", group);
    parse(*first, rss({{"1a", ""}}));
    parse(*second, rss({{"2a", ""}, {"2b", ""}}));
    EXPECT_EQ(manager->markArticles(ArticleStateFilter::any), 0U);
    EXPECT_EQ(manager->markArticles(ArticleStateFilter::read, group), 2U);
    EXPECT_EQ(second->articleStateCache["2a&"], 1);
    EXPECT_EQ(second->articleStateCache["2b&"], 1);
    EXPECT_EQ(first->articleStateCache["1a&"], 0);
    EXPECT_EQ(manager->markArticles(ArticleStateFilter::read), 1U);
    EXPECT_EQ(manager->markArticles(ArticleStateFilter::unread, first), 1U);
    EXPECT_EQ(titles(manager->articles(ArticleStateFilter::unread)), std::vector<std::string>{"1a"});
}

TEST_F(FeedsManagerTest, GivesItsFeedsInTheOrderOfTheTree) {
    const auto first = add("1", "http://a.invalid/1");
    const auto group = addGroup("Group");
    const auto second = add("2", "http://a.invalid/2", group);
    const auto third = add("3", "http://a.invalid/3");
    EXPECT_THAT(FeedsManager::items(manager->feeds), ElementsAre(first, second, third));
}

TEST_F(FeedsManagerTest, AttachesItsDelegateToEveryFeed) {
    const auto group = addGroup("Group");
    const auto item = add("1", "http://a.invalid/1", group);
    item->delegate.reset();
    manager->attachDelegates(manager->feeds);
    EXPECT_EQ(item->delegate.lock(), delegate);
}

TEST_F(FeedsManagerTest, StartsEveryFeedWithAFetchWhileUpdatesAreAllowed) {
    const auto group = addGroup("Group");
    const auto first = add("1", "http://a.invalid/1"), second = add("2", "http://a.invalid/2", group);
    manager->applyUpdateState(manager->feeds);
    for (const auto& item : {first, second}) {
        EXPECT_TRUE(item->hasTimer());
        EXPECT_TRUE(item->session().isQueued());
    }
    EXPECT_EQ(RunLoop::main().nextDeadline(), time->now() + std::chrono::minutes(30));
}

TEST_F(FeedsManagerTest, StartsTheTimersAnewAtEachWalk) {
    add("1", "http://a.invalid/1");
    manager->applyUpdateState(manager->feeds);
    time->advance(std::chrono::minutes(20));
    manager->applyUpdateState(manager->feeds);
    EXPECT_EQ(RunLoop::main().nextDeadline(), time->now() + std::chrono::minutes(30));
}

TEST_F(FeedsManagerTest, StopsEveryTimerWhileUpdatesAreNotAllowed) {
    const auto group = addGroup("Group");
    const auto first = add("1", "http://a.invalid/1"), second = add("2", "http://a.invalid/2", group);
    manager->applyUpdateState(manager->feeds);
    manager->allowUpdates = false;
    EXPECT_TRUE(first->hasTimer());
    manager->applyUpdateState(manager->feeds);
    EXPECT_FALSE(first->hasTimer());
    EXPECT_FALSE(second->hasTimer());
    EXPECT_EQ(RunLoop::main().nextDeadline(), RunLoop::Time::max());
}

TEST_F(FeedsManagerTest, LetsAFeedThatIsScheduledLaterRunInSpiteOfTheSwitch) {
    manager->allowUpdates = false;
    const auto item = add("1", "http://a.invalid/1");
    item->scheduleUpdates(false);
    EXPECT_TRUE(item->hasTimer());
}

TEST_F(FeedsManagerTest, ClearsIconsInMemoryOnly) {
    const auto group = addGroup("Group");
    const auto item = add("1", "http://a.invalid/1", group);
    item->syndicatedSessionDidDiscoverIcon(item->session(), "icon");
    manager->save();
    manager->clearImages(manager->feeds);
    EXPECT_FALSE(item->feedImageData());
    EXPECT_FALSE(item->syndicatedSessionShouldDiscoverIcon());
    manager->save();
    EXPECT_EQ(file("Images/" + item->uuid.uuidString()), "icon");
}

TEST_F(FeedsManagerTest, GivesWhatItWasMadeOf) {
    EXPECT_EQ(manager->supportDirectory(), folder);
    EXPECT_EQ(manager->environment().clock, clock);
    EXPECT_EQ(manager->delegate().lock(), delegate);
}

} // namespace
} // namespace brindle
