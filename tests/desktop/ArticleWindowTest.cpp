#include "desktop/windows/ArticleWindow.hpp"

#include "desktop/windows/QtWindowFactory.hpp"
#include "tests/browser/BrowserFixture.hpp"
#include "tests/desktop/EventLoop.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace brindle::desktop {

namespace {

class ArticleWindowTest : public BrowserTest {
protected:
    std::shared_ptr<ArticleWindow> show(const std::shared_ptr<FeedItemArticle>& article) {
        const auto window = ArticleWindow::make(windows, std::make_shared<WebPluginLoader>(folder / "none.so"), environment, article);
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window->window().widget()));
        return window;
    }

    WindowEnvironment windows = {defaults, {}};
    std::shared_ptr<FeedItem> item = add(makeItem("Alpha", {"one"}));
};

TEST_F(ArticleWindowTest, HasTheTitleOfItsArticle) {
    const auto window = show(item->articles().front());
    EXPECT_EQ(window->window().widget().windowTitle(), "one");
}

TEST_F(ArticleWindowTest, ShowsNoButtonsForNavigation) {
    const auto window = show(item->articles().front());
    for (const auto* button : window->window().widget().findChildren<QAbstractButton*>()) {
        const bool navigates = button->accessibleName() == "Back" || button->accessibleName() == "Forward";
        EXPECT_FALSE(navigates && button->isVisible());
    }
}

TEST_F(ArticleWindowTest, KeepsItsArticleWhenTheFeedHasOthers) {
    const auto window = show(item->articles().front());
    const std::weak_ptr<FeedItemArticle> article = item->articles().front();
    parse(*item, {"two"});
    EXPECT_FALSE(article.expired());
}

TEST_F(ArticleWindowTest, EscapeClosesItAndItsEndIsToldLater) {
    auto window = show(item->articles().front());
    bool isTold = false;
    window->onClose = [&] {
        isTold = true;
        window.reset();
    };
    QTest::keyClick(&window->window().widget(), Qt::Key_Escape);
    EXPECT_FALSE(window->window().isVisible());
    EXPECT_TRUE(runEventLoop([&] { return isTold; }));
}

TEST_F(ArticleWindowTest, ASecondOneStandsBesideTheFirst) {
    QtWindowFactory factory(windows, alerts, std::make_shared<StatusMenu>(), std::make_shared<WebPluginLoader>(folder / "none.so"));
    defaults->set("NSWindow Frame ArticleWindow", std::string("100 100 400 300"));
    std::vector<QWidget*> shown;
    for (int i = 0; i < 2; ++i) {
        factory.showArticleWindow(environment, item->articles().front());
        ASSERT_TRUE(runEventLoop([] { return QApplication::activeWindow() != nullptr; }));
    }
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (each->isVisible() && each->windowTitle() == "one")
            shown.push_back(each);
    }
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ((shown[0]->pos() - shown[1]->pos()).manhattanLength(), 48);
    EXPECT_EQ(shown[0]->size(), shown[1]->size());
}

} // namespace

} // namespace brindle::desktop
