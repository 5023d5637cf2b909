#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OpenFeedURLTest : public AppDelegateTest {};

TEST_F(OpenFeedURLTest, AddsTheFeedOfALink) {
    delegate->handleAppleEvent("feed://a.test/feed");
    EXPECT_THAT(takeCalls(), ElementsAre("badge ", "didAddFeed "));
    const auto items = FeedsManager::items(feedsManager().feeds);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0]->url().absoluteString(), "http://a.test/feed");
    EXPECT_EQ(items[0]->updateRate, 30);
    EXPECT_TRUE(items[0]->hasTimer());
    EXPECT_TRUE(items[0]->session().isQueued());
    EXPECT_EQ(items[0]->delegate.lock(), delegate->uiSyncDispatcher());
}

TEST_F(OpenFeedURLTest, AddsTheFeedOfALinkAtTheEndEachTimeThatItComes) {
    add(FeedSeparator::make());
    delegate->handleAppleEvent("feed://a.test/feed");
    delegate->handleAppleEvent("feed://a.test/feed");
    EXPECT_THAT(names(), ElementsAre("-", "", ""));
}

TEST_F(OpenFeedURLTest, AddsNothingForALinkThatIsNoFeeds) {
    delegate->handleAppleEvent(std::nullopt);
    for (const char* address : {"", "no address", "mailto:a@a.test", "feed:http://a.test/feed", "a.test"})
        delegate->handleAppleEvent(address);
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
} // namespace brindle
