#include "Brindle/browser/FeedsBrowserArticleViewController.hpp"
#include "Brindle/browser/BrowserActions.hpp"
#include "tests/browser/BrowserFixture.hpp"
#include "tests/fakes/WebViewFake.hpp"

#include <fstream>

namespace brindle {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class FeedsBrowserArticleViewControllerTest : public BrowserTest {
protected:
    FeedsBrowserArticleViewControllerTest() {
        writeTemplate("<h1><%title%></h1><%content%>");
        controller->viewDidLoad();
        takeCalls();
    }

    void writeTemplate(std::string_view text) const { std::ofstream(folder / "feed_article.html", std::ios::binary) << text; }
    void showsOriginal(bool shows) { set(preference::showOriginalArticle, shows); }
    std::shared_ptr<FeedItemArticle> article(std::size_t index = 0) const { return item->articles().at(index); }
    WebViewFake& webView() const { return *container->webView; }
    std::shared_ptr<FeedsBrowserArticleViewController> make(bool standsAlone) const {
        return FeedsBrowserArticleViewController::make(environment, container, standsAlone);
    }

    std::shared_ptr<FeedItem> item = add(makeItem("Feed", {"one", "two"}));
    std::shared_ptr<WebContainerViewFake> container = std::make_shared<WebContainerViewFake>(log);
    std::shared_ptr<FeedsBrowserArticleViewController> controller = make(false);
};

TEST_F(FeedsBrowserArticleViewControllerTest, StartsWithAnEmptyHiddenView) {
    const auto other = make(false);
    other->viewDidLoad();
    EXPECT_THAT(takeCalls(), ElementsAre("addWebView", "hide", "loadHTMLString \"\"", "hide"));
    EXPECT_FALSE(other->actionsPopUpButton.menu().autoenablesItems);
    EXPECT_TRUE(other->saveMenuItem->isEnabled());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsAnArticleThatItHasWhenItLoads) {
    showsOriginal(true);
    const auto other = make(true);
    other->showArticle(article());
    takeCalls();
    other->viewDidLoad();
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "show", "load http://a.test/one 0 60"));
    EXPECT_EQ(other->titleLabel.stringValue(), "one");
    EXPECT_TRUE(other->showOriginalMenuItem->state());
}

TEST_F(FeedsBrowserArticleViewControllerTest, HasARowForNavigationUnlessItStandsAlone) {
    EXPECT_FALSE(controller->navigationContainerView.isHidden());
    const auto other = make(true);
    other->viewDidLoad();
    EXPECT_TRUE(other->navigationContainerView.isHidden());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsTheStoredTextInANewView) {
    controller->showArticle(article());
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "show", "loadHTMLString \"<h1>one</h1>one!\""));
    EXPECT_EQ(controller->progressIndicator.doubleValue(), 0);
    EXPECT_EQ(controller->titleLabel.stringValue(), "one");
    EXPECT_TRUE(controller->saveButton.isEnabled());
    EXPECT_TRUE(controller->actionsPopUpButton.isEnabled());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ClearsThePaneForNoArticle) {
    controller->showArticle(article());
    takeCalls();
    controller->showArticle(nullptr);
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "loadHTMLString \"\"", "hide"));
    EXPECT_EQ(controller->titleLabel.stringValue(), "");
    EXPECT_FALSE(controller->saveButton.isEnabled());
    EXPECT_FALSE(controller->actionsPopUpButton.isEnabled());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsTheOriginalPageWherePreferencesWantThat) {
    showsOriginal(true);
    controller->showArticle(article());
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "show", "load http://a.test/one 0 60"));
    EXPECT_TRUE(controller->showOriginalMenuItem->state());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsTheStoredTextOfAnArticleWithoutLinkInAnyCase) {
    showsOriginal(true);
    article()->entry->links.clear();
    controller->showArticle(article());
    EXPECT_THAT(takeCalls().back(), "loadHTMLString \"<h1>one</h1>one!\"");
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsNothingOfAnArticleWithASummaryAlone) {
    article()->entry->setContent(nullptr);
    article()->entry->summary = std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::plain, "summary");
    controller->showArticle(article());
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "show"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsNothingOfAnArticleWithEmptyContent) {
    article()->entry->setContent(std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::raw));
    controller->showArticle(article());
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview", "addWebView", "hide", "show"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsAnEmptyPageWithoutTemplate) {
    std::filesystem::remove(folder / "feed_article.html");
    controller->showArticle(article());
    EXPECT_EQ(takeCalls().back(), "loadHTMLString \"\"");
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsAnEmptyPageForATemplateThatIsNotUTF8) {
    writeTemplate("\xFF<%title%>");
    controller->showArticle(article());
    EXPECT_EQ(takeCalls().back(), "loadHTMLString \"\"");
}

