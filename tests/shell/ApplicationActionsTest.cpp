#include "Brindle/browser/BrowserActions.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ApplicationActionsTest : public AppDelegateTest {
protected:
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

TEST_F(ApplicationActionsTest, ListTheArticlesOfAFeedThatTheyOpen) {
    add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2", "3"}));
    perform(actions::openFeed, b);
    EXPECT_EQ(windows->browser->splitViewController().articlesViewController().feedItemArticles(), b->articles());
}

TEST_F(ApplicationActionsTest, OpenAFeedWhereTheShiftKeySays) {
    const auto a = add(makeItem("a"));
    a->session().feed()->links.emplace_back().url = URL::make("http://a.test/");
    shiftKeyIsDown = true;
    takeCalls();
    perform(actions::openFeed, a);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/"));
    set(preference::allowFBOpenFeed, false);
    perform(actions::openFeed, a);
    EXPECT_THAT(takeCalls(), ElementsAre("activate", "showWindow", "setTitle Feeds Browser"));
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

TEST_F(ApplicationActionsTest, ActivateSuchAProgramOnceWhereThereIsNoBrowser) {
    windows->makes = false;
    set(preference::hideInDock, true);
    perform(actions::showFeedsBrowser);
    EXPECT_THAT(takeCalls(), ElementsAre("activate"));
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
    EXPECT_TRUE(isValid("markArticlesAsRead:", makeItem("outside", {"3"})));
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
