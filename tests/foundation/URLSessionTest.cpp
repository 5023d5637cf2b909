#include "foundation/URLSession.hpp"

#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace brindle {
namespace {

using Disposition = URLAuthenticationChallengeDisposition;
using Fault = HTTPServer::Response::Fault;

/// Logs what a session tells, and answers as a test has it.
class Events : public URLSessionDelegate {
public:
    void didReceiveData(URLSessionDataTask&, std::string data) override { body += data; }
    void didComplete(URLSessionDataTask& task, const std::optional<URLError>& completionError) override {
        ++completions;
        error = completionError;
        status = task.response() ? task.response()->statusCode : 0;
    }
    void willPerformRedirection(
        URLSessionDataTask&, const URLResponse& response, const URLRequest& newRequest, RedirectHandler completionHandler) override {
        redirectStatuses.push_back(response.statusCode);
        redirectURLs.push_back(newRequest.url ? newRequest.url->absoluteString() : "");
        completionHandler(followsRedirects ? std::optional(newRequest) : std::nullopt);
    }
    void didReceiveChallenge(const URLAuthenticationChallenge& challenge, ChallengeHandler completionHandler) override {
        challenges.push_back(challenge);
        completionHandler(disposition, credential);
    }
    void didBecomeInvalid(const std::optional<URLError>& invalidError) override {
        ++invalidations;
        EXPECT_FALSE(invalidError);
    }

    std::string body;
    int completions = 0;
    int invalidations = 0;
    int status = 0;
    std::optional<URLError> error;
    bool followsRedirects = true;
    std::vector<int> redirectStatuses;
    std::vector<std::string> redirectURLs;
    Disposition disposition = Disposition::performDefaultHandling;
    std::optional<URLCredential> credential;
    std::vector<URLAuthenticationChallenge> challenges;
};

class URLSessionTest : public testing::Test {
protected:
    void fetch(const URL& url) {
        begin(url);
        ASSERT_TRUE(runMainLoop([&] { return _events->completions == 1; }));
    }
    void fetch(std::string_view path) { fetch(_server.url(path)); }

    void begin(const URL& url) {
        _session = URLSession::make(_configuration, _events);
        _task = _session->dataTask(url);
        _task->resume();
    }

    HTTPServer _server;
    URLSessionConfiguration _configuration;
    std::shared_ptr<Events> _events = std::make_shared<Events>();
    std::shared_ptr<URLSession> _session;
    std::shared_ptr<URLSessionDataTask> _task;
};

TEST_F(URLSessionTest, BringsTheBodyAndTheStatus) {
    _server.route("/feed.xml", HTTPServer::document("<rss/>"));
    fetch("/feed.xml");
    EXPECT_EQ(_events->body, "<rss/>");
    EXPECT_EQ(_events->status, 200);
    EXPECT_FALSE(_events->error);
}

TEST_F(URLSessionTest, TakesAnErrorPageForAnAnswer) {
    HTTPServer::Response response = HTTPServer::document("<html>gone</html>", "text/html");
    response.status = 404;
    _server.route("/gone", response);
    fetch("/gone");
    EXPECT_EQ(_events->body, "<html>gone</html>");
    EXPECT_EQ(_events->status, 404);
    EXPECT_FALSE(_events->error);
}

TEST_F(URLSessionTest, SendsTheHeadersOfItsConfiguration) {
    _configuration.additionalHeaders["User-Agent"] = "Reader/1 (test)";
    fetch("/any");
    ASSERT_EQ(_server.requests().size(), 1U);
    const auto request = _server.requests().front();
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.header("user-agent"), "Reader/1 (test)");
    EXPECT_EQ(request.header("cookie"), "");
    EXPECT_EQ(request.header("if-none-match"), "");
    EXPECT_NE(request.header("accept-encoding").find("gzip"), std::string::npos);
}

TEST_F(URLSessionTest, UnpacksAPackedBody) {
    // "<rss/>" as gzip (RFC 1952).
    const std::string packed("\x1f\x8b\x08\0\0\0\0\0\x02\x03\xb3\x29\x2a\x2e\xd6\xb7\x03\0\x67\x29\x28\xbd\x06\0\0\0", 26);
    HTTPServer::Response response = HTTPServer::document(packed);
    response.headers.emplace_back("Content-Encoding", "gzip");
    _server.route("/packed", response);
    fetch("/packed");
    EXPECT_EQ(_events->body, "<rss/>");
    EXPECT_FALSE(_events->error);
}

TEST_F(URLSessionTest, AsksAboutARedirectAndFollowsIt) {
    for (const int status : {301, 302, 303, 307, 308}) {
        *_events = Events();
        _server.redirect("/old", "/new", status);
        _server.route("/new", HTTPServer::document("moved"));
        fetch("/old");
        EXPECT_EQ(_events->redirectStatuses, std::vector{status});
        EXPECT_EQ(_events->redirectURLs, std::vector{_server.url("/new").absoluteString()});
        EXPECT_EQ(_events->body, "moved") << status;
    }
}

