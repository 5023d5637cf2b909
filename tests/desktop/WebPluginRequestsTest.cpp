#include "tests/desktop/WebPluginFixture.hpp"

namespace brindle::desktop {

/// What a page may ask of whom.
class WebPluginRequestsTest : public WebPluginTest {};

TEST_F(WebPluginRequestsTest, RefusesFiles) {
    showBody(
        "<img src='file:///usr/share/pixmaps/debian-logo.png' onload='document.title += \"i\"' onerror='document.title += \"refused\"'>"
        "<iframe src='file:///etc/passwd'></iframe><script>location = 'file:///etc/passwd';"
        "setTimeout(() => fetch('file:///etc/passwd').then(() => document.title = 'read', () => document.title += ' twice'), "
        "300)</script>");
    EXPECT_TRUE(waitForTitle("refused twice"));
}

TEST_F(WebPluginRequestsTest, AsksNothingOfThisMachineForAPageOfAFeed) {
    server->route("/image.png", HTTPServer::document("", "image/png"));
    const std::string origin = server->origin();
    const std::string port = origin.substr(origin.rfind(':'));
    showBody("<img src='" + origin + "/image.png'><iframe src='" + origin + "/frame'></iframe><iframe src='http://localhost" + port +
             "/frame'></iframe><iframe src='http://[::ffff:127.0.0.1]" + port +
             "/frame'></iframe><script>const socket = new WebSocket('ws://127.0.0.1" + port + "/socket'); socket.onerror = () => fetch('" +
             origin + "/data').catch(() => document.title = 'refused');</script>");
    ASSERT_TRUE(waitForTitle("refused"));
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    for (const HTTPServer::Request& request : server->requests())
        ADD_FAILURE() << request.path;
}

TEST_F(WebPluginRequestsTest, LeavesAPageOfAFeedForNoAddressOfThisMachine) {
    showBody("<script>location = '" + server->origin() + "/secret'; setTimeout(() => document.title = 'stayed', 500)</script>");
    ASSERT_TRUE(waitForTitle("stayed"));
    EXPECT_EQ(server->requestCount("/secret"), 0U);
}

TEST_F(WebPluginRequestsTest, FollowsNoRedirectOfAPageToThisMachine) {
    server->redirect("/moved", server->origin() + "/hidden");
    page->load(QUrl(QString::fromStdString(openOrigin() + "/moved")), {}, 60);
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/moved") == 1 && !progress.empty() && progress.back() == 1; }));
    EXPECT_EQ(server->requestCount("/hidden"), 0U);
}

TEST_F(WebPluginRequestsTest, AsksNothingOfAnAddressOfThisMachineUnderAnotherName) {
    showBody("<img src='" + openOrigin() + "/named.png' onerror='document.title = \"refused\"'>");
    ASSERT_TRUE(waitForTitle("refused"));
    showBody("<script>fetch('" + openOrigin() + "/fetched', {mode: 'no-cors'}).catch(() => document.title = 'refused too')</script>");
    ASSERT_TRUE(waitForTitle("refused too"));
    EXPECT_EQ(server->requestCount("/named.png"), 0U);
    EXPECT_EQ(server->requestCount("/fetched"), 0U);
}

TEST_F(WebPluginRequestsTest, OpensNoSocketToAnAddressOfThisMachineUnderAnotherName) {
    const std::string address = "ws" + openOrigin().substr(4);
    showBody("<script>new WebSocket('" + address + "/from-page').onerror = () => document.title = 'refused'</script>");
    ASSERT_TRUE(waitForTitle("refused"));
    showBody("<script>const source = `new WebSocket('" + address +
             "/from-worker').onerror = () => postMessage('refused too')`;"
             "const worker = new Worker(URL.createObjectURL(new Blob([source])));"
             "worker.onmessage = (event) => document.title = event.data</script>");
    ASSERT_TRUE(waitForTitle("refused too"));
    EXPECT_EQ(server->requestCount("/from-page"), 0U);
    EXPECT_EQ(server->requestCount("/from-worker"), 0U);
}

TEST_F(WebPluginRequestsTest, LeavesAPageOfAFeedForNoAddressOfASpecialRange) {
    std::vector<std::string> asked;
    WebPageView::Events events;
    events.allowsNavigation = [&](WebPageView::Navigation, const QUrl& url) {
        asked.push_back(url.host().toStdString());
        return url.scheme() == QLatin1String("brindle-page");
    };
    page->setEvents(std::move(events));
    for (const std::string host : {"192.0.0.8", "192.0.2.1", "198.18.0.1", "198.19.255.1", "198.51.100.1", "203.0.113.1", "240.0.0.1",
             "255.255.255.255", "[100::1]", "[2001:2::1]", "[2001:db8::1]"}) {
        asked.clear();
        showBody("<script>location = 'http://" + host + "/'; setTimeout(() => document.title = '" + host + "', 100)</script>");
        ASSERT_TRUE(waitForTitle(host));
        EXPECT_EQ(asked.size(), 1U) << host; // the page itself
    }
    asked.clear();
    showBody("<script>location = 'http://198.20.0.1/'; setTimeout(() => document.title = 'open', 100)</script>");
    ASSERT_TRUE(waitForTitle("open"));
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked.back(), "198.20.0.1");
}

