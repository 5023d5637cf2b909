#include "tests/SyndicatedParser/SyndicatedSessionFixture.hpp"

#include <algorithm>

namespace brindle {
namespace {

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

TEST_F(SyndicatedSessionTest, KeepsItsAddressAndItsFeedThroughFailures) {
    serve("/x", rss);
    ASSERT_TRUE(update("/x", "endIconStep"));
    const auto expectUnchanged = [&](const char* failure) {
        EXPECT_EQ(_session->url(), _server.url("/x")) << failure;
        EXPECT_EQ(_session->feed()->title, "News") << failure;
        ASSERT_EQ(_session->feed()->entries.size(), 1U) << failure;
        EXPECT_EQ(_session->feed()->entries[0]->title, "One") << failure;
    };
    HTTPServer::Response dropped;
    dropped.fault = Fault::drop;
    _server.route("/x", dropped);
    ASSERT_TRUE(update("/x", "fail connection"));
    expectUnchanged("a dropped connection");
    serve("/x", "");
    ASSERT_TRUE(update("/x", "fail noData"));
    expectUnchanged("an empty body");
    serve("/x", "<catalogue/>");
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    expectUnchanged("an unknown document");
}

TEST_F(SyndicatedSessionTest, KeepsWhatWasReadOfADocumentThatFailed) {
    serve("/x", "<rss><channel><title>Part</title></channel></rss><x/>");
    ASSERT_TRUE(update("/x", "fail invalidFeed"));
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "fail invalidFeed"}));
    EXPECT_EQ(_session->feed()->title, "Part");
}

TEST_F(SyndicatedSessionTest, ReadsLatin1WhereABodyIsNotUTF8AndKeepsThatEncoding) {
    _server.route("/x", HTTPServer::document("<rss><channel><title>Caf\xE9</title></channel></rss>"));
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "Caf\xC3\xA9");
    ASSERT_TRUE(_session->feed()->data);
    EXPECT_NE(_session->feed()->data->bytes().find("Caf\xE9"), std::string::npos);
}

TEST_F(SyndicatedSessionTest, LeavesTheDataAbsentWhereTheTextCannotBeEncodedBack) {
    _server.route("/x", HTTPServer::document("<rss><channel><title>Caf\xE9 &rarr;</title></channel></rss>"));
    ASSERT_TRUE(update("/x", "endIconStep"));
    EXPECT_EQ(_session->feed()->title, "Caf\xC3\xA9 \xE2\x86\x92");
    EXPECT_FALSE(_session->feed()->data);
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

TEST_F(SyndicatedSessionTest, ParsesGivenBytesBesideWhatItFetched) {
    serve("/feed", "<rss><channel><title>Fetched</title></channel></rss>");
    ASSERT_TRUE(update("/feed", "endIconStep"));
    _delegate->log.clear();
    _session->start(std::string(rss));
    ASSERT_TRUE(waitFor("endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "endIconStep"}));
    EXPECT_EQ(_session->feed()->title, "News");
    EXPECT_EQ(_server.requestCount("/feed"), 1U);
    EXPECT_FALSE(_session->isQueued());
    ASSERT_TRUE(update("/feed", "endIconStep"));
    EXPECT_EQ(_delegate->log, (Log{"detect RSS", "finish", "endIconStep"})) << "no other fetch was under way";
    EXPECT_EQ(_server.requestCount("/feed"), 2U);
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
