#include "desktop/system/ColorScheme.hpp"
#include "tests/desktop/PageProcesses.hpp"
#include "tests/desktop/WebPluginFixture.hpp"
#include "tests/support/Folders.hpp"

#include <QApplication>
#include <fstream>
#include <iterator>

namespace brindle::desktop {

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

TEST_F(WebPluginTest, TellsOfADeadProcessAndLoadsThePageAgain) {
    showBody("<title>alive</title>");
    ASSERT_TRUE(runEventLoop([&] { return finished == 1; }));
    ASSERT_GT(killPageProcesses(), 0U);
    ASSERT_TRUE(runEventLoop([&] { return terminated == 1; }));
    page->reload();
    EXPECT_TRUE(runEventLoop([&] { return finished == 2; }));
    EXPECT_EQ(page->title().toStdString(), "alive");
}

TEST_F(WebPluginTest, IsOnItsWayNoLongerWhenItsProcessIsDead) {
    server->route("/never.png", silence("image/png"));
    server->route("/dying", HTTPServer::document("<img src='/never.png'>", "text/html"));
    load("/dying");
    ASSERT_TRUE(runEventLoop([&] { return server->requestCount("/never.png") == 1; }));
    ASSERT_GT(killPageProcesses(), 0U);
    ASSERT_TRUE(runEventLoop([&] { return terminated == 1; }));
    EXPECT_EQ(progressAtEnd, 1);
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
    server->route("/slow.png", silence("image/png"));
    server->route("/slow", HTTPServer::document("<title>read</title><img src='/slow.png'>", "text/html"));
    load("/slow");
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
    load("/original");
    ASSERT_TRUE(waitForTitle("original"));
    page->goBack();
    ASSERT_TRUE(waitForTitle("article"));
    page->goForward();
    EXPECT_TRUE(waitForTitle("original"));
}

TEST_F(WebPluginTest, GoesBackAndForward) {
    server->route("/first", HTTPServer::document("<title>first</title>", "text/html"));
    server->route("/second", HTTPServer::document("<title>second</title>", "text/html"));
    load("/first");
    ASSERT_TRUE(waitForTitle("first"));
    EXPECT_FALSE(page->canGoBack());
    load("/second");
    ASSERT_TRUE(waitForTitle("second"));
    EXPECT_TRUE(page->canGoBack());
    page->goBack();
    ASSERT_TRUE(waitForTitle("first"));
    EXPECT_TRUE(page->canGoForward());
}

TEST_F(WebPluginTest, GivesUpAfterTheTime) {
    server->route("/silent", silence("text/html"));
    load("/silent", 0.2);
    EXPECT_TRUE(runEventLoop([&] { return started == 1 && !progress.empty() && progress.back() == 1; }));
    EXPECT_EQ(finished, 0);
}

TEST_F(WebPluginTest, FollowsTheColorsOfTheProgramAndKeepsItsPlace) {
    std::ifstream file(testsupport::sourceFolder() + "/resources/feed_article.html");
    std::string html(std::istreambuf_iterator<char>(file), {});
    const std::string place = "<%content%>";
    html.replace(html.find(place), place.size(), R"(<div style='height: 3000px'></div><script>
        scrollTo({ top: 500, behavior: 'instant' });
        const tell = () => document.title = getComputedStyle(document.documentElement).backgroundColor + ' ' + scrollY;
        new MutationObserver(tell).observe(document.documentElement, { attributes: true });
        tell();
    </script>)");
    const QPalette before = QApplication::palette();
    page->setHtml(QByteArray::fromStdString(html));
    EXPECT_TRUE(waitForTitle("rgb(255, 255, 255) 500"));
    QApplication::setPalette(ColorScheme::darkPalette());
    EXPECT_TRUE(waitForTitle("rgb(28, 28, 30) 500"));
    page->setHtml(QByteArray::fromStdString(html));
    EXPECT_TRUE(runEventLoop([&] { return finished == 2; }));
    EXPECT_TRUE(waitForTitle("rgb(28, 28, 30) 500"));
    QApplication::setPalette(before);
    EXPECT_TRUE(waitForTitle("rgb(255, 255, 255) 500"));
    EXPECT_EQ(started, 2);
}

TEST_F(WebPluginTest, GoesBackToAnOriginalOfAPrivateNetwork) {
    server->route("/original", HTTPServer::document("<title>original</title>", "text/html"));
    ASSERT_TRUE(load("/original"));
    ASSERT_TRUE(waitForTitle("original"));
    showBody("<title>article</title>");
    ASSERT_TRUE(waitForTitle("article"));
    page->goBack();
    EXPECT_TRUE(waitForTitle("original"));
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