TEST_F(URLSessionTest, TakesTheBodyOfARefusedRedirect) {
    _events->followsRedirects = false;
    HTTPServer::Response response = HTTPServer::document("see elsewhere");
    response.status = 302;
    response.headers.emplace_back("Location", "/new");
    _server.route("/old", response);
    fetch("/old");
    EXPECT_EQ(_events->body, "see elsewhere");
    EXPECT_EQ(_events->status, 302);
    EXPECT_EQ(_server.requestCount("/new"), 0U);
}

TEST_F(URLSessionTest, TakesARedirectWithNoPlaceForAnAnswer) {
    HTTPServer::Response response = HTTPServer::document("nowhere");
    response.status = 301;
    _server.route("/old", response);
    fetch("/old");
    EXPECT_TRUE(_events->redirectStatuses.empty());
    EXPECT_EQ(_events->body, "nowhere");
}

TEST_F(URLSessionTest, RefusesToLeaveTheWeb) {
    _server.redirect("/old", "file:///etc/passwd");
    fetch("/old");
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::unsupportedURL);
    EXPECT_EQ(_events->body, "");
}

TEST_F(URLSessionTest, FetchesNothingButHTTP) {
    for (const char* text : {"file:///etc/passwd", "ftp://127.0.0.1/x", "gopher://127.0.0.1/x"}) {
        *_events = Events();
        fetch(*URL::make(text));
        ASSERT_TRUE(_events->error) << text;
        EXPECT_EQ(_events->error->code, URLError::Code::unsupportedURL) << text;
    }
}

TEST_F(URLSessionTest, TellsWhyNothingCame) {
    HTTPServer::Response dropped;
    dropped.fault = Fault::drop;
    _server.route("/dropped", dropped);
    fetch("/dropped");
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::connectionLost);
    EXPECT_EQ(_events->error->description, "The server closed the connection without an answer.");
}

TEST_F(URLSessionTest, FailsABodyThatIsCutOff) {
    HTTPServer::Response cut = HTTPServer::document("half and half");
    cut.fault = Fault::dropMid;
    _server.route("/cut", cut);
    fetch("/cut");
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::connectionLost);
    EXPECT_EQ(_events->body, "");
}

TEST_F(URLSessionTest, WaitsForASlowBody) {
    HTTPServer::Response slow = HTTPServer::document("first half second half");
    slow.fault = Fault::gate;
    _server.route("/slow", slow);
    begin(_server.url("/slow"));
    ASSERT_TRUE(runMainLoop([&] { return _server.requestCount("/slow") == 1; }));
    EXPECT_EQ(_events->completions, 0);
    _server.release();
    ASSERT_TRUE(runMainLoop([&] { return _events->completions == 1; }));
    EXPECT_EQ(_events->body, "first half second half");
}

TEST_F(URLSessionTest, GivesUpOnAServerThatStaysSilent) {
    HTTPServer::Response hanging;
    hanging.fault = Fault::hang;
    _server.route("/hanging", hanging);
    _configuration.timeoutForRequest = std::chrono::milliseconds(1000);
    fetch("/hanging");
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::timedOut);
}

TEST_F(URLSessionTest, CannotConnectWhereNobodyListens) {
    std::optional<URL> url;
    {
        const HTTPServer gone;
        url = gone.url("/");
    }
    fetch(*url);
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::cannotConnect);
}

TEST_F(URLSessionTest, EndsACancelledTaskOnce) {
    HTTPServer::Response hanging = HTTPServer::document("late");
    hanging.fault = Fault::hang;
    _server.route("/hanging", hanging);
    begin(_server.url("/hanging"));
    ASSERT_TRUE(runMainLoop([&] { return _server.requestCount("/hanging") == 1; }));
    _task->cancel();
    EXPECT_EQ(_events->completions, 0) << "told afterwards, never from inside the call";
    _task->cancel();
    ASSERT_TRUE(runMainLoop([&] { return _events->completions == 1; }));
    EXPECT_EQ(_events->error->code, URLError::Code::cancelled);
    _server.release();
    *_events = Events();
    fetch("/other");
    EXPECT_EQ(_events->completions, 1);
}

TEST_F(URLSessionTest, CancelsItsTasksWhenItIsInvalidated) {
    HTTPServer::Response hanging;
    hanging.fault = Fault::hang;
    _server.route("/hanging", hanging);
    begin(_server.url("/hanging"));
    const auto second = _session->dataTask(_server.url("/hanging"));
    second->resume();
    _session->invalidateAndCancel();
    ASSERT_TRUE(runMainLoop([&] { return _events->invalidations == 1; }));
    EXPECT_EQ(_events->completions, 2);
    const auto late = _session->dataTask(_server.url("/late"));
    late->resume();
    *_events = Events();
    fetch("/other");
    EXPECT_EQ(_server.requestCount("/late"), 0U);
}

TEST_F(URLSessionTest, SaysNothingMoreWhenItIsDropped) {
    HTTPServer::Response hanging;
    hanging.fault = Fault::hang;
    _server.route("/hanging", hanging);
    begin(_server.url("/hanging"));
    ASSERT_TRUE(runMainLoop([&] { return _server.requestCount("/hanging") == 1; }));
    _task.reset();
    _session.reset();
    _server.release();
    const auto others = _events;
    _events = std::make_shared<Events>();
    fetch("/other");
    EXPECT_EQ(others->completions, 0);
}

