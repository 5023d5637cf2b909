#include "Brindle/browser/BrowserActions.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ApplicationActionsTest : public AppDelegateTest {
protected:
    /// Adds an article of the feed an enclosure.
    static void enclose(FeedItem& feed, std::size_t index, SyndicatedEnclosure::Kind kind) {
        feed.articles()[index]->entry->enclosures.push_back({URL::make("http://a.test/file").value(), 0, kind});
    }
    std::size_t unread(const std::shared_ptr<Feed>& feed = nullptr) {
        return feedsManager().articles(ArticleStateFilter::unread, feed).size();
    }
    bool isValid(std::string_view action, std::shared_ptr<Object> object = nullptr) {
        MenuItem item("", action);
        item.setRepresentedObject(std::move(object));
        return delegate->validateMenuItem(item);
    }
};

TEST_F(ApplicationActionsTest, EndTheResponderChain) {
    for (const auto action : {"newFeed:", "newGroup:", "newSeparator:", "importOPML:", "exportOPML:", "markArticlesAsRead:",
             "markArticlesAsUnread:", "openAllUnreadArticles:", "showArticle:", "showFeedsBrowser:", "showPreferences:", "openFeed:"})
        EXPECT_EQ(delegate->responderChain()->handler(action), delegate) << action;
    EXPECT_EQ(delegate->responderChain()->handler("delete:"), nullptr);
}

TEST_F(ApplicationActionsTest, MarkAFeedOrAGroup) {
    const auto group = add(FeedGroup::make("g"));
    group->add(makeItem("a", {"1", "2"}), 0);
    add(makeItem("b", {"3"}));
    takeCalls();
    perform(actions::markArticlesAsRead, group);
    EXPECT_THAT(takeCalls(), ElementsAre("badge 1", "didUpdateFeed g"));
    EXPECT_EQ(unread(group), 0U);
    perform(actions::markArticlesAsUnread, group);
    EXPECT_EQ(unread(group), 2U);
}

TEST_F(ApplicationActionsTest, MarkEachEntryOfTheTopLevelWhereTheyAreAboutNone) {
    add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2"}));
    takeCalls();
    perform(actions::markArticlesAsRead);
    EXPECT_THAT(takeCalls(), ElementsAre("badge 1", "didUpdateFeed a", "badge ", "didUpdateFeed b"));
    perform(actions::markArticlesAsUnread, b->articles()[0]);
    EXPECT_EQ(unread(), 2U);
}

TEST_F(ApplicationActionsTest, OpenFourUnreadArticlesWithoutAQuestionAndMarkThem) {
    const auto a = add(makeItem("a", {"1", "-without", "2"}));
    add(makeItem("b", {"3"}));
    takeCalls();
    perform(actions::openAllUnreadArticles);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/1", "openURL http://a.test/2", "openURL http://a.test/3", "badge 1",
                                 "didUpdateFeed a", "didUpdateFeed b"));
    EXPECT_FALSE(a->articles()[1]->entry->isRead());
    EXPECT_EQ(a->articleStateCache.at("1&http://a.test/1"), 1);
}

TEST_F(ApplicationActionsTest, OpenTheUnreadArticlesOfOneFeed) {
    add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2"}));
    takeCalls();
    perform(actions::openAllUnreadArticles, b);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/2", "badge 1", "didUpdateFeed b"));
}

TEST_F(ApplicationActionsTest, AskBeforeTheyOpenFiveArticles) {
    add(makeItem("a", {"1", "2", "3", "4", "5"}));
    takeCalls();
    alerts->response = Alert::firstButtonReturn + 1;
    perform(actions::openAllUnreadArticles);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "beginSheet Open Articles?"));
    EXPECT_EQ(
        alerts->alerts[0], (Alert{"Open Articles?", "You are about to open 5 articles. Do you want to continue?", {"Yes", "Cancel"}}));
    EXPECT_EQ(unread(), 5U);
    alerts->response = Alert::firstButtonReturn;
    perform(actions::openAllUnreadArticles);
    EXPECT_EQ(unread(), 0U);
}

