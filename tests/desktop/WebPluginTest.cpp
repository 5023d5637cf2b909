#include "desktop/toolkit/WebPluginInterface.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PageProcesses.hpp"
#include "tests/desktop/WebEngine.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QApplication>
#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace brindle::desktop {

/// Pages report what became of them by their title. "open.test" is a host of the open network.
class WebPluginTest : public testing::Test {
protected:
    static void SetUpTestSuite() { server = new HTTPServer(); }
    static void TearDownTestSuite() {
        delete server;
        server = nullptr;
    }

    void SetUp() override {
        WebPluginInterface* const plugin = WebEngine::start()->plugin();
        ASSERT_NE(plugin, nullptr);
        window.resize(400, 300);
        auto* const column = new QVBoxLayout(&window);
        column->setContentsMargins(0, 0, 0, 0);
        page.reset(plugin->makePageView(&window));
        column->addWidget(page->widget());
        WebPageView::Events events;
        events.allowsNavigation = [this](WebPageView::Navigation type, const QUrl& url) {
            if (type != WebPageView::Navigation::linkActivated)
                return true;
            links.push_back(url.toString().toStdString());
            return false;
        };
        events.didStart = [this] { ++started; };
        events.didFinish = [this] { ++finished; };
        events.progressDidChange = [this] { progress.push_back(page->progress()); };
        events.titleDidChange = [this] { titles.push_back(page->title().toStdString()); };
        events.processDidTerminate = [this] { ++terminated; };
        page->setEvents(std::move(events));
        window.show();
    }

    /// "http://open.test:PORT".
    static std::string openOrigin() {
        const std::string origin = server->origin();
        return "http://open.test" + origin.substr(origin.rfind(':'));
    }

    void showBody(const std::string& body) { page->setHtml(QByteArray::fromStdString("<!DOCTYPE html><html><body>" + body)); }
    bool waitForTitle(const std::string& title) {
        const bool isThere = runEventLoop([&] { return page->title().toStdString() == title; });
        EXPECT_TRUE(isThere) << "title: " << page->title().toStdString();
        return isThere;
    }
    /// Presses what is in the page's upper left corner.
    void clickCorner() {
        QWidget* const inner = page->widget()->focusProxy();
        ASSERT_NE(inner, nullptr);
        QTest::mouseClick(inner, Qt::LeftButton, {}, QPoint(20, 20));
    }

    static HTTPServer* server;
    QWidget window;
    std::unique_ptr<WebPageView> page;
    std::vector<std::string> links, titles;
    std::vector<double> progress;
    int started = 0, finished = 0, terminated = 0;
};

HTTPServer* WebPluginTest::server = nullptr;

TEST_F(WebPluginTest, TellsStartProgressTitleAndEnd) {
    showBody("<title>Hello</title>");
    ASSERT_TRUE(waitForTitle("Hello"));
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    EXPECT_EQ(started, 1);
    ASSERT_FALSE(progress.empty());
    EXPECT_EQ(progress.front(), 0);
    EXPECT_EQ(progress.back(), 1);
}

TEST_F(WebPluginTest, HasNoTitleForAPageWithoutOne) {
    showBody("text");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    EXPECT_EQ(page->title().toStdString(), "");
}

TEST_F(WebPluginTest, ShowsAPageOfMoreThanTwoMegabytes) {
    showBody("<p>" + std::string(3 << 20, 'x') + "</p><script>document.title = document.querySelector('p').textContent.length</script>");
    EXPECT_TRUE(waitForTitle("3145728"));
}

TEST_F(WebPluginTest, RefusesFiles) {
    showBody(
        "<img src='file:///usr/share/pixmaps/debian-logo.png' onload='document.title += \"i\"' onerror='document.title += \"refused\"'>"
        "<iframe src='file:///etc/passwd'></iframe><script>location = 'file:///etc/passwd';"
        "setTimeout(() => fetch('file:///etc/passwd').then(() => document.title = 'read', () => document.title += ' twice'), "
        "300)</script>");
    EXPECT_TRUE(waitForTitle("refused twice"));
}

