#include "desktop/windows/ArticleWebView.hpp"
#include "tests/desktop/EventLoop.hpp"
#include "tests/desktop/PageProcesses.hpp"
#include "tests/desktop/WebEngine.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <vector>

namespace brindle::desktop {

namespace {

/// Opens no link, and counts.
class Delegate : public WebViewDelegate {
public:
    NavigationPolicy decidePolicy(const NavigationAction& action) override {
        if (action.type != NavigationAction::Type::linkActivated)
            return NavigationPolicy::allow;
        links.push_back(action.url ? action.url->absoluteString() : "");
        return NavigationPolicy::cancel;
    }
    void didStartProvisionalNavigation() override {}
    void didFinishNavigation() override { ++finished; }
    void estimatedProgressDidChange() override { ++progressed; }
    void titleDidChange() override {}

    std::vector<std::string> links;
    int finished = 0, progressed = 0;
};

} // namespace

class ArticleWebViewTest : public testing::Test {
protected:
    ArticleWebViewTest() {
        place.resize(300, 200);
        new QVBoxLayout(&place);
    }

    /// A view whose plugin is not installed.
    ArticleWebView& plain() { return make(std::make_shared<WebPluginLoader>(folder / "none.so")); }
    ArticleWebView& make(const std::shared_ptr<WebPluginLoader>& loader) {
        view = std::make_unique<ArticleWebView>(&place, loader);
        view->setDelegate(delegate);
        place.show();
        return *view;
    }

    TemporaryFolder folder;
    QWidget place;
    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
    std::unique_ptr<ArticleWebView> view;
};

TEST_F(ArticleWebViewTest, LoadsNoEngineForAnEmptyPage) {
    const auto loader = std::make_shared<WebPluginLoader>(WebPluginLoader::standardFile());
    make(loader).loadHTMLString("", std::nullopt);
    EXPECT_FALSE(loader->isLoaded());
}

TEST_F(ArticleWebViewTest, ShowsTheTextOfAPageWithoutThePlugin) {
    plain().loadHTMLString("<p>An <b>ant</b></p><img src='file:///usr/share/pixmaps/x.png'>", std::nullopt);
    ASSERT_NE(view->textBrowser(), nullptr);
    EXPECT_EQ(view->textBrowser()->toPlainText().toStdString().find("An ant"), 0U);
    EXPECT_EQ(view->estimatedProgress(), 1);
    EXPECT_EQ(delegate->finished, 1);
    EXPECT_EQ(delegate->progressed, 1);
}

TEST_F(ArticleWebViewTest, AsksAboutALinkInATextAndStays) {
    plain().loadHTMLString("<a href='https://example.test/'>there</a>", std::nullopt);
    QTextBrowser& text = *view->textBrowser();
    QCoreApplication::processEvents(); // lays the text out
    const QPoint inside = text.cursorRect(text.cursorForPosition({0, 0})).center() + QPoint(10, 0);
    ASSERT_NE(text.anchorAt(inside), QString());
    QTest::mouseClick(text.viewport(), Qt::LeftButton, {}, inside);
    EXPECT_EQ(delegate->links, std::vector<std::string>{"https://example.test/"});
    EXPECT_EQ(text.toPlainText().toStdString(), "there");
}

TEST_F(ArticleWebViewTest, TellsTheBracketsOfAnAddressInTheirStrictForm) {
    plain().loadHTMLString("<a href='https://[::1]/a[1]?b[]=2#[c]'>there</a>", std::nullopt);
    emit view->textBrowser()->anchorClicked(QUrl(QStringLiteral("https://[::1]/a[1]?b[]=2#[c]")));
    EXPECT_EQ(delegate->links, std::vector<std::string>{"https://[::1]/a%5B1%5D?b%5B%5D=2#%5Bc%5D"});
}

TEST_F(ArticleWebViewTest, ShowsTheBeginningOfATextThatIsTooLong) {
    std::string text;
    for (int i = 0; i < 100'000; ++i)
        text += "<p>word word";
    plain().loadHTMLString(text, std::nullopt);
    const qsizetype shown = view->textBrowser()->toPlainText().size();
    EXPECT_GT(shown, 100'000);
    EXPECT_LE(shown, 200'000);
}

TEST_F(ArticleWebViewTest, OffersTheAddressOfAPageThatItCannotShow) {
    plain().load({URL::make("https://example.test/?a=1&b=2").value()});
    const std::string text = view->textBrowser()->toPlainText().toStdString();
    EXPECT_NE(text.find("The original page can't be shown here."), std::string::npos);
    EXPECT_NE(text.find("https://example.test/?a=1&b=2"), std::string::npos);
}

TEST_F(ArticleWebViewTest, OffersTheAddressOfAPageOfAPrivateNetwork) {
    make(WebEngine::start()).setFeedHost([] { return QStringLiteral("example.test"); });
    HTTPServer server;
    server.route("/page", HTTPServer::document("<title>private</title>", "text/html"));
    view->load({server.url("/page")});
    EXPECT_TRUE(runEventLoop([&] { return delegate->finished == 1; }));
    EXPECT_EQ(server.requestCount("/page"), 0U);
    view->setFeedHost([] { return QStringLiteral("127.0.0.1"); });
    view->load({server.url("/page")});
    EXPECT_TRUE(runEventLoop([&] { return view->title() == "private"; }));
}

TEST_F(ArticleWebViewTest, OffersToReloadWhenTheProcessOfAPageDies) {
    make(WebEngine::start()).loadHTMLString("<title>alive</title>", std::nullopt);
    ASSERT_TRUE(runEventLoop([&] { return delegate->finished == 1; }));
    ASSERT_GT(killPageProcesses(), 0U);
    QPushButton* reload = nullptr;
    ASSERT_TRUE(runEventLoop([&] { return (reload = place.findChild<QPushButton*>()) && reload->isVisible(); }));
    EXPECT_EQ(reload->text().toStdString(), "Reload");
    QTest::mouseClick(reload, Qt::LeftButton);
    ASSERT_TRUE(runEventLoop([&] { return delegate->finished == 2; }));
    EXPECT_FALSE(reload->isVisible());
    EXPECT_EQ(view->title(), "alive");
}

} // namespace brindle::desktop