TEST_F(WebPluginRequestsTest, LoadsAPageOfAPrivateNetworkThatTheProgramAskedFor) {
    server->route("/style.css", HTTPServer::document("", "text/css"));
    server->route(
        "/own", HTTPServer::document("<link rel=stylesheet href='/style.css' onload='document.title = \"styled\"'>", "text/html"));
    load("/own");
    EXPECT_TRUE(waitForTitle("styled"));
}

TEST_F(WebPluginRequestsTest, LoadsNoPageOfAPrivateNetworkForAFeedOfAnotherHost) {
    for (const char* const address :
        {"http://127.0.0.1/", "http://localhost:631/", "http://[::1]/", "http://10.1.2.3/", "http://printer/"}) {
        EXPECT_FALSE(page->load(QUrl(QString::fromLatin1(address)), QStringLiteral("example.test"), 60)) << address;
        EXPECT_FALSE(page->load(QUrl(QString::fromLatin1(address)), {}, 60)) << address;
    }
    EXPECT_EQ(started, 0);
}

TEST_F(WebPluginRequestsTest, LoadsNoPageThatIsNotOfTheWeb) {
    for (const char* const address : {"file:///etc/passwd", "data:text/html,x", "view-source:http://example.test/", "chrome://version", ""})
        EXPECT_FALSE(page->load(QUrl(QString::fromLatin1(address)), {}, 60)) << address;
}

TEST_F(WebPluginRequestsTest, FollowsNoRedirectOfAFrameToAnotherPort) {
    HTTPServer other;
    server->redirect("/inner", other.origin() + "/hidden", 302);
    server->route("/framed",
        HTTPServer::document("<iframe src='/inner'></iframe><script>setTimeout(() => document.title = 'done', 500)</script>", "text/html"));
    load("/framed");
    ASSERT_TRUE(waitForTitle("done"));
    EXPECT_EQ(server->requestCount("/inner"), 1U);
    EXPECT_EQ(other.requestCount("/hidden"), 0U);
}

TEST_F(WebPluginRequestsTest, AsksNothingOfThisMachineForAFrameThatIsInsideAPage) {
    const std::string image = "<img src='" + server->origin() + "/inner.png' onerror='parent.postMessage(1, \"*\")'>";
    showBody("<script>let told = 0; onmessage = () => document.title = 'refused ' + ++told</script>"
             "<iframe src=\"data:text/html,<img src='" +
             server->origin() + "/inner.png' onerror='parent.postMessage(1, %22*%22)'>\"></iframe><iframe srcdoc=\"<img src='" +
             server->origin() +
             "/inner.png' onerror='parent.postMessage(1, &quot;*&quot;)'>\"></iframe>"
             "<script>const inner = document.createElement('iframe');"
             "inner.src = URL.createObjectURL(new Blob([`" +
             image + "`], { type: 'text/html' })); document.body.append(inner)</script>");
    EXPECT_TRUE(waitForTitle("refused 3"));
    EXPECT_EQ(server->requestCount("/inner.png"), 0U);
}

