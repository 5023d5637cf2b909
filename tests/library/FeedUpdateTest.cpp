#include "Brindle/library/FeedsManager.hpp"
#include "tests/library/LibraryFixture.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gmock/gmock.h>

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// Whole updates, over real connections.
class FeedUpdateTest : public LibraryTest {
protected:
    FeedUpdateTest() { environment.route = std::make_shared<NetworkRouteFake>(); }

    std::shared_ptr<FeedItem> itemAt(const std::string& path, const std::string& name = "Name") {
        return makeItem(name, server.url(path).absoluteString());
    }

    HTTPServer server;
};

TEST_F(FeedUpdateTest, NamesTheProgramItsVersionAndItsMakers) {
    server.route("/feed", HTTPServer::document(rss({{"A", ""}})));
    const auto item = itemAt("/feed");
    item->parse();
    nextCall(0);
    ASSERT_THAT(server.requests(), SizeIs(1));
    EXPECT_EQ(server.requests()[0].header("user-agent"), "Brindle/" BRINDLE_VERSION " (macOS; https://brindle.invalid/)");
}

TEST_F(FeedUpdateTest, FetchesAtEachShotOfItsTimer) {
    server.route("/feed", HTTPServer::document(rss({{"A", ""}})));
    const auto item = itemAt("/feed");
    item->updateRate = 10;
    item->scheduleUpdates(true);
    EXPECT_THAT(nextCall(0).newArticles, SizeIs(1));
    for (std::size_t shot = 1; shot <= 3; ++shot) {
        time->advance(std::chrono::minutes(10));
        EXPECT_THAT(nextCall(shot).newArticles, IsEmpty());
    }
    EXPECT_EQ(server.requestCount("/feed"), 4U);
}

TEST_F(FeedUpdateTest, CancelsAFetchThatHangsWhenItsTimerFires) {
    HTTPServer::Response hanging;
    hanging.fault = HTTPServer::Response::Fault::hang;
    server.route("/feed", hanging);
    const auto item = itemAt("/feed");
    item->updateRate = 10;
    item->scheduleUpdates(true);
    ASSERT_TRUE(runMainLoop([&] { return server.requestCount("/feed") == 1; }));
    server.route("/feed", HTTPServer::document(rss({{"A", ""}})));
    time->advance(std::chrono::minutes(10));
    const auto cancelled = nextCall(0);
    EXPECT_EQ(cancelled.name, "feedItemDidFail");
    ASSERT_TRUE(cancelled.error);
    EXPECT_EQ(std::get<URLError>(*cancelled.error).code, URLError::Code::cancelled);
    const auto finished = nextCall(1);
    EXPECT_EQ(finished.name, "feedItemDidFinishParsing");
    EXPECT_THAT(titles(finished.newArticles), ElementsAre("A"));
    EXPECT_EQ(server.requestCount("/feed"), 2U);
    EXPECT_FALSE(item->lastConnectionFailed());
}

TEST_F(FeedUpdateTest, GoesOnAtItsRateThroughFailures) {
    server.route("/feed", HTTPServer::Response());
    const auto item = itemAt("/feed");
    item->scheduleUpdates(true);
    for (std::size_t shot = 0; shot < 3; ++shot) {
        EXPECT_EQ(nextCall(shot).name, "feedItemDidFail");
        time->advance(std::chrono::minutes(30));
    }
    EXPECT_TRUE(item->hasTimer());
}

TEST_F(FeedUpdateTest, FetchesWhenAskedToInSpiteOfTheSwitch) {
    server.route("/feed", HTTPServer::document(rss({{"A", ""}})));
    const auto manager = makeManager();
    manager->allowUpdates = false;
    const auto item = itemAt("/feed");
    manager->addFeed(item, 0);
    item->parse();
    EXPECT_THAT(nextCall(0).newArticles, SizeIs(1));
}