TEST_F(WebPluginTest, AsksNothingOfThisMachineForAPageOfAFeed) {
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

TEST_F(WebPluginTest, LeavesAPageOfAFeedForNoAddressOfThisMachine) {
    showBody("<script>location = '" + server->origin() + "/secret'; setTimeout(() => document.title = 'stayed', 500)</script>");
    ASSERT_TRUE(waitForTitle("stayed"));
    EXPECT_EQ(server->requestCount("/secret"), 0U);
}

TEST_F(WebPluginTest, FollowsNoRedirectOfAPageToThisMachine) {
    server->redirect("/moved", server->origin() + "/hidden");
    page->load(QUrl(QString::fromStdString(openOrigin() + "/moved")), 60);
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/moved") == 1 && !progress.empty() && progress.back() == 1; }));
    EXPECT_EQ(server->requestCount("/hidden"), 0U);
}

TEST_F(WebPluginTest, AsksNothingOfAnAddressOfThisMachineUnderAnotherName) {
    showBody("<img src='" + openOrigin() + "/named.png' onerror='document.title = \"refused\"'>");
    ASSERT_TRUE(waitForTitle("refused"));
    showBody("<script>fetch('" + openOrigin() + "/fetched', {mode: 'no-cors'}).catch(() => document.title = 'refused too')</script>");
    ASSERT_TRUE(waitForTitle("refused too"));
    EXPECT_EQ(server->requestCount("/named.png"), 0U);
    EXPECT_EQ(server->requestCount("/fetched"), 0U);
}

TEST_F(WebPluginTest, OpensNoSocketToAnAddressOfThisMachineUnderAnotherName) {
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

TEST_F(WebPluginTest, LeavesAPageOfAFeedForNoAddressOfASpecialRange) {
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

TEST_F(WebPluginTest, LoadsAPageOfAPrivateNetworkThatTheProgramAskedFor) {
    server->route("/style.css", HTTPServer::document("", "text/css"));
    server->route(
        "/own", HTTPServer::document("<link rel=stylesheet href='/style.css' onload='document.title = \"styled\"'>", "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/own")), 60);
    EXPECT_TRUE(waitForTitle("styled"));
}

TEST_F(WebPluginTest, AsksNoOtherPortForAPageOfAPrivateNetwork) {
    HTTPServer other;
    server->route("/asking",
        HTTPServer::document("<img src='" + other.origin() + "/image.png' onerror='document.title = \"refused\"'>", "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/asking")), 60);
    ASSERT_TRUE(waitForTitle("refused"));
    EXPECT_EQ(other.requestCount("/image.png"), 0U);
}

TEST_F(WebPluginTest, AsksAboutALinkThatAPersonPresses) {
    showBody("<title>page</title><a href='https://example.test/there' style='position:fixed;inset:0'>link</a>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(runEventLoop([&] {
        clickCorner();
        return !links.empty();
    }));
    EXPECT_EQ(links.front(), "https://example.test/there");
    EXPECT_EQ(page->title().toStdString(), "page");
    EXPECT_EQ(page->progress(), 1);
}

TEST_F(WebPluginTest, TakesALinkForANewWindowAsAnyOther) {
    showBody("<a href='https://example.test/new' target=_blank style='position:fixed;inset:0'>link</a>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(runEventLoop([&] {
        clickCorner();
        return !links.empty();
    }));
    EXPECT_EQ(links.front(), "https://example.test/new");
}

TEST_F(WebPluginTest, TakesAScriptForNoPerson) {
    showBody("<a href='https://example.test/' target=_blank></a><a "
             "href='https://example.test/'></a><script>window.open('https://example.test/');"
             "for (const link of document.links) link.click(); setTimeout(() => document.title = 'done', 300)</script>");
    ASSERT_TRUE(waitForTitle("done"));
    EXPECT_TRUE(links.empty());
}