TEST_F(WebPluginRequestsTest, SendsThisMachineNothingThatAPageLeavesBehind) {
    const std::string origin = server->origin();
    showBody("<form action='" + origin + "/form' method=post></form><script>navigator.sendBeacon('" + origin +
             "/beacon', 'x'); new EventSource('" + origin +
             "/events').onerror = () => document.title += 'e';"
             "document.forms[0].submit(); setTimeout(() => document.title += ' done', 500)</script>");
    EXPECT_TRUE(waitForTitle("e done"));
    for (const char* const path : {"/form", "/beacon", "/events"})
        EXPECT_EQ(server->requestCount(path), 0U) << path;
}

TEST_F(WebPluginRequestsTest, OffersNoCallsToAPageAndItsFrames) {
    showBody("<script>onmessage = (event) => document.title = [typeof RTCPeerConnection, typeof webkitRTCPeerConnection, event.data].join()"
             "</script><iframe srcdoc=\"<script>parent.postMessage(typeof RTCPeerConnection, '*')</script>\"></iframe>");
    EXPECT_TRUE(waitForTitle("undefined,undefined,undefined"));
}

TEST_F(WebPluginRequestsTest, HasNoSessionsThatNobodyJudges) {
    // This machine counts as safe, so it is offered whatever there is.
    server->route("/offered", HTTPServer::document(R"(<script>
        const own = [isSecureContext, typeof WebTransport, typeof navigator.serviceWorker, typeof SharedWorker];
        const source = 'postMessage([typeof WebTransport, typeof navigator.serviceWorker])';
        new Worker(URL.createObjectURL(new Blob([source]))).onmessage = (event) => document.title = own.concat(event.data).join();
    </script>)",
                                  "text/html"));
    load("/offered");
    EXPECT_TRUE(waitForTitle("true,undefined,undefined,undefined,undefined,undefined"));
}

TEST_F(WebPluginRequestsTest, LoadsNoServiceWorkerForAPageThatFindsTheWayToIt) {
    server->route("/service.js", HTTPServer::document("/* nothing */", "text/javascript"));
    server->route("/finder", HTTPServer::document(R"(<body><script>
        const frame = document.body.appendChild(document.createElement('iframe'));
        const way = Object.getOwnPropertyDescriptor(frame.contentWindow.Navigator.prototype, 'serviceWorker').get;
        way.call(navigator).register('/service.js').then(() => document.title = 'registered', () => document.title = 'refused');
    </script>)",
                                 "text/html"));
    load("/finder");
    EXPECT_TRUE(waitForTitle("refused"));
    EXPECT_EQ(server->requestCount("/service.js"), 0U);
}

TEST_F(WebPluginRequestsTest, HasNoWorkersThatBelongToNoPage) {
    const std::string address = "ws" + server->origin().substr(4);
    showBody("<script>const source = `onconnect = (event) => new WebSocket('" + address +
             "/shared').onerror = () => event.ports[0].postMessage('asked')`; try {"
             "new SharedWorker(URL.createObjectURL(new Blob([source]))).port.onmessage = (event) => document.title = event.data;"
             "} catch { document.title = 'refused' }</script>");
    EXPECT_TRUE(waitForTitle("refused"));
    EXPECT_EQ(server->requestCount("/shared"), 0U);
}

TEST_F(WebPluginRequestsTest, LeavesAPageForNoneThatItMadeItself) {
    showBody("<script>const made = URL.createObjectURL(new Blob(['<title>blob</title>'], { type: 'text/html' }));"
             "location = made; setTimeout(() => location = 'data:text/html,<title>data</title>', 200);"
             "setTimeout(() => document.title = 'stayed', 500)</script>");
    EXPECT_TRUE(waitForTitle("stayed"));
}

TEST_F(WebPluginRequestsTest, AsksNoOtherPortForAPageOfAPrivateNetwork) {
    HTTPServer other;
    server->route("/asking",
        HTTPServer::document("<img src='" + other.origin() + "/image.png' onerror='document.title = \"refused\"'>", "text/html"));
    load("/asking");
    ASSERT_TRUE(waitForTitle("refused"));
    EXPECT_EQ(other.requestCount("/image.png"), 0U);
}

} // namespace brindle::desktop
