#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the application does with articles, whoever asks for it.
class ArticleActionsTest : public AppDelegateTest {
protected:
    /// Adds an article of the feed an enclosure.
    static void enclose(FeedItem& feed, std::size_t index, SyndicatedEnclosure::Kind kind) {
        feed.articles()[index]->entry->enclosures.push_back({URL::make("http://a.test/file").value(), 0, kind});
    }
    std::size_t unread(const std::shared_ptr<Feed>& feed = nullptr) {
        return feedsManager().articles(ArticleStateFilter::unread, feed).size();
    }
};

TEST_F(ArticleActionsTest, MarkAFeedOrAGroup) {
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

TEST_F(ArticleActionsTest, MarkEachEntryOfTheTopLevelWhereTheyAreAboutNone) {
    add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2"}));
    takeCalls();
    perform(actions::markArticlesAsRead);
    EXPECT_THAT(takeCalls(), ElementsAre("badge 1", "didUpdateFeed a", "badge ", "didUpdateFeed b"));
    perform(actions::markArticlesAsUnread, b->articles()[0]);
    EXPECT_EQ(unread(), 2U);
}

TEST_F(ArticleActionsTest, OpenFourUnreadArticlesWithoutAQuestionAndMarkThem) {
    const auto a = add(makeItem("a", {"1", "-without", "2"}));
    add(makeItem("b", {"3"}));
    takeCalls();
    perform(actions::openAllUnreadArticles);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/1", "openURL http://a.test/2", "openURL http://a.test/3", "badge 1",
                                 "didUpdateFeed a", "didUpdateFeed b"));
    EXPECT_FALSE(a->articles()[1]->entry->isRead());
    EXPECT_EQ(a->articleStateCache.at("1&http://a.test/1"), 1);
}

TEST_F(ArticleActionsTest, OpenTheUnreadArticlesOfOneFeed) {
    add(makeItem("a", {"1"}));
    const auto b = add(makeItem("b", {"2"}));
    takeCalls();
    perform(actions::openAllUnreadArticles, b);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/2", "badge 1", "didUpdateFeed b"));
}

TEST_F(ArticleActionsTest, AskBeforeTheyOpenFiveArticles) {
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

TEST_F(ArticleActionsTest, CountArticlesWithoutALinkBeforeTheyAsk) {
    add(makeItem("a", {"1", "2", "3", "4", "-without"}));
    perform(actions::openAllUnreadArticles);
    EXPECT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(unread(), 1U);
}

TEST_F(ArticleActionsTest, OpenManyArticlesWithoutAQuestionWhereThePreferencesWantNone) {
    add(makeItem("a", {"1", "2", "3", "4", "5"}));
    set(preference::warnWhenOpeningArticles, false);
    perform(actions::openAllUnreadArticles);
    EXPECT_THAT(alerts->alerts, IsEmpty());
    EXPECT_EQ(unread(), 0U);
}

TEST_F(ArticleActionsTest, ShowAnArticleInAWindowOfItsOwnAndMarkIt) {
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1", "badge ", "didUpdateFeed article"));
    EXPECT_EQ(a->articleStateCache.at("1&http://a.test/1"), 1);
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1"));
}

TEST_F(ArticleActionsTest, ShowAnArticleInTheWebBrowserWhereThePreferencesWantThat) {
    const auto a = add(makeItem("a", {"1", "-without"}));
    set(preference::allowFBOpenArticles, false);
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("openURL http://a.test/1", "badge 1", "didUpdateFeed article"));
    perform(actions::showArticle, a->articles()[1]);
    EXPECT_THAT(takeCalls(), ElementsAre("badge ", "didUpdateFeed article"));
}

TEST_F(ArticleActionsTest, OpenInTheOtherBrowserWithTheShiftKey) {
    const auto a = add(makeItem("a", {"1"}));
    takeCalls();
    shiftKeyIsDown = true;
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "openURL http://a.test/1");
    set(preference::allowFBOpenArticles, false);
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 1");
}

TEST_F(ArticleActionsTest, PlayTheFirstAudioOrVideoWhereThePreferencesWantThat) {
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

TEST_F(ArticleActionsTest, PlayAudioToo) {
    const auto a = add(makeItem("a", {"1"}));
    enclose(*a, 0, SyndicatedEnclosure::Kind::audio);
    set(preference::articlesOpensSelectedIndex, std::int64_t(2));
    perform(actions::showArticle, a->articles()[0]);
    ASSERT_TRUE(windows->player);
    EXPECT_EQ(windows->player->url()->absoluteString(), "http://a.test/file");
}

TEST_F(ArticleActionsTest, MarkAnArticleAlsoWithoutAWindowToPlayItIn) {
    windows->makes = false;
    const auto a = add(makeItem("a", {"1"}));
    enclose(*a, 0, SyndicatedEnclosure::Kind::audio);
    set(preference::articlesOpensSelectedIndex, std::int64_t(1));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("badge ", "didUpdateFeed article"));
    EXPECT_TRUE(a->articles()[0]->entry->isRead());
}

TEST_F(ArticleActionsTest, ShowAnArticleWhoseFeedIsGoneUnread) {
    const auto a = add(makeItem("a", {"1"}));
    const auto article = std::make_shared<FeedItemArticle>(a->articles()[0]->entry, std::weak_ptr<FeedItem>());
    takeCalls();
    perform(actions::showArticle, article);
    EXPECT_THAT(takeCalls(), ElementsAre("showArticleWindow 1", "badge 1", "didUpdateFeed article"));
    EXPECT_FALSE(article->entry->isRead());
}

TEST_F(ArticleActionsTest, OpenAnArticleWithAnImageOnlyAsAnyOther) {
    const auto a = add(makeItem("a", {"1", "2"}));
    enclose(*a, 0, SyndicatedEnclosure::Kind::image);
    set(preference::articlesOpensSelectedIndex, std::int64_t(1));
    takeCalls();
    perform(actions::showArticle, a->articles()[0]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 1");
    perform(actions::showArticle, a->articles()[1]);
    EXPECT_EQ(takeCalls().front(), "showArticleWindow 2");
}

} // namespace
} // namespace brindle
