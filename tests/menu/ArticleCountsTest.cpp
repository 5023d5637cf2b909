#include "Brindle/menu/ArticleCounts.hpp"
#include "tests/menu/MenuFixture.hpp"

namespace brindle {
namespace {

class ArticleCountsTest : public MenuTest {};

TEST_F(ArticleCountsTest, CountsEveryEntryOfATree) {
    const auto group = FeedGroup::make("Group");
    const auto inner = FeedGroup::make("Inner");
    const auto feed = makeItem("Feed", {"A", "B", "C"});
    const auto another = makeItem("Another", {"D"});
    markRead(*feed, 1);
    inner->add(feed, 0);
    group->add(inner, 0);
    group->add(another, 1);
    add(group);
    add(makeItem("Last", {"E"}));
    const ArticleCounts counts(manager->feeds);
    EXPECT_EQ(counts.total().unread, 4U);
    EXPECT_EQ(counts.total().read, 1U);
    EXPECT_EQ(counts.of(*group)->unread, 3U);
    EXPECT_EQ(counts.of(*inner)->unread, 2U);
    EXPECT_EQ(counts.of(*inner)->read, 1U);
    EXPECT_EQ(counts.of(*another)->unread, 1U);
}

TEST_F(ArticleCountsTest, KnowsNothingOfWhatIsOutsideTheTree) {
    EXPECT_EQ(ArticleCounts({}).of(*makeItem("Feed", {"A"})), std::nullopt);
    EXPECT_EQ(ArticleCounts({}).total().unread, 0U);
}

} // namespace
} // namespace brindle
