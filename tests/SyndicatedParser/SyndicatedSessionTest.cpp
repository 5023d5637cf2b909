#include "SyndicatedParser/SyndicatedSession.hpp"

#include "foundation/Console.hpp"
#include "tests/fakes/ClockFake.hpp"
#include "tests/fakes/IconDiscoveryFake.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/fakes/SyndicatedSessionDelegateFake.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using Case = SyndicatedSessionError::Case;
using Fault = HTTPServer::Response::Fault;
using Log = std::vector<std::string>;

constexpr std::string_view rss = "<rss><channel><title>News</title><item><title>One</title><guid>1</guid></item></channel></rss>";
constexpr std::string_view atom = "<feed><title>Atom</title><entry><title>A</title><id>a</id></entry></feed>";
constexpr std::string_view json = R"({"version":"1.1","title":"JSON","items":[{"id":"1","title":"J"}]})";

std::string page(const std::string& links) {
    return "<html><head>" + links + "</head><body>hello</body></html>";
}
std::string link(const std::string& href) {
    return R"(<link rel="alternate" type="application/rss+xml" href=")" + href + "\"/>";
}

class SyndicatedSessionTest : public testing::Test {
protected:
    SyndicatedSessionTest() {
        Console::redirect([this](std::string_view line) { _lines.emplace_back(line); });
    }
    ~SyndicatedSessionTest() override { Console::redirect(nullptr); }

    void make(std::string_view path) {
        _session = SyndicatedSession::make(_server.url(path), {_clock, _route, _icons});
        _session->delegate = _delegate;
    }

    /// Starts the session, one for `path` where there is none, with an empty log; true when `call` came last.
    bool update(std::string_view path, const std::string& call) {
        if (!_session)
            make(path);
        _delegate->log.clear();
        _session->start();
        return waitFor(call);
    }

    bool waitFor(const std::string& call) {
        return runMainLoop([&] { return !_delegate->log.empty() && _delegate->log.back() == call; });
    }

    HTTPServer _server;
    const std::shared_ptr<ClockFake> _clock = std::make_shared<ClockFake>(Date(std::chrono::hours(400000)));
    const std::shared_ptr<NetworkRouteFake> _route = std::make_shared<NetworkRouteFake>();
    const std::shared_ptr<IconDiscoveryFake> _icons = std::make_shared<IconDiscoveryFake>();
    const std::shared_ptr<SyndicatedSessionDelegateFake> _delegate = std::make_shared<SyndicatedSessionDelegateFake>();
    std::shared_ptr<SyndicatedSession> _session;
    Log _lines;
};

TEST_F(SyndicatedSessionTest, TurnsADocumentOfEachFormatIntoItsFeed) {
    struct Document {
        std::string_view text;
        SyndicatedFeedKind kind;
        std::string title;
    };
    for (const Document& document : {Document{rss, SyndicatedFeedKind::rss, "News"}, Document{atom, SyndicatedFeedKind::atom, "Atom"},
             Document{json, SyndicatedFeedKind::json, "JSON"},
             Document{"<rdf:RDF><channel><title>R</title></channel><item/></rdf:RDF>", SyndicatedFeedKind::rdf, "R"}}) {
        _session.reset();
        _server.route("/feed", HTTPServer::document(std::string(document.text)));
        ASSERT_TRUE(update("/feed", "endIconStep"));
        EXPECT_EQ(_delegate->log, (Log{"detect " + std::string(displayString(document.kind)), "finish", "endIconStep"}));
        EXPECT_EQ(_session->feed()->kind, document.kind);
        EXPECT_EQ(_session->feed()->title, document.title);
        EXPECT_EQ(_session->feed()->entries.size(), 1U);
    }
    EXPECT_EQ(_lines, Log());
}

TEST_F(SyndicatedSessionTest, NamesItselfByItsUserAgent) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    _session->setCustomUserAgent("Brindle/1 (macOS; here)");
    ASSERT_TRUE(update("/feed", "endIconStep"));
    ASSERT_EQ(_server.requests().size(), 2U);
    EXPECT_EQ(_server.requests()[0].header("user-agent"), SyndicatedSession::defaultUserAgent());
    EXPECT_TRUE(SyndicatedSession::defaultUserAgent().starts_with("SyndicatedParser/9.0.0 (macOS/iOS; "));
    EXPECT_EQ(_server.requests()[1].header("user-agent"), "Brindle/1 (macOS; here)");
}

