#include "Brindle/browser/ArticleSearch.hpp"
#include "tests/browser/BrowserFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ArticleSearchTest : public BrowserTest {
protected:
    std::vector<std::string> find(std::string_view term) { return titles(search.articles(*manager, term)); }

    ArticleSearch search;
};

TEST_F(ArticleSearchTest, FindsTitlesAcrossAllFeedsInTreeOrder) {
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("A", {"cat one", "dog"}), group);
    add(makeItem("B", {"two cats"}));
    EXPECT_THAT(find("cat"), ElementsAre("cat one", "two cats"));
    EXPECT_THAT(find("bird"), IsEmpty());
}

TEST_F(ArticleSearchTest, IgnoresCaseAndDiacriticsOnBothSides) {
    add(makeItem("A", {"Émile", "EMILE", "emil"}));
    EXPECT_THAT(find("emile"), ElementsAre("Émile", "EMILE"));
    EXPECT_THAT(find("ÉMIL"), ElementsAre("Émile", "EMILE", "emil"));
}

TEST_F(ArticleSearchTest, FindsNothingAcrossTheEndOfATitle) {
    add(makeItem("A", {"ab", "cd"}));
    EXPECT_THAT(find("bc"), IsEmpty());
}

TEST_F(ArticleSearchTest, FindsNothingForATermThatFoldsToNothing) {
    add(makeItem("A", {"ab", ""}));
    EXPECT_THAT(find(""), IsEmpty());
    EXPECT_THAT(find("\u0301"), IsEmpty());
}

TEST_F(ArticleSearchTest, FindsTheArticlesOfTheLatestParse) {
    const auto item = add(makeItem("A", {"old", "same"}));
    EXPECT_THAT(find("same"), ElementsAre("same"));
    parse(*item, {"new", "same"});
    EXPECT_THAT(find("old"), IsEmpty());
    EXPECT_THAT(find("new"), ElementsAre("new"));
    EXPECT_EQ(search.articles(*manager, "same").front(), item->articles()[1]);
}

TEST_F(ArticleSearchTest, FindsNothingOfARemovedFeed) {
    const auto item = add(makeItem("A", {"one"}));
    EXPECT_THAT(find("one"), ElementsAre("one"));
    manager->removeFeed(item);
    EXPECT_THAT(find("one"), IsEmpty());
    manager->addFeed(item, 0);
    EXPECT_THAT(find("one"), ElementsAre("one"));
}

TEST_F(ArticleSearchTest, FindsTheSameWhenItWasPrepared) {
    const auto item = add(makeItem("A", {"one", "two"}));
    search.prepare(*manager);
    EXPECT_THAT(find("two"), ElementsAre("two"));
    parse(*item, {"two", "three"});
    EXPECT_THAT(find("t"), ElementsAre("two", "three"));
}

TEST_F(ArticleSearchTest, FindsAFeedTwiceThatIsInTheTreeTwice) {
    const auto item = add(makeItem("A", {"one"}));
    add(item);
    EXPECT_THAT(find("one"), ElementsAre("one", "one"));
}

TEST_F(ArticleSearchTest, KeepsNoArticleAlive) {
    const auto item = add(makeItem("A", {"one"}));
    std::weak_ptr<FeedItemArticle> article = item->articles().front();
    find("one");
    parse(*item, {"two"});
    EXPECT_TRUE(article.expired());
}

} // namespace
} // namespace brindle
