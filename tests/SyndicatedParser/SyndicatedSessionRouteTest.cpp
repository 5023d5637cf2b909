#include "foundation/RunLoop.hpp"
#include "tests/SyndicatedParser/SyndicatedSessionFixture.hpp"

namespace brindle {
namespace {

/// What a session makes of the network's coming and going.
class SyndicatedSessionRouteTest : public SyndicatedSessionTest {};

TEST_F(SyndicatedSessionRouteTest, QueuesTheOnlyFeedOfAPageWhileTheNetworkIsAway) {
    make("/page");
    _route->change(0);
    _session->start(page(link(_server.origin() + "/feed")));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(runMainLoop([&] { return _session->isQueued(); }));
    EXPECT_EQ(_session->url(), _server.url("/feed"));
    _route->change(NetworkReachabilityFlags::reachable);
    ASSERT_TRUE(waitFor("endIconStep"));
    EXPECT_FALSE(_session->isQueued());
}

TEST_F(SyndicatedSessionRouteTest, WaitsForTheNetworkWithoutAWord) {
    _route->change(0);
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/feed");
    EXPECT_FALSE(_session->isReachable());
    _session->start();
    EXPECT_TRUE(_session->isQueued());
    RunLoop::main().runPending();
    EXPECT_EQ(_delegate->log, Log());
    _route->change(NetworkReachabilityFlags::reachable);
    ASSERT_TRUE(waitFor("endIconStep"));
    EXPECT_TRUE(_session->isReachable());
    EXPECT_FALSE(_session->isQueued());
}

TEST_F(SyndicatedSessionRouteTest, FetchesWhenTheNetworkComesThoughItWasNeverStarted) {
    _route->change(0);
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/feed");
    RunLoop::main().runPending();
    _route->change(NetworkReachabilityFlags::reachable);
    ASSERT_TRUE(waitFor("endIconStep"));
}

TEST_F(SyndicatedSessionRouteTest, DoesNotFetchAgainWhenTheNetworkComesBack) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    _route->change(0);
    RunLoop::main().runPending();
    EXPECT_FALSE(_session->isReachable());
    _route->change(NetworkReachabilityFlags::reachable);
    RunLoop::main().runPending();
    EXPECT_TRUE(_session->isReachable());
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_server.requestCount("/feed"), 2U);
}

TEST_F(SyndicatedSessionRouteTest, BearsAMonitorThatCannotWatch) {
    _route->watchFailure = 1003;
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
}

TEST_F(SyndicatedSessionRouteTest, StopsTheProcessWithoutAMonitor) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(SyndicatedSession::make(*URL::make("http://a.test/"), {_clock, nullptr, nullptr}), "Fatal error: ");
}

} // namespace
} // namespace brindle