TEST_F(ApplicationActionsTest, OpenManyArticlesWithoutAQuestionWhereThePreferencesWantNone) {
    add(makeItem("a", {"1", "2", "3", "4", "5"}));
    set(preference::warnWhenOpeningArticles, false);
    perform(actions::openAllUnreadArticles);
    EXPECT_THAT(alerts->alerts, IsEmpty());
    EXPECT_EQ(unread(), 0U);
}

TEST_F(ApplicationActionsTest, ShowAnArticleInAWindowOfItsOwnAndMarkIt) {
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1", "badge ", "didUpdateFeed article"));
    EXPECT_EQ(a->articleStateCache.at("1&http://a.test/1"), 1);
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1"));
}

TEST_F(ApplicationActionsTest, ShowAnArticleInTheWebBrowserWhereThePreferencesWantThat) {
    const auto a = add(makeItem("a", {"1", "-without"}));
    set(preference::allowFBOpenArticles, false);
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/1", "badge 1", "didUpdateFeed article"));
    perform(actions::showArticle, a->articles()[1]);
    EXPECT_THAT(takeCalls(), ElementsAre("badge ", "didUpdateFeed article"));
}

TEST_F(ApplicationActionsTest, OpenInTheOtherBrowserWithTheShiftKey) {
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    shiftKeyIsDown = true;
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "openURL http://a.test/1");
    set(preference::allowFBOpenArticles, false);
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 1");
}

TEST_F(ApplicationActionsTest, PlayTheFirstAudioOrVideoWhereThePreferencesWantThat) {
    const auto a = add(makeItem("a", {"1"}));
    enclose(*a, 0, SyndicatedEnclosure::Kind::image);
    enclose(*a, 0, SyndicatedEnclosure::Kind::video);
    set(preference::articlesOpensSelectedIndex, std::int64_t(1));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("setTitle 1", "showWindow", "badge ", "didUpdateFeed article"));
    EXPECT_EQ(windows->player->url()->absoluteString(), "http://a.test/file");
    set(preference::articlesOpensSelectedIndex, std::int64_t(0));
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1"));
}

TEST_F(ApplicationActionsTest, OpenAnArticleWithAnImageOnlyAsAnyOther) {
    const auto a = add(makeItem("a", {"1", "2"}));
    enclose(*a, 0, SyndicatedEnclosure::Kind::image);
    set(preference::articlesOpensSelectedIndex, std::int64_t(1));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 1");
    perform(actions::showArticle, a->articles()[1]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 2");
}

TEST_F(ApplicationActionsTest, ShowNothingAboutAnObjectOfAnotherClass) {
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    perform(actions::showArticle, a);
    perform(actions::showArticle);
    perform(actions::openFeed, a->articles()[0]);
    perform(actions::openFeed);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(ApplicationActionsTest, OpenAFeedInTheFeedsBrowser) {
    const auto a = add(makeItem("a"));
    takeCalls();
    perform(actions::openFeed, a);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "showWindow", "setTitle Feeds Browser"));
    EXPECT_EQ(windows->browser->selectedFeed.lock(), a);
}

TEST_F(ApplicationActionsTest, OpenAFeedsSiteInTheWebBrowserWhereThePreferencesWantThat) {
    const auto a = add(makeItem("a"));
    set(preference::allowFBOpenFeed, false);
    takeCalls();
    perform(actions::openFeed, a);
    EXPECT_THAT(takeCalls(), IsEmpty());
    a->session().feed()->links.emplace_back().url = URL::make("http://a.test/");
    perform(actions::openFeed, a);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/"));
}

TEST_F(ApplicationActionsTest, OpenAGroupInTheFeedsBrowserWhateverThePreferencesWant) {
    const auto group = add(FeedGroup::make("g"));
    set(preference::allowFBOpenFeed, false);
    takeCalls();
    perform(actions::openFeed, group);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "showWindow", "setTitle Feeds Browser"));
}

TEST_F(ApplicationActionsTest, ShowTheOneFeedsBrowserWithNothingSelected) {
    const auto a = add(makeItem("a"));
    perform(actions::openFeed, a);
    takeCalls();
    perform(actions::showFeedsBrowser);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "showWindow", "setTitle Feeds Browser"));
    EXPECT_EQ(windows->browser->selectedFeed.lock(), nullptr);
    EXPECT_EQ(windows->browsersMade, 1);
}