HTTPServer::Handler demanding(const std::string& expected) {
    return [expected](const HTTPServer::Request& request) {
        HTTPServer::Response response = HTTPServer::document("open");
        if (request.header("authorization") != expected) {
            response.body = "locked";
            response.status = 401;
            response.headers.emplace_back("WWW-Authenticate", "Basic realm=\"Cellar\"");
        }
        return response;
    };
}

TEST_F(URLSessionTest, AsksForACredentialAndTakesIt) {
    _server.route("/locked", demanding("Basic dXNlcjpwYXNz"));
    _events->disposition = Disposition::useCredential;
    _events->credential = URLCredential{"user", "pass"};
    fetch("/locked");
    EXPECT_EQ(_events->body, "open");
    ASSERT_EQ(_events->challenges.size(), 1U);
    EXPECT_EQ(_events->challenges[0].authenticationMethod, URLAuthenticationChallenge::Method::httpBasic);
    EXPECT_EQ(_events->challenges[0].previousFailureCount, 0);
    EXPECT_EQ(_events->challenges[0].realm, "Cellar");
    EXPECT_EQ(_events->challenges[0].host, "127.0.0.1");
}

TEST_F(URLSessionTest, CountsCredentialsThatFailed) {
    _server.route("/locked", demanding("Basic right"));
    _events->disposition = Disposition::useCredential;
    _events->credential = URLCredential{"user", "wrong"};
    begin(_server.url("/locked"));
    ASSERT_TRUE(runMainLoop([&] { return _events->challenges.size() == 2; }));
    _events->disposition = Disposition::cancelAuthenticationChallenge;
    ASSERT_TRUE(runMainLoop([&] { return _events->completions == 1; }));
    EXPECT_EQ(_events->challenges[1].previousFailureCount, 1);
}

TEST_F(URLSessionTest, EndsATaskWhoseChallengeIsCancelled) {
    _server.route("/locked", demanding("Basic right"));
    _events->disposition = Disposition::cancelAuthenticationChallenge;
    fetch("/locked");
    ASSERT_TRUE(_events->error);
    EXPECT_EQ(_events->error->code, URLError::Code::cancelled);
    EXPECT_EQ(_events->body, "");
}

TEST_F(URLSessionTest, TakesTheLockedPageWhereAChallengeIsRejected) {
    _server.route("/locked", demanding("Basic right"));
    _events->disposition = Disposition::rejectProtectionSpace;
    fetch("/locked");
    EXPECT_EQ(_events->body, "locked");
    EXPECT_EQ(_events->status, 401);
    EXPECT_FALSE(_events->error);
}

TEST_F(URLSessionTest, TakesA401WithoutAChallengeForAnAnswer) {
    HTTPServer::Response response = HTTPServer::document("no");
    response.status = 401;
    _server.route("/no", response);
    fetch("/no");
    EXPECT_TRUE(_events->challenges.empty());
    EXPECT_EQ(_events->body, "no");
}

TEST_F(URLSessionTest, KeepsConnectionsForTheNextTask) {
    _server.route("/a", HTTPServer::document("a"));
    fetch("/a");
    *_events = Events();
    fetch("/a");
    EXPECT_EQ(_server.connectionCount(), 1U);
}

TEST_F(URLSessionTest, OpensNoMoreThanItsShareOfConnectionsToOneHost) {
    _server.route("/a", HTTPServer::document("a"));
    _session = URLSession::make(_configuration, _events);
    for (int i = 0; i < 200; ++i)
        _session->dataTask(_server.url("/a"))->resume();
    ASSERT_TRUE(runMainLoop([&] { return _events->completions == 200; }));
    EXPECT_LE(_server.maximumConnectionCount(), static_cast<std::size_t>(URLSession::maximumTransfersPerHost));
}

TEST_F(URLSessionTest, LetsServersThatNeverAnswerHoldUpNobodyElse) {
    HTTPServer::Response hanging = HTTPServer::document("late");
    hanging.fault = Fault::hang;
    _server.route("/hanging", hanging);
    _server.route("/a", HTTPServer::document("a"));
    _session = URLSession::make(_configuration, _events);
    for (int i = 0; i < 2 * URLSession::maximumTransfersPerHost; ++i)
        _session->dataTask(_server.url("/hanging"))->resume();
    const auto quick = std::make_shared<Events>();
    const auto session = URLSession::make(_configuration, quick);
    for (int i = 0; i < 20; ++i)
        session->dataTask(_server.url("/a"))->resume();
    ASSERT_TRUE(runMainLoop([&] { return quick->completions == 20; }));
    EXPECT_EQ(_events->completions, 0);
    _server.release();
    ASSERT_TRUE(runMainLoop([&] { return _events->completions == 2 * URLSession::maximumTransfersPerHost; }));
    EXPECT_FALSE(_events->error) << "those that gave their places away were asked again";
}

} // namespace
} // namespace brindle
