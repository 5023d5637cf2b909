#include "desktop/windows/ArticlePane.hpp"

#include "tests/desktop/BrowserWindowFixture.hpp"
#include "tests/desktop/WebEngine.hpp"
#include "tests/support/HTTPServer.hpp"

#include <QProgressBar>
#include <QTextBrowser>

namespace brindle::desktop {

namespace {

using ::testing::ElementsAre;

/// The article in the browser's window.
class ArticlePaneTest : public BrowserWindowTest {
protected:
    /// Shows an article of a feed with that address, which has another one for its original page.
    void show(const std::string& feedAddress, const URL& original, bool withEngine = true) {
        item = add(FeedItem::make("Alpha", URL::make(feedAddress).value(), FeedItem::defaultUpdateRate, {}, {}, manager->environment()));
        parse(*item, {"one"});
        item->articles().front()->entry->links.front().url = original;
        if (withEngine)
            BrowserWindowTest::show(WebEngine::start());
        else
            BrowserWindowTest::show();
        select(item);
        made.window->articlesView()->selectRow(0);
    }
    std::string pageTitle() const { return made.window->articlePane().container()->shown()->title(); }
    QProgressBar& progress() const { return *made.window->articlePane().findChild<QProgressBar*>(); }
    void chooseAction(const std::string& name) const {
        const QToolButton& actions = button<QToolButton>("Article actions");
        for (std::size_t i = 0; const std::string& text : menuTexts(actions)) {
            if (text == name)
                return actions.menu()->actions()[static_cast<qsizetype>(i)]->trigger();
            ++i;
        }
        throw std::runtime_error("no action " + name);
    }

    HTTPServer server;
    std::shared_ptr<FeedItem> item;
};

TEST_F(ArticlePaneTest, GoesBackFromTheOriginalAndForwardAgain) {
    server.route("/original", HTTPServer::document("<title>original</title>", "text/html"));
    show(server.origin() + "/feed", server.url("/original"));
    ASSERT_TRUE(runEventLoop([&] { return pageTitle() == "one"; }));
    QToolButton& back = button<QToolButton>("Back");
    QToolButton& forward = button<QToolButton>("Forward");
    EXPECT_FALSE(back.isEnabled());
    chooseAction("Show Original");
    ASSERT_TRUE(runEventLoop([&] { return pageTitle() == "original" && back.isEnabled(); }));
    EXPECT_FALSE(forward.isEnabled());
    back.click();
    ASSERT_TRUE(runEventLoop([&] { return pageTitle() == "one" && forward.isEnabled(); }));
    EXPECT_FALSE(back.isEnabled());
    forward.click();
    EXPECT_TRUE(runEventLoop([&] { return pageTitle() == "original" && back.isEnabled(); }));
}

TEST_F(ArticlePaneTest, ShowsALineWhileAPageIsOnItsWay) {
    HTTPServer::Response slow = HTTPServer::document("<title>original</title>", "text/html");
    slow.fault = HTTPServer::Response::Fault::hang;
    server.route("/original", slow);
    show(server.origin() + "/feed", server.url("/original"));
    ASSERT_TRUE(runEventLoop([&] { return pageTitle() == "one" && !progress().isVisible(); }));
    chooseAction("Show Original");
    EXPECT_TRUE(runEventLoop([&] { return server.requestCount("/original") == 1 && progress().isVisible(); }));
    server.release();
    EXPECT_TRUE(runEventLoop([&] { return pageTitle() == "original" && !progress().isVisible(); }));
}

TEST_F(ArticlePaneTest, ShowsNoOriginalOfThisMachineForAFeedFromElsewhere) {
    server.route("/original", HTTPServer::document("<title>original</title>", "text/html"));
    set(preference::showOriginalArticle, true);
    show("http://example.test/feed", server.url("/original"));
    EXPECT_TRUE(runEventLoop([&] { return !progress().isVisible() && article().progressIndicator.doubleValue() == 100; }));
    EXPECT_EQ(server.requestCount("/original"), 0U);
    EXPECT_EQ(pageTitle(), "");
}

TEST_F(ArticlePaneTest, SaysThatAnOriginalCannotBeShown) {
    set(preference::showOriginalArticle, true);
    show("http://example.test/feed", URL::make("http://[::1]/original").value(), false);
    const QTextBrowser* const text = made.window->articlePane().container()->shown()->textBrowser();
    EXPECT_EQ(text->toPlainText().toStdString(), "The original page can't be shown here.\nhttp://[::1]/original");
}

TEST_F(ArticlePaneTest, KeepsTheArticleAndLetsItGo) {
    show("http://example.test/feed", URL::make("http://example.test/one").value(), false);
    QAbstractButton& keep = button("Keep Article");
    keep.click();
    EXPECT_TRUE(saved->isSaved(*item->articles().front()));
    EXPECT_EQ(keep.text(), "Don't Keep Article");
    keep.click();
    EXPECT_FALSE(saved->isSaved(*item->articles().front()));
    EXPECT_EQ(keep.text(), "Keep Article");
}

TEST_F(ArticlePaneTest, OffersWhatCanBeDoneWithTheArticle) {
    show("http://example.test/feed", URL::make("http://example.test/one").value(), false);
    EXPECT_THAT(menuTexts(button<QToolButton>("Article actions")), ElementsAre("Show Original", "Open in Web Browser", "Keep Article"));
    takeCalls();
    chooseAction("Open in Web Browser");
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://example.test/one"));
    chooseAction("Keep Article");
    EXPECT_TRUE(saved->isSaved(*item->articles().front()));
    chooseAction("Show Original");
    EXPECT_TRUE(defaults->boolForKey(preference::showOriginalArticle));
    EXPECT_EQ(menuTexts(button<QToolButton>("Article actions")).back(), "Don't Keep Article");
}

} // namespace

} // namespace brindle::desktop
