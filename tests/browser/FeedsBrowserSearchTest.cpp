#include "Brindle/browser/ChangeNotices.hpp"
#include "tests/browser/BrowserWindowFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedsBrowserSearchTest : public BrowserWindowTest {
protected:
    void search(const std::string& term) {
        controller.searchField.setStringValue(term);
        controller.controlTextDidChange();
    }
    bool isFeedsListCollapsed() const { return split->splitViewItems.front().isCollapsed(); }
};

TEST_F(FeedsBrowserSearchTest, SearchesAllFeedsWhateverIsSelected) {
    outline->click(b);
    table->select({0});
    search("ONE");
    EXPECT_THAT(listed(), ElementsAre("x one", "b one"));
    EXPECT_TRUE(isFeedsListCollapsed());
    EXPECT_EQ(article->article(), nullptr);
}

TEST_F(FeedsBrowserSearchTest, SearchesTitlesAlone) {
    search("!");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(FeedsBrowserSearchTest, FindsArticlesThatAreRead) {
    manager->markArticles(ArticleStateFilter::read, x);
    search("one");
    EXPECT_THAT(listed(), ElementsAre("x one", "b one"));
}

TEST_F(FeedsBrowserSearchTest, ClearsTheArticleWhenTheTermIsGone) {
    search("one");
    table->select({0});
    ASSERT_NE(article->article(), nullptr);
    search("");
    EXPECT_EQ(article->article(), nullptr);
}

TEST_F(FeedsBrowserSearchTest, EndsForAFeedThatTheWindowIsShownFor) {
    search("one");
    controller.selectedFeed = x;
    controller.showWindow();
    EXPECT_EQ(controller.searchField.stringValue(), "");
    EXPECT_FALSE(isFeedsListCollapsed());
    EXPECT_THAT(listed(), ElementsAre("x one", "x two"));
}

TEST_F(FeedsBrowserSearchTest, IsEmptyAfterASearchWhileACollectionIsSelected) {
    collections->refreshCollections();
    outline->click(outline->itemAtRow(2));
    search("one");
    search("");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(FeedsBrowserSearchTest, ChangesNothingWhenASearchBegins) {
    outline->click(b);
    takeCalls();
    controller.searchFieldDidStartSearching();
    EXPECT_THAT(listed(), ElementsAre("b one"));
    EXPECT_FALSE(isFeedsListCollapsed());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserSearchTest, StaysEmptyAndCollapsedForATermWithoutMatches) {
    outline->click(b);
    search("nothing");
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_TRUE(isFeedsListCollapsed());
    search("");
    EXPECT_THAT(listed(), ElementsAre("b one"));
    EXPECT_FALSE(isFeedsListCollapsed());
}

TEST_F(FeedsBrowserSearchTest, IsEmptyAfterASearchWhereNoFeedIsSelected) {
    search("one");
    search("");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(FeedsBrowserSearchTest, KeepsAFeedsUpdateOutOfTheMatches) {
    outline->click(b);
    search("two");
    parse(*b, {"b three"});
    notices::post(notices::didReceiveNewArticles, b);
    EXPECT_THAT(listed(), ElementsAre("x two"));
}

} // namespace
} // namespace brindle