TEST_F(ApplicationActionsTest, ShowThePreferences) {
    perform(actions::showPreferences);
    windows->preferences->contentViewController().selectedTabKind = PreferencesTabViewController::TabKind::menu;
    takeCalls();
    perform(actions::showPreferences);
    EXPECT_FALSE(windows->preferences->contentViewController().selectedTabKind);
    EXPECT_THAT(takeCalls(), ElementsAre("selectTab 0", "setTitle General", "setContentSize 100x50", "showWindow"));
}

TEST_F(ApplicationActionsTest, ActivateAProgramThatIsNotInTheDock) {
    set(preference::hideInDock, true);
    perform(actions::showPreferences);
    EXPECT_EQ(takeCalls().at(0), "activate");
    perform(actions::showFeedsBrowser);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "activate", "showWindow", "setTitle Feeds Browser"));
}

TEST_F(ApplicationActionsTest, DoNothingWithoutTheirWindows) {
    windows->makes = false;
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    for (const auto action : {actions::newFeed, actions::newGroup, actions::showPreferences, actions::showFeedsBrowser})
        perform(action);
    delegate->actions().showEnclosure({URL::make("http://a.test/file").value()}, "1");
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(ApplicationActionsTest, TryOnlyOnceToMakeAWindow) {
    windows->makes = false;
    perform(actions::showPreferences);
    windows->makes = true;
    perform(actions::showPreferences);
    EXPECT_EQ(windows->preferences, nullptr);
}

TEST_F(ApplicationActionsTest, OpenTheAddFeedWindow) {
    perform(actions::newFeed);
    perform(actions::newGroup);
    const auto item = add(makeItem("a"));
    const auto group = add(FeedGroup::make("g"));
    delegate->editFeedItem(item);
    EXPECT_EQ(windows->newFeed->newFeedItemViewController()->feedItem, item);
    delegate->editFeedGroup(group);
    EXPECT_EQ(windows->newFeed->newFeedGroupViewController()->feedGroup, group);
    std::vector<std::string> titles = takeCalls();
    std::erase_if(titles, [](const std::string& call) { return !call.starts_with("setTitle"); });
    EXPECT_THAT(titles, ElementsAre("setTitle New Feed", "setTitle New Feed Group", "setTitle Edit Feed", "setTitle Edit Feed Group"));
}

TEST_F(ApplicationActionsTest, AppendASeparator) {
    add(makeItem("a"));
    takeCalls();
    perform(browseractions::newSeparator);
    EXPECT_THAT(names(), ElementsAre("a", "-"));
    EXPECT_THAT(takeCalls(), ElementsAre("didAddFeed separator", "badge "));
}

TEST_F(ApplicationActionsTest, AreValidWhereTheyHaveSomethingToDo) {
    const auto a = add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2"}));
    a->markArticle(*a->articles()[0], ArticleStateFilter::read);
    EXPECT_FALSE(isValid("markArticlesAsRead:", a));
    EXPECT_FALSE(isValid("openAllUnreadArticles:", a));
    EXPECT_TRUE(isValid("markArticlesAsUnread:", a));
    EXPECT_TRUE(isValid("markArticlesAsRead:", b));
    EXPECT_FALSE(isValid("markArticlesAsUnread:", b));
    for (const char* action : {"markArticlesAsRead:", "openAllUnreadArticles:", "markArticlesAsUnread:", "newFeed:"})
        EXPECT_TRUE(isValid(action)) << action;
}

TEST_F(ApplicationActionsTest, ShowTheFeedsBrowserWhileItIsNotVisible) {
    EXPECT_TRUE(isValid("showFeedsBrowser:"));
    perform(actions::showFeedsBrowser);
    EXPECT_FALSE(isValid("showFeedsBrowser:"));
    windows->browserWindow->visible = false;
    EXPECT_TRUE(isValid("showFeedsBrowser:"));
}

TEST_F(ApplicationActionsTest, ShowTheNumberOfUnreadArticlesInTheDock) {
    add(makeItem("a", {"1", "2"}));
    takeCalls();
    delegate->updateDockBadge();
    set(preference::showBadgeInDock, false);
    delegate->updateDockBadge();
    EXPECT_THAT(takeCalls(), ElementsAre("badge 2", "badge none"));
}

} // namespace
} // namespace brindle
