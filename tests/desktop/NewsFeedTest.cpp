#include "desktop/NewsFeed.hpp"

#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "desktop/toolkit/RunLoopBridge.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/support/Folders.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindle::desktop {

namespace {

class NewsFeedTest : public testing::Test {
protected:
    std::shared_ptr<FeedItem> subscribe(const std::string& address) {
        const auto item = FeedItem::make("", *URL::make(address), 30, {}, {}, _environment);
        _library.addFeed(item, 0);
        return item;
    }

    const RunLoopBridge _runLoop;
    const TemporaryFolder _folder;
    const SyndicatedSessionEnvironment _environment{std::make_shared<SystemClock>(), std::make_shared<NetworkRouteFake>(0), nullptr};
    FeedsManager _library{_folder.path(), _environment, std::weak_ptr<FeedItemDelegate>()};
};

} // namespace

TEST_F(NewsFeedTest, HasTheProgramsNewsWithoutANetwork) {
    const NewsFeed news(std::filesystem::path(testsupport::sourceFolder()) / "resources");
    const auto item = subscribe(news.address());
    news.fill(_library);
    ASSERT_TRUE(runEventLoop([&] { return !item->articles().empty(); }));
    const auto& articles = item->articles();
    EXPECT_TRUE(std::any_of(articles.begin(), articles.end(), [](const auto& each) { return each->entry->title == "Welcome to Brindle"; }));
}

TEST_F(NewsFeedTest, HasThemAlsoWhereTheProgramWasSomewhereElseBefore) {
    const NewsFeed news(std::filesystem::path(testsupport::sourceFolder()) / "resources");
    const auto item = subscribe("file:///opt/before/share/brindle/news.xml");
    EXPECT_TRUE(news.isNews(item->url()));
    news.fill(_library);
    EXPECT_TRUE(runEventLoop([&] { return !item->articles().empty(); }));
}

TEST_F(NewsFeedTest, TakesNoOtherFeedForThem) {
    const NewsFeed news(std::filesystem::path(testsupport::sourceFolder()) / "resources");
    EXPECT_FALSE(news.isNews(*URL::make("https://a.example/share/brindle/news.xml")));
    EXPECT_FALSE(news.isNews(*URL::make("file:///home/ada/news.xml")));
}

TEST_F(NewsFeedTest, LeavesALibraryAloneThatHasNotSubscribedToThem) {
    const NewsFeed news(std::filesystem::path(testsupport::sourceFolder()) / "resources");
    news.fill(_library);
    EXPECT_TRUE(_library.feeds.empty());
}

TEST_F(NewsFeedTest, LeavesTheFeedAloneWhereTheProgramHasNone) {
    const NewsFeed news(_folder / "none");
    const auto item = subscribe(news.address());
    news.fill(_library);
    EXPECT_TRUE(item->data.empty());
}

} // namespace brindle::desktop
