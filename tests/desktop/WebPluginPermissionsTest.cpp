#include "tests/desktop/UrlOpener.hpp"
#include "tests/desktop/WebPluginFixture.hpp"

#include <QApplication>
#include <QDirIterator>
#include <QTemporaryDir>
#include <algorithm>

namespace brindle::desktop {

/// What a page may ask of a person.
class WebPluginPermissionsTest : public WebPluginTest {
protected:
    /// Presses a link on a page of its own, until it is asked about.
    void pressLink(const std::string& address) {
        showBody("<title>page</title><a href='" + address + "' style='position:fixed;inset:0'>link</a>");
        ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
        ASSERT_TRUE(runEventLoop([&] {
            clickCorner();
            return !links.empty();
        }));
        EXPECT_EQ(links.front(), address);
        EXPECT_TRUE(runEventLoop([&] { return page->progress() == 1; }));
        EXPECT_EQ(page->title().toStdString(), "page");
    }
    /// Whether no other window is on the screen.
    bool isAlone() const {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::none_of(windows.begin(), windows.end(), [this](const QWidget* each) { return each != &window && each->isVisible(); });
    }
};

TEST_F(WebPluginPermissionsTest, AsksAboutALinkThatAPersonPresses) {
    pressLink("https://example.test/there");
}

TEST_F(WebPluginPermissionsTest, TakesALinkForANewWindowAsAnyOther) {
    showBody("<a href='https://example.test/new' target=_blank style='position:fixed;inset:0'>link</a>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(runEventLoop([&] {
        clickCorner();
        return !links.empty();
    }));
    EXPECT_EQ(links.front(), "https://example.test/new");
}

TEST_F(WebPluginPermissionsTest, AsksAboutALinkForALetter) {
    const UrlOpener others({"mailto"});
    pressLink("mailto:ant@example.test");
    EXPECT_TRUE(others.opened.empty());
}

TEST_F(WebPluginPermissionsTest, AsksAboutALinkForAFeed) {
    const UrlOpener others({"feed"});
    pressLink("feed://example.test/feed");
    EXPECT_TRUE(others.opened.empty());
}

TEST_F(WebPluginPermissionsTest, StartsNoOtherProgram) {
    const UrlOpener others({"mailto", "tel"});
    showBody("<iframe></iframe><a href='tel:1'>tel</a><div style='position:fixed;inset:0'></div><script>onmousedown = () => {"
             "frames[0].location = 'mailto:ant@example.test'; setTimeout(() => document.links[0].click(), 50);"
             "setTimeout(() => location = 'tel:2', 100); setTimeout(() => document.title = 'done', 300) }</script>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(runEventLoop([&] {
        if (page->title().isEmpty())
            clickCorner();
        return page->title() == QLatin1String("done");
    }));
    EXPECT_TRUE(links.empty());
    EXPECT_TRUE(others.opened.empty());
}

TEST_F(WebPluginPermissionsTest, TakesAScriptForNoPerson) {
    showBody("<a href='https://example.test/' target=_blank></a><a "
             "href='https://example.test/'></a><script>window.open('https://example.test/');"
             "for (const link of document.links) link.click(); setTimeout(() => document.title = 'done', 300)</script>");
    ASSERT_TRUE(waitForTitle("done"));
    EXPECT_TRUE(links.empty());
}

TEST_F(WebPluginPermissionsTest, RefusesPopups) {
    showBody("<div style='position:fixed;inset:0' onclick='document.title = window.open(\"https://example.test/\", \"\", "
             "\"width=200,height=100\")"
             " === null ? \"refused\" : \"opened\"'></div>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(clickCornerUntilTitled());
    EXPECT_TRUE(links.empty());
    EXPECT_TRUE(isAlone());
}

TEST_F(WebPluginPermissionsTest, GrantsNoPermission) {
    server->route("/ask", HTTPServer::document("<script>navigator.geolocation.getCurrentPosition(() => document.title = 'located', () =>"
                                               " Notification.requestPermission().then((answer) => document.title = answer))</script>",
                              "text/html"));
    load("/ask");
    EXPECT_TRUE(waitForTitle("denied"));
}

TEST_F(WebPluginPermissionsTest, FillsNoScreen) {
    showBody("<div style='position:fixed;inset:0' onclick='document.documentElement.requestFullscreen().then(() => document.title = "
             "\"filled\", () => document.title = \"refused\")'></div>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(clickCornerUntilTitled());
    EXPECT_EQ(page->title().toStdString(), "refused");
}

TEST_F(WebPluginPermissionsTest, ChoosesNoFile) {
    showBody(
        "<input type=file style='position:fixed;inset:0' onclick='setTimeout(() => document.title = \"files: \" + files.length, 300)'>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_TRUE(clickCornerUntilTitled());
    EXPECT_EQ(page->title().toStdString(), "files: 0");
    EXPECT_TRUE(isAlone());
}

TEST_F(WebPluginPermissionsTest, GrantsNoRoomOnTheDisk) {
    server->route(
        "/quota", HTTPServer::document("<script>navigator.webkitPersistentStorage.requestQuota(1 << 20, (granted) => document.title ="
                                       " 'granted ' + granted, () => document.title = 'refused')</script>",
                      "text/html"));
    load("/quota");
    EXPECT_TRUE(waitForTitle("granted 0"));
}

TEST_F(WebPluginPermissionsTest, AsksForNoNameAndPassword) {
    HTTPServer::Response locked = HTTPServer::document("<title>locked</title>", "text/html");
    locked.status = 401;
    locked.headers.emplace_back("WWW-Authenticate", "Basic realm=\"page\"");
    server->route("/locked", locked);
    load("/locked");
    EXPECT_TRUE(waitForTitle("locked"));
    EXPECT_TRUE(isAlone());
}

TEST_F(WebPluginPermissionsTest, ShowsNoDialogOfAPage) {
    showBody("<script>alert('a'); document.title = confirm('b') + ' ' + prompt('c')</script>");
    EXPECT_TRUE(waitForTitle("false null"));
}

TEST_F(WebPluginPermissionsTest, DownloadsNothing) {
    const QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    HTTPServer::Response file = HTTPServer::document("bytes", "application/octet-stream");
    file.headers.emplace_back("Content-Disposition", "attachment; filename=file.bin");
    server->route("/file", file);
    server->route("/page",
        HTTPServer::document("<iframe src='/file'></iframe><script>setTimeout(() => document.title = 'done', 500)</script>", "text/html"));
    load("/page");
    ASSERT_TRUE(waitForTitle("done"));
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/file") == 1; }));
    QDirIterator files(home.path(), {QStringLiteral("file.bin*")}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_FALSE(files.hasNext());
}

TEST_F(WebPluginPermissionsTest, KeepsNothingBetweenPages) {
    server->route("/own", HTTPServer::document("<script>document.title = document.cookie + localStorage.getItem('a');"
                                               "document.cookie = 'a=1; max-age=9999'</script>",
                              "text/html"));
    showBody("<script>try { localStorage.setItem('a', 1); } catch { } document.title = 'set'</script>");
    ASSERT_TRUE(waitForTitle("set"));
    showBody("<script>let kept = null; try { kept = localStorage.getItem('a'); } catch { } document.title = kept</script>");
    EXPECT_TRUE(waitForTitle("null"));
}

} // namespace brindle::desktop