TEST_F(WebPluginTest, RefusesPopups) {
    showBody("<div style='position:fixed;inset:0' onclick='document.title = window.open(\"https://example.test/\", \"\", "
             "\"width=200,height=100\")"
             " === null ? \"refused\" : \"opened\"'></div>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(runEventLoop([&] {
        clickCorner();
        return !page->title().isEmpty();
    }));
    EXPECT_TRUE(links.empty());
    for (QWidget* const each : QApplication::topLevelWidgets())
        EXPECT_TRUE(each == &window || !each->isVisible());
}

TEST_F(WebPluginTest, GrantsNoPermission) {
    server->route("/ask", HTTPServer::document("<script>navigator.geolocation.getCurrentPosition(() => document.title = 'located', () =>"
                                               " Notification.requestPermission().then((answer) => document.title = answer))</script>",
                              "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/ask")), 60);
    EXPECT_TRUE(waitForTitle("denied"));
}

TEST_F(WebPluginTest, ShowsNoDialogOfAPage) {
    showBody("<script>alert('a'); document.title = confirm('b') + ' ' + prompt('c')</script>");
    EXPECT_TRUE(waitForTitle("false null"));
}

TEST_F(WebPluginTest, DownloadsNothing) {
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    HTTPServer::Response file = HTTPServer::document("bytes", "application/octet-stream");
    file.headers.emplace_back("Content-Disposition", "attachment; filename=file.bin");
    server->route("/file", file);
    server->route("/page",
        HTTPServer::document("<iframe src='/file'></iframe><script>setTimeout(() => document.title = 'done', 500)</script>", "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/page")), 60);
    ASSERT_TRUE(waitForTitle("done"));
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/file") == 1; }));
    QDirIterator files(home.path(), {QStringLiteral("file.bin*")}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_FALSE(files.hasNext());
}

TEST_F(WebPluginTest, KeepsNothingBetweenPages) {
    server->route("/own", HTTPServer::document("<script>document.title = document.cookie + localStorage.getItem('a');"
                                               "document.cookie = 'a=1; max-age=9999'</script>",
                              "text/html"));
    showBody("<script>try { localStorage.setItem('a', 1); } catch { } document.title = 'set'</script>");
    ASSERT_TRUE(waitForTitle("set"));
    showBody("<script>let kept = null; try { kept = localStorage.getItem('a'); } catch { } document.title = kept</script>");
    EXPECT_TRUE(waitForTitle("null"));
}