TEST_F(SyndicatedSessionTest, FollowsThreeRedirectsOfAnyKindAndKeepsTheLastAddress) {
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

TEST_F(SyndicatedSessionTest, RefusesAFourthRedirectAndTakesItsBody) {
    _server.redirect("/1", "/2");
    _server.redirect("/2", "/3");
    _server.redirect("/3", "/4");
    _server.redirect("/4", "/feed");
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/1", "fail noData"));
    EXPECT_EQ(_session->url(), _server.url("/4"));
    EXPECT_EQ(_server.requestCount("/feed"), 0U);
}

TEST_F(SyndicatedSessionTest, ReadsTheBodyOfTheRefusedRedirect) {
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

TEST_F(SyndicatedSessionTest, CountsRedirectsAnewAtEachConnect) {
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

TEST_F(SyndicatedSessionTest, FailsWithNoDataForAnEmptyBody) {
    _server.route("/empty", HTTPServer::document(""));
    ASSERT_TRUE(update("/empty", "fail noData"));
    EXPECT_EQ(_delegate->log, Log{"fail noData"});
    EXPECT_EQ(_lines, Log());
}

TEST_F(SyndicatedSessionTest, FailsWithAnInvalidFeedForAnUnknownDocument) {
    _server.route("/x", HTTPServer::document("<catalogue/>"));
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::unknown);
}

TEST_F(SyndicatedSessionTest, LooksAtNoStatusCode) {
    HTTPServer::Response response = HTTPServer::document(std::string(rss));
    response.status = 500;
    _server.route("/x", response);
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "News");
}

TEST_F(SyndicatedSessionTest, TurnsAnOPMLDocumentAwayAndKeepsItsKind) {
    _server.route("/x", HTTPServer::document("<opml><body/></opml>"));
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    EXPECT_EQ(_delegate->log, (Log{"detect OPML", "fail invalidFeed"}));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::opml);
}

TEST_F(SyndicatedSessionTest, FailsTwiceWhereTheFeedIsOfAKindThatNoParserFills) {
    _server.route("/x", HTTPServer::document("<opml><body/></opml>"));
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    _server.route("/x", HTTPServer::document(std::string(rss)));
    _delegate->log.clear();
    _session->start();
    ASSERT_TRUE(runMainLoop([&] { return _delegate->log.size() == 3; }));
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "fail invalidFeed", "fail invalidFeed"}));
}

TEST_F(SyndicatedSessionTest, KeepsASettledKindWhateverComesLater) {
    _server.route("/x", HTTPServer::document(std::string(atom)));
    ASSERT_TRUE(update("/x", "endIconStep"));
    _server.route("/x", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::atom);
    EXPECT_EQ(_session->feed()->title, "News");
    ASSERT_EQ(_session->feed()->entries.size(), 1U);
    EXPECT_EQ(_session->feed()->entries[0]->title, "One");
}

TEST_F(SyndicatedSessionTest, FailsWithAnInvalidFeedWhereTheParserDoes) {
    _server.route("/x", HTTPServer::document("[1,2]"));
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    EXPECT_EQ(_delegate->log, (Log{"detect JSON", "fail invalidFeed"}));
}

TEST_F(SyndicatedSessionTest, PrintsAndReportsAConnectionThatFailed) {
    HTTPServer::Response dropped;
    dropped.fault = Fault::drop;
    _server.route("/x", dropped);
    ASSERT_TRUE(update("/x", "fail connection"));
    EXPECT_EQ(_lines, Log{"URLSession failed with error: The server closed the connection without an answer."});
    ASSERT_TRUE(_delegate->lastError && _delegate->lastError->error);
    EXPECT_EQ(_delegate->lastError->error->code, URLError::Code::connectionLost);
}

TEST_F(SyndicatedSessionTest, FailsABodyThatIsCutOff) {
    HTTPServer::Response cut = HTTPServer::document(std::string(rss));
    cut.fault = Fault::dropMid;
    _server.route("/x", cut);
    ASSERT_TRUE(update("/x", "fail connection"));
}

TEST_F(SyndicatedSessionTest, ReadsLatin1WhereABodyIsNotUTF8AndKeepsThatEncoding) {
    _server.route("/x", HTTPServer::document("<rss><channel><title>Caf\xE9</title></channel></rss>"));
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "Caf\xC3\xA9");
    ASSERT_TRUE(_session->feed()->data);
    EXPECT_NE(_session->feed()->data->view().find("Caf\xE9"), std::string::npos);
}

