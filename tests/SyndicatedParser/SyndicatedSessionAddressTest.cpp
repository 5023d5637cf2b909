#include "foundation/RunLoop.hpp"
#include "tests/SyndicatedParser/SyndicatedSessionFixture.hpp"

namespace brindle {
namespace {

/// Where a session fetches from, and where that leads it.
class SyndicatedSessionAddressTest : public SyndicatedSessionTest {};

TEST_F(SyndicatedSessionAddressTest, FollowsThreeRedirectsOfAnyKindAndKeepsTheLastAddress) {
    for (const int status : {301, 302, 303, 307, 308}) {
        _session.reset();
        _server.redirect("/1", "/2", status);
        _server.redirect("/2", "/3", status);
        _server.redirect("/3", "/feed", status);
        _server.route("/feed", HTTPServer::document(std::string(rss)));
        ASSERT_TRUE(update("/1", "endIconStep")) << status;
        EXPECT_EQ(_session->url(), _server.url("/feed"));
    }
}

TEST_F(SyndicatedSessionAddressTest, RefusesAFourthRedirectAndTakesItsBody) {
    _server.redirect("/1", "/2");
    _server.redirect("/2", "/3");
    _server.redirect("/3", "/4");
    _server.redirect("/4", "/feed");
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/1", "fail noData"));
    EXPECT_EQ(_session->url(), _server.url("/4"));
    EXPECT_EQ(_server.requestCount("/feed"), 0U);
}

TEST_F(SyndicatedSessionAddressTest, ReadsTheBodyOfTheRefusedRedirect) {
    _server.redirect("/1", "/2");
    _server.redirect("/2", "/3");
    _server.redirect("/3", "/4");
    HTTPServer::Response last = HTTPServer::document(std::string(rss));
    last.status = 302;
    last.headers.emplace_back("Location", "/elsewhere");
    _server.route("/4", last);
    ASSERT_TRUE(update("/1", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "News");
}

TEST_F(SyndicatedSessionAddressTest, CountsRedirectsAnewAtEachConnect) {
    _server.redirect("/1", "/2");
    _server.redirect("/2", "/feed");
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/1");
    ASSERT_TRUE(update("/1", "endIconStep"));
    _server.redirect("/feed", "/b");
    _server.redirect("/b", "/c");
    _server.redirect("/c", "/d");
    _server.route("/d", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_session->url(), _server.url("/d"));
}

TEST_F(SyndicatedSessionAddressTest, StaysWhereARedirectLeadsToNoAddress) {
    HTTPServer::Response moved = HTTPServer::document(std::string(rss));
    moved.status = 302;
    moved.headers.emplace_back("Location", "http://[bad/");
    _server.route("/feed", moved);
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_session->url(), _server.url("/feed"));
    EXPECT_EQ(_session->feed()->title, "News");
}

TEST_F(SyndicatedSessionAddressTest, SendsNoPasswordOfAnAddressAndKeepsItsText) {
    const std::string address = "http://user:secret@" + _server.origin().substr(7) + "/feed";
    serve("/feed", rss);
    _server.redirect("/old", address);
    for (const std::string& start : {address, _server.origin() + "/old"}) {
        _session = SyndicatedSession::make(*URL::make(start), {_clock, _route, _icons});
        _session->delegate = _delegate;
        ASSERT_TRUE(update("/feed", "endIconStep")) << start;
        EXPECT_EQ(_session->url().absoluteString(), address) << start;
    }
    ASSERT_EQ(_server.requestCount("/feed"), 2U);
    for (const HTTPServer::Request& request : _server.requests())
        EXPECT_FALSE(request.headers.contains("authorization")) << request.path;
}

TEST_F(SyndicatedSessionAddressTest, MovesFromAPageToItsOnlyFeedWithoutAWord) {
    _server.route("/page", HTTPServer::document(page(link(_server.origin() + "/feed")), "text/html"));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/page", "endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"shouldDiscoverFeeds", "detect RSS", "finish", "endIconStep"}));
    EXPECT_EQ(_session->url(), _server.url("/feed"));
}

TEST_F(SyndicatedSessionAddressTest, OffersTheFeedsOfAPageWithSeveral) {
    _server.route("/page", HTTPServer::document(page(link("http://a.test/1") + link("http://a.test/2")), "text/html"));
    ASSERT_TRUE(update("/page", "discover 2"));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::html);
    EXPECT_EQ(_session->url(), _server.url("/page"));
}