TEST_F(WebPluginTest, TellsOfADeadProcessAndLoadsThePageAgain) {
    showBody("<title>alive</title>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_GT(killPageProcesses(), 0U);
    ASSERT_TRUE(runEventLoop([&] { return terminated == 1; }));
    page->reload();
    EXPECT_TRUE(runEventLoop([&] { return finished == 2; }));
    EXPECT_EQ(page->title().toStdString(), "alive");
}

TEST_F(WebPluginTest, ScrollsByPagesUntilTheEnd) {
    showBody("<div style='height:500px'>tall</div>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    int steps = 0;
    bool wasAtEnd = false;
    while (!wasAtEnd && steps < 10) {
        bool hasAnswered = false;
        page->scrollPage(true, [&](bool end) {
            wasAtEnd = end;
            hasAnswered = true;
        });
        ASSERT_TRUE(runEventLoop([&] { return hasAnswered; }));
        ++steps;
    }
    EXPECT_EQ(steps, 2);
}

TEST_F(WebPluginTest, IsNotAtItsEndBeforeThePageIsThere) {
    showBody("short");
    bool hasAnswered = false, wasAtEnd = true;
    page->scrollPage(true, [&](bool end) {
        wasAtEnd = end;
        hasAnswered = true;
    });
    ASSERT_TRUE(runEventLoop([&] { return hasAnswered; }));
    EXPECT_FALSE(wasAtEnd);
}

TEST_F(WebPluginTest, ScrollsAPageWhoseImagesAreOnTheirWay) {
    HTTPServer::Response silent = HTTPServer::document("", "image/png");
    silent.fault = HTTPServer::Response::Fault::hang;
    server->route("/slow.png", silent);
    server->route("/slow", HTTPServer::document("<title>read</title><img src='/slow.png'>", "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/slow")), 60);
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/slow.png") == 1; }));
    bool wasAtEnd = false;
    EXPECT_TRUE(runEventLoop([&] {
        page->scrollPage(true, [&](bool end) { wasAtEnd = wasAtEnd || end; });
        return wasAtEnd;
    }));
    EXPECT_EQ(finished, 0);
}

TEST_F(WebPluginTest, TellsNothingOfAScrollOnceItIsGone) {
    showBody("short");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    int answers = 0;
    page->scrollPage(true, [&](bool) { ++answers; });
    QWidget* const widget = page->widget();
    page.reset();
    delete widget;
    EXPECT_EQ(answers, 0);
}

TEST_F(WebPluginTest, GoesBackToAPageOfAFeedFromItsOriginal) {
    server->route("/original", HTTPServer::document("<title>original</title>", "text/html"));
    showBody("<title>article</title>");
    ASSERT_TRUE(waitForTitle("article"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/original")), 60);
    ASSERT_TRUE(waitForTitle("original"));
    page->goBack();
    ASSERT_TRUE(waitForTitle("article"));
    page->goForward();
    EXPECT_TRUE(waitForTitle("original"));
}

TEST_F(WebPluginTest, GoesBackAndForward) {
    server->route("/first", HTTPServer::document("<title>first</title>", "text/html"));
    server->route("/second", HTTPServer::document("<title>second</title>", "text/html"));
    page->load(QUrl(QString::fromStdString(server->origin() + "/first")), 60);
    ASSERT_TRUE(waitForTitle("first"));
    EXPECT_FALSE(page->canGoBack());
    page->load(QUrl(QString::fromStdString(server->origin() + "/second")), 60);
    ASSERT_TRUE(waitForTitle("second"));
    EXPECT_TRUE(page->canGoBack());
    page->goBack();
    ASSERT_TRUE(waitForTitle("first"));
    EXPECT_TRUE(page->canGoForward());
}

TEST_F(WebPluginTest, GivesUpAfterTheTime) {
    HTTPServer::Response silent = HTTPServer::document("", "text/html");
    silent.fault = HTTPServer::Response::Fault::hang;
    server->route("/silent", silent);
    page->load(QUrl(QString::fromStdString(server->origin() + "/silent")), 0.2);
    EXPECT_TRUE(runEventLoop([&] { return started == 1 && !progress.empty() && progress.back() == 1; }));
    EXPECT_EQ(finished, 0);
}

TEST_F(WebPluginTest, ShowsPagesByLightOnALightDesktop) {
    showBody("<script>document.title = matchMedia('(prefers-color-scheme: dark)').matches</script>");
    EXPECT_TRUE(waitForTitle("false"));
}

/// The engine asks for the colours when it starts, so this one needs a process of its own.
class WebPluginDarkTest : public WebPluginTest {
protected:
    void SetUp() override {
        if (WebEngine::isStarted())
            GTEST_SKIP() << "the engine was started by another test";
        QPalette dark;
        dark.setColor(QPalette::Window, Qt::black);
        dark.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(dark);
        WebPluginTest::SetUp();
    }
};

TEST_F(WebPluginDarkTest, ShowsPagesByDarkOnADarkDesktop) {
    showBody("<script>document.title = matchMedia('(prefers-color-scheme: dark)').matches</script>");
    EXPECT_TRUE(waitForTitle("true"));
}

} // namespace brindle::desktop