TEST_F(FeedUpdateTest, ShowsTheStoredDocumentWhenItStartsOffline) {
    server.route("/feed", HTTPServer::document(rss({{"A", "http://a.invalid/a"}, {"B", ""}})));
    {
        const auto manager = makeManager();
        const auto item = itemAt("/feed");
        manager->addFeed(item, 0);
        item->parse();
        nextCall(0);
        item->markArticle(*item->articles()[1], ArticleStateFilter::read);
        manager->save();
    }
    HTTPServer::Response lost;
    lost.fault = HTTPServer::Response::Fault::drop;
    server.route("/feed", lost);
    takeLines();
    const auto manager = loadedManager();
    const auto item = FeedsManager::items(manager->feeds)[0];
    EXPECT_THAT(item->articles(), IsEmpty());
    manager->applyUpdateState(manager->feeds);
    const auto call = nextCall(1);
    EXPECT_EQ(call.name, "feedItemDidFinishParsing");
    EXPECT_THAT(call.newArticles, IsEmpty());
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::unread)), ElementsAre("A"));
    EXPECT_THAT(titles(item->articlesWithState(ArticleStateFilter::read)), ElementsAre("B"));
    EXPECT_THAT(takeLines(), ::testing::Contains(StartsWith("A connection error occured: ")));
}

TEST_F(FeedUpdateTest, StoresTheAddressThatAFeedHasMovedTo) {
    server.redirect("/old", "/new");
    server.route("/new", HTTPServer::document(rss({{"A", ""}})));
    const auto manager = makeManager();
    const auto item = itemAt("/old");
    manager->addFeed(item, 0);
    item->parse();
    nextCall(0);
    manager->save();
    EXPECT_EQ(FeedsManager::items(loadedManager()->feeds)[0]->url(), server.url("/new"));
}

TEST_F(FeedUpdateTest, FailsAsAConnectionWhereAPasswordIsAskedFor) {
    HTTPServer::Response refused;
    refused.status = 401;
    refused.headers = {{"WWW-Authenticate", "Basic realm=\"members\""}};
    server.route("/feed", refused);
    const auto item = FeedItem::make("", server.url("/feed"), 30, "user", "secret", environment);
    item->delegate = delegate;
    item->parse();
    const auto call = nextCall(0);
    EXPECT_EQ(call.name, "feedItemDidFail");
    ASSERT_TRUE(call.error);
    EXPECT_EQ(std::get<URLError>(*call.error).code, URLError::Code::cancelled);
    for (const HTTPServer::Request& request : server.requests())
        EXPECT_EQ(request.header("authorization"), "");
}

TEST_F(FeedUpdateTest, OffersTheFeedsOfAPage) {
    const std::string one = server.url("/1").absoluteString(), two = server.url("/2").absoluteString();
    server.route("/page", HTTPServer::document("<html><head><link rel=\"alternate\" type=\"application/rss+xml\" title=\"One\" href=\"" +
                                                   one + "\"><link rel=\"alternate\" type=\"application/atom+xml\" title=\"Two\" href=\"" +
                                                   two + "\"></head><body></body></html>",
                              "text/html"));
    const auto item = itemAt("/page");
    item->parse();
    const auto call = nextCall(0);
    EXPECT_EQ(call.name, "feedItemDidDiscoverFeedItems");
    ASSERT_THAT(call.feedItems, SizeIs(2));
    EXPECT_EQ(call.feedItems[0]->name(), "One");
    EXPECT_EQ(call.feedItems[1]->url(), server.url("/2"));
}

/// An icon that is always found, and how often it was looked for.
class IconDiscoveryFake : public IconDiscovery {
public:
    void discoverIcon(const URL&, std::function<void(std::optional<std::string>)> completion) override {
        ++count;
        DispatchQueue::main().async([completion] { completion("icon"); });
    }
    std::atomic<int> count = 0;
};

TEST_F(FeedUpdateTest, LooksForItsIconOnceInARun) {
    const auto icons = std::make_shared<IconDiscoveryFake>();
    environment.iconDiscovery = icons;
    server.route("/feed", HTTPServer::document(rss({{"A", ""}})));
    const auto item = itemAt("/feed");
    item->parse();
    EXPECT_TRUE(runMainLoop([&] { return delegate->endedIconSteps == 1; }));
    EXPECT_EQ(item->feedImageData(), "icon");
    item->parse();
    EXPECT_TRUE(runMainLoop([&] { return delegate->endedIconSteps == 2; }));
    EXPECT_EQ(icons->count, 1);
}

} // namespace
} // namespace brindle