TEST_F(SyndicatedSessionAddressTest, OffersNothingForAPageWithoutFeeds) {
    _server.route("/page", HTTPServer::document(page(""), "text/html"));
    ASSERT_TRUE(update("/page", "discover 0"));
}

TEST_F(SyndicatedSessionAddressTest, FailsWithNoURLWhereTheOnlyFeedHasNone) {
    _server.route("/page", HTTPServer::document(page(link("not an address")), "text/html"));
    ASSERT_TRUE(update("/page", "fail noURL"));
}

TEST_F(SyndicatedSessionAddressTest, FailsAPageWhereDiscoveryIsDeclined) {
    serve("/page", page(link("http://a.test/1")));
    _delegate->discoversFeeds = false;
    ASSERT_TRUE(update("/page", "fail invalidFeed"));
    EXPECT_EQ(_delegate->log, (Log{"shouldDiscoverFeeds", "fail invalidFeed"}));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::html);
    EXPECT_EQ(_session->url(), _server.url("/page"));
}

TEST_F(SyndicatedSessionAddressTest, StaysAtAPageWhereNobodyIsThereToAnswer) {
    serve("/page", page(link(_server.origin() + "/feed")));
    serve("/feed", rss);
    make("/page");
    const auto unheard = _session;
    unheard->delegate.reset();
    unheard->start();
    ASSERT_TRUE(runMainLoop([&] { return unheard->feed()->kind == SyndicatedFeedKind::html; }));
    make("/page");
    ASSERT_TRUE(update("/page", "endIconStep"));
    EXPECT_EQ(unheard->url(), _server.url("/page"));
    EXPECT_EQ(_server.requestCount("/feed"), 1U) << "the session that has a delegate went there";
}

TEST_F(SyndicatedSessionAddressTest, FailsWhereTheOnlyFeedOfAPageHasAPathAlone) {
    serve("/page", page(link("/Feed")));
    ASSERT_TRUE(update("/page", "fail connection"));
    EXPECT_EQ(_delegate->log, (Log{"shouldDiscoverFeeds", "fail connection"}));
    EXPECT_EQ(_session->url(), URL::make("/feed"));
    EXPECT_EQ(_server.requests().size(), 1U);
}

TEST_F(SyndicatedSessionAddressTest, LooksForTheIconAtTheRootOfTheFirstAlternateLink) {
    _server.route("/feed", HTTPServer::document("<rss><channel><link>https://site.test:8080/a/b?c</link></channel></rss>"));
    _icons->bytes = "icon";
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"https://site.test"});
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "icon icon", "endIconStep"}));
}

TEST_F(SyndicatedSessionAddressTest, LooksForTheIconAtItsOwnHostWhereTheFeedHasNoLink) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"http://127.0.0.1"});
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "endIconStep"}));
}

TEST_F(SyndicatedSessionAddressTest, LooksForNoIconWithoutAHostOrAWish) {
    _server.route("/feed", HTTPServer::document("<rss><channel><link>/relative</link></channel></rss>"));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    _session.reset();
    _delegate->discoversIcon = false;
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log());
}

TEST_F(SyndicatedSessionAddressTest, LooksForTheIconAtTheRootOfAnAlternateLinkBehindAnother) {
    serve("/feed", R"(<feed><link rel="self" href="http://self.test/a"/><link rel="alternate" href="http://alternate.test/b"/></feed>)");
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"http://alternate.test"});
}

TEST_F(SyndicatedSessionAddressTest, LooksForTheIconOverHTTPWhereTheLinkHasNoScheme) {
    serve("/feed", "<rss><channel><link>//site.test/a</link></channel></rss>");
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"http://site.test"});
}

TEST_F(SyndicatedSessionAddressTest, LooksForNoIconWhereTheLinksHostIsEmpty) {
    serve("/feed", "<rss><channel><link>http:///x</link></channel></rss>");
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_session->feed()->primaryURL(), URL::make("http:///x"));
    EXPECT_EQ(_icons->roots, Log());
}

TEST_F(SyndicatedSessionAddressTest, LooksForTheIconOnceWhereNobodyIsThereToSayNo) {
    serve("/feed", rss);
    make("/feed");
    _session->delegate.reset();
    _session->start();
    ASSERT_TRUE(runMainLoop([&] { return !_icons->roots.empty(); }));
    RunLoop::main().runPending();
    EXPECT_EQ(_icons->roots, Log{"http://127.0.0.1"});
}

} // namespace
} // namespace brindle