TEST_F(FeedsBrowserArticleViewControllerTest, DoesNotKeepTheArticle) {
    controller->showArticle(article());
    parse(*item, {"three"});
    EXPECT_EQ(controller->article(), nullptr);
}

TEST_F(FeedsBrowserArticleViewControllerTest, EnablesTheButtonsByTheHistory) {
    controller->showArticle(article());
    EXPECT_FALSE(controller->goBackButton.isEnabled());
    webView().hasBack = true;
    controller->didFinishNavigation();
    EXPECT_TRUE(controller->goBackButton.isEnabled());
    EXPECT_FALSE(controller->goForwardButton.isEnabled());
    webView().hasForward = true;
    controller->didFinishNavigation();
    EXPECT_TRUE(controller->goForwardButton.isEnabled());
}

TEST_F(FeedsBrowserArticleViewControllerTest, BringsTheControlsUpToDateWhenAPageBeginsToLoad) {
    controller->showArticle(article());
    webView().hasBack = true;
    saved->saveArticle(article());
    controller->didStartProvisionalNavigation();
    EXPECT_TRUE(controller->goBackButton.isEnabled());
    EXPECT_EQ(controller->saveButton.title(), "Don't Keep Article");
}

TEST_F(FeedsBrowserArticleViewControllerTest, GoesBackAndForward) {
    controller->perform(Action{browseractions::goBack});
    controller->perform(Action{browseractions::goForward});
    EXPECT_THAT(takeCalls(), ElementsAre("goBack", "goForward"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, TogglesOriginalPagesForAllLaterArticles) {
    controller->showArticle(article());
    takeCalls();
    const auto sender = std::make_shared<MenuItem>("Show Original");
    controller->perform(Action{browseractions::toggleShowOriginal, sender});
    EXPECT_TRUE(sender->state());
    EXPECT_TRUE(defaults->boolForKey(preference::showOriginalArticle));
    EXPECT_THAT(takeCalls(), ElementsAre("show", "load http://a.test/one 0 60"));
    controller->showArticle(article(1));
    EXPECT_EQ(takeCalls().back(), "load http://a.test/two 0 60");
    controller->perform(Action{browseractions::toggleShowOriginal, sender});
    EXPECT_FALSE(sender->state());
    EXPECT_EQ(takeCalls().back(), "loadHTMLString \"<h1>two</h1>two!\"");
}

TEST_F(FeedsBrowserArticleViewControllerTest, OpensTheArticlesLinkOutside) {
    controller->showArticle(article());
    takeCalls();
    controller->perform(Action{browseractions::openInWebBrowser});
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/one"));
    article()->entry->links.clear();
    controller->perform(Action{browseractions::openInWebBrowser});
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserArticleViewControllerTest, SavesAndUnsavesTheArticle) {
    const auto token = NotificationCenter::defaultCenter().addObserver(SavedArticlesManager::didSaveArticleNotification, nullptr,
        [&](const Notification& notification) { log->push_back(notification.object == article().get() ? "didSave" : "other"); });
    const auto token2 = NotificationCenter::defaultCenter().addObserver(SavedArticlesManager::didUnsaveArticleNotification, nullptr,
        [&](const Notification& notification) { log->push_back(notification.object == article().get() ? "didUnsave" : "other"); });
    controller->showArticle(article());
    EXPECT_EQ(controller->saveButton.title(), "Keep Article");
    takeCalls();
    controller->perform(Action{browseractions::handleSave});
    EXPECT_THAT(takeCalls(), ElementsAre("refreshInterface", "didSave"));
    EXPECT_THAT(saved->savedArticles, ElementsAre(article()));
    EXPECT_TRUE(std::filesystem::exists(saved->file()));
    EXPECT_EQ(controller->saveButton.title(), "Don't Keep Article");
    EXPECT_EQ(controller->saveMenuItem->title(), "Don't Keep Article");
    controller->perform(Action{browseractions::handleSave});
    EXPECT_THAT(takeCalls(), ElementsAre("refreshInterface", "didUnsave"));
    EXPECT_THAT(saved->savedArticles, IsEmpty());
    EXPECT_EQ(controller->saveMenuItem->title(), "Keep Article");
}

TEST_F(FeedsBrowserArticleViewControllerTest, TellsOfASavedArticleWhenItsControlsShowIt) {
    std::vector<std::string> shown;
    const auto note = [&](const Notification&) { shown.push_back(controller->saveButton.title()); };
    NotificationCenter& center = NotificationCenter::defaultCenter();
    const auto token = center.addObserver(SavedArticlesManager::didSaveArticleNotification, nullptr, note);
    const auto token2 = center.addObserver(SavedArticlesManager::didUnsaveArticleNotification, nullptr, note);
    controller->showArticle(article());
    controller->handleSave();
    controller->handleSave();
    EXPECT_THAT(shown, ElementsAre("Don't Keep Article", "Keep Article"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, KnowsAnArticleAsSavedByItsIdentifier) {
    const auto before = article();
    saved->saveArticle(before);
    parse(*item, {"one"});
    controller->showArticle(article());
    EXPECT_EQ(controller->saveButton.title(), "Don't Keep Article");
}

TEST_F(FeedsBrowserArticleViewControllerTest, SavesNothingWithoutArticle) {
    controller->perform(Action{browseractions::handleSave});
    EXPECT_THAT(saved->savedArticles, IsEmpty());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserArticleViewControllerTest, OpensClickedLinksOutsideAndStays) {
    controller->showArticle(article());
    takeCalls();
    using Type = NavigationAction::Type;
    EXPECT_EQ(controller->decidePolicy({Type::linkActivated, URL::make("http://b.test/")}), NavigationPolicy::cancel);
    EXPECT_EQ(controller->decidePolicy({Type::linkActivated, std::nullopt}), NavigationPolicy::cancel);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://b.test/"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, AllowsAllOtherNavigation) {
    using Type = NavigationAction::Type;
    for (const Type type : {Type::formSubmitted, Type::backForward, Type::reload, Type::formResubmitted, Type::other})
        EXPECT_EQ(controller->decidePolicy({type, URL::make("http://b.test/")}), NavigationPolicy::allow);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserArticleViewControllerTest, ShowsProgressUntilAllIsThere) {
    webView().progress = 0.25;
    controller->estimatedProgressDidChange();
    EXPECT_EQ(controller->progressIndicator.doubleValue(), 25.0);
    EXPECT_FALSE(controller->progressIndicator.isHidden());
    webView().progress = 1.0;
    controller->estimatedProgressDidChange();
    EXPECT_TRUE(controller->progressIndicator.isHidden());
    controller->didStartProvisionalNavigation();
    EXPECT_EQ(controller->progressIndicator.doubleValue(), 0);
    EXPECT_FALSE(controller->progressIndicator.isHidden());
}

TEST_F(FeedsBrowserArticleViewControllerTest, AppliesTheSameRuleToProgressAtTheEnd) {
    controller->progressIndicator.setDoubleValue(100.0);
    controller->didFinishNavigation();
    EXPECT_TRUE(controller->progressIndicator.isHidden());
    controller->progressIndicator.setDoubleValue(50.0);
    controller->didFinishNavigation();
    EXPECT_FALSE(controller->progressIndicator.isHidden());
}

TEST_F(FeedsBrowserArticleViewControllerTest, TakesThePagesTitleUnlessItIsEmpty) {
    webView().pageTitle = "Page";
    controller->titleDidChange();
    webView().pageTitle.clear();
    controller->titleDidChange();
    EXPECT_EQ(controller->title.stringValue(), "Page");
}

TEST_F(FeedsBrowserArticleViewControllerTest, HearsNothingOfAViewThatItReplaced) {
    controller->showArticle(article());
    const auto first = container->webView;
    controller->showArticle(article(1));
    EXPECT_TRUE(first->delegate.expired());
    EXPECT_EQ(webView().delegate.lock(), controller);
}

TEST_F(FeedsBrowserArticleViewControllerTest, TakesItsViewWithItWhenItEnds) {
    controller.reset();
    EXPECT_THAT(takeCalls(), ElementsAre("removeFromSuperview"));
}

TEST_F(FeedsBrowserArticleViewControllerTest, TakesItsOwnActionsAlone) {
    EXPECT_TRUE(controller->respondsTo(browseractions::handleSave));
    EXPECT_FALSE(controller->respondsTo(browseractions::showArticle));
}

} // namespace
} // namespace brindle