TEST_F(SyndicatedSessionTest, LeavesTheDataAbsentWhereTheTextCannotBeEncodedBack) {
    _server.route("/x", HTTPServer::document("<rss><channel><title>Caf\xE9 &rarr;</title></channel></rss>"));
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "Caf\xC3\xA9 \xE2\x86\x92");
    EXPECT_FALSE(_session->feed()->data);
}

TEST_F(SyndicatedSessionTest, MovesFromAPageToItsOnlyFeedWithoutAWord) {
    _server.route("/page", HTTPServer::document(page(link(_server.origin() + "/feed")), "text/html"));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/page", "endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"shouldDiscoverFeeds", "detect RSS", "finish", "endIconStep"}));
    EXPECT_EQ(_session->url(), _server.url("/feed"));
}

TEST_F(SyndicatedSessionTest, OffersTheFeedsOfAPageWithSeveral) {
    _server.route("/page", HTTPServer::document(page(link("http://a.test/1") + link("http://a.test/2")), "text/html"));
    ASSERT_TRUE(update("/page", "discover 2"));
    EXPECT_EQ(_session->feed()->kind, SyndicatedFeedKind::html);
    EXPECT_EQ(_session->url(), _server.url("/page"));
}

TEST_F(SyndicatedSessionTest, OffersNothingForAPageWithoutFeeds) {
    _server.route("/page", HTTPServer::document(page(""), "text/html"));
    ASSERT_TRUE(update("/page", "discover 0"));
}

TEST_F(SyndicatedSessionTest, FailsWithNoURLWhereTheOnlyFeedHasNone) {
    _server.route("/page", HTTPServer::document(page(link("not an address")), "text/html"));
    ASSERT_TRUE(update("/page", "fail noURL"));
}

TEST_F(SyndicatedSessionTest, FailsAPageWhereDiscoveryIsDeclinedOrNobodyAnswers) {
    _server.route("/page", HTTPServer::document(page(link("http://a.test/1")), "text/html"));
    _delegate->discoversFeeds = false;
    ASSERT_TRUE(update("/page", "fail invalidFeed"));
    EXPECT_EQ(_delegate->log, (Log{"shouldDiscoverFeeds", "fail invalidFeed"}));
}

TEST_F(SyndicatedSessionTest, QueuesTheOnlyFeedOfAPageWhileTheNetworkIsAway) {
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

TEST_F(SyndicatedSessionTest, WaitsForTheNetworkWithoutAWord) {
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

TEST_F(SyndicatedSessionTest, FetchesWhenTheNetworkComesThoughItWasNeverStarted) {
    _route->change(0);
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/feed");
    RunLoop::main().runPending();
    _route->change(NetworkReachabilityFlags::reachable);
    ASSERT_TRUE(waitFor("endIconStep"));
}

TEST_F(SyndicatedSessionTest, DoesNotFetchAgainWhenTheNetworkComesBack) {
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

TEST_F(SyndicatedSessionTest, BearsAMonitorThatCannotWatch) {
    _route->watchFailure = 1003;
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
}

TEST_F(SyndicatedSessionTest, StopsTheProcessWithoutAMonitor) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(SyndicatedSession::make(*URL::make("http://a.test/"), {_clock, nullptr, nullptr}), "Fatal error: ");
}

TEST_F(SyndicatedSessionTest, ReportsTheFetchThatASecondStartCancels) {
    HTTPServer::Response hanging = HTTPServer::document(std::string(rss));
    hanging.fault = Fault::hang;
    _server.route("/feed", hanging);
    make("/feed");
    _session->start();
    ASSERT_TRUE(runMainLoop([&] { return _server.requestCount("/feed") == 1; }));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"fail connection", "detect RSS", "finish", "endIconStep"}));
    ASSERT_TRUE(_delegate->lastError && _delegate->lastError->error);
    EXPECT_EQ(_delegate->lastError->error->code, URLError::Code::cancelled);
}

TEST_F(SyndicatedSessionTest, ParsesGivenBytesWithoutTheNetwork) {
    make("/feed");
    _route->change(0);
    _session->start(std::string(rss));
    ASSERT_TRUE(waitFor("endIconStep"));
    EXPECT_EQ(_session->feed()->title, "News");
    EXPECT_FALSE(_session->isQueued());
    EXPECT_TRUE(_server.requests().empty());
    _route->change(NetworkReachabilityFlags::reachable);
    _server.route("/feed", HTTPServer::document(std::string(atom)));
    ASSERT_TRUE(waitFor("endIconStep") && runMainLoop([&] { return _session->feed()->title == "Atom"; })) << "it had not connected yet";
}

TEST_F(SyndicatedSessionTest, FetchesForEmptyBytes) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/feed");
    _session->start("");
    ASSERT_TRUE(waitFor("endIconStep"));
    EXPECT_EQ(_server.requestCount("/feed"), 1U);
}

TEST_F(SyndicatedSessionTest, CancelsAChallengeAndFails) {
    HTTPServer::Response locked = HTTPServer::document(std::string(rss));
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"x\"");
    _server.route("/feed", locked);
    ASSERT_TRUE(update("/feed", "fail connection"));
    EXPECT_EQ(_delegate->log, (Log{"shouldCancel", "fail connection"}));
    EXPECT_EQ(_lines, (Log{"Task Authentication Required", "URLSession failed with error: The transfer was cancelled."}));
    EXPECT_EQ(_server.requestCount("/feed"), 1U);
}

TEST_F(SyndicatedSessionTest, CarriesACredentialAndCancelsWhenItFailed) {
    HTTPServer::Response locked = HTTPServer::document("locked");
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"x\"");
    _server.route("/feed", locked);
    _delegate->cancelsAuthentication = false;
    _delegate->credential = URLCredential{"user", "pass"};
    ASSERT_TRUE(update("/feed", "fail connection"));
    EXPECT_EQ(_delegate->log, (Log{"shouldCancel", "credential", "fail connection"})) << "the second challenge asks nobody";
    ASSERT_EQ(_server.requests().size(), 2U);
    EXPECT_EQ(_server.requests()[1].header("authorization"), "Basic dXNlcjpwYXNz");
}

TEST_F(SyndicatedSessionTest, TakesTheLockedPageWhereNobodyHasACredential) {
    HTTPServer::Response locked = HTTPServer::document(std::string(rss));
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"x\"");
    _server.route("/feed", locked);
    _delegate->cancelsAuthentication = false;
    ASSERT_TRUE(update("/feed", "endIconStep"));
}

TEST_F(SyndicatedSessionTest, LooksForTheIconAtTheRootOfTheFirstAlternateLink) {
    _server.route("/feed", HTTPServer::document("<rss><channel><link>https://site.test:8080/a/b?c</link></channel></rss>"));
    _icons->bytes = "icon";
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"https://site.test"});
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "icon icon", "endIconStep"}));
}

TEST_F(SyndicatedSessionTest, LooksForTheIconAtItsOwnHostWhereTheFeedHasNoLink) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log{"http://127.0.0.1"});
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "endIconStep"}));
}

TEST_F(SyndicatedSessionTest, LooksForNoIconWithoutAHostOrAWish) {
    _server.route("/feed", HTTPServer::document("<rss><channel><link>/relative</link></channel></rss>"));
    ASSERT_TRUE(update("/feed", "endIconStep"));
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    _session.reset();
    _delegate->discoversIcon = false;
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_icons->roots, Log());
}

TEST_F(SyndicatedSessionTest, SaysNothingToADelegateThatIsGone) {
    _server.route("/feed", HTTPServer::document(std::string(rss)));
    make("/feed");
    _session->delegate.reset();
    _session->start();
    ASSERT_TRUE(runMainLoop([&] { return _session->feed()->title == "News"; }));
    EXPECT_EQ(_delegate->log, Log());
}

TEST_F(SyndicatedSessionTest, EndsWithoutAWordInTheMidstOfAFetch) {
    HTTPServer::Response hanging;
    hanging.fault = Fault::hang;
    _server.route("/feed", hanging);
    make("/feed");
    _session->start();
    ASSERT_TRUE(runMainLoop([&] { return _server.requestCount("/feed") == 1; }));
    _session.reset();
    _server.route("/other", HTTPServer::document(std::string(rss)));
    ASSERT_TRUE(update("/other", "endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "endIconStep"}));
    EXPECT_EQ(_route->watchCount(), 1U);
}

TEST_F(SyndicatedSessionTest, BearsPassesThatOverlap) {
    make("/feed");
    _route->change(0);
    for (int i = 0; i < 20; ++i)
        _session->start(std::string(i % 2 ? rss : "<rss><channel><title>Other</title></channel></rss>"));
    ASSERT_TRUE(runMainLoop([&] { return std::count(_delegate->log.begin(), _delegate->log.end(), "endIconStep") == 20; }));
    EXPECT_EQ(std::count(_delegate->log.begin(), _delegate->log.end(), "finish"), 20);
}

} // namespace
} // namespace brindle
