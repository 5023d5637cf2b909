#include "Brindle/shell/MenuValidation.hpp"
#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedItemArticle.hpp"
#include "foundation/Console.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

/// A library of two feeds, the first with an unread article, the second with a read one.
class MenuValidationTest : public ::testing::Test {
protected:
    MenuValidationTest() {
        Console::redirect([](std::string_view) {});
        unread = makeItem();
        read = makeItem();
        read->markArticle(*read->articles()[0], ArticleStateFilter::read);
        feeds = {unread, read};
    }
    ~MenuValidationTest() override {
        feeds.clear();
        unread.reset();
        read.reset();
        Console::redirect({});
    }

    static std::shared_ptr<FeedItem> makeItem() {
        const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
        const auto item = FeedItem::make("Feed", URL::make("http://127.0.0.1/").value(), FeedItem::defaultUpdateRate, {}, {}, environment);
        item->session().feed()->entries.push_back(std::make_shared<SyndicatedEntry>(Date()));
        item->syndicatedSessionDidFinishParsing(item->session());
        return item;
    }
    bool isValid(std::string_view action, std::shared_ptr<Object> represented = nullptr, bool isBrowserVisible = false) const {
        MenuItem item("Title", action);
        item.setRepresentedObject(std::move(represented));
        const auto count = [this](const std::shared_ptr<Feed>& feed) {
            return ArticleCounts(feed ? FeedsManager::Feeds{feed} : feeds).total();
        };
        return isMenuItemValid(item, count, isBrowserVisible);
    }

    std::shared_ptr<FeedItem> unread;
    std::shared_ptr<FeedItem> read;
    FeedsManager::Feeds feeds;
};

TEST_F(MenuValidationTest, ShowsTheBrowserUnlessItIsVisible) {
    EXPECT_TRUE(isValid("showFeedsBrowser:"));
    EXPECT_FALSE(isValid("showFeedsBrowser:", nullptr, true));
}

TEST_F(MenuValidationTest, MarksAsReadWhereSomethingIsUnread) {
    EXPECT_TRUE(isValid("markArticlesAsRead:", unread));
    EXPECT_FALSE(isValid("markArticlesAsRead:", read));
    EXPECT_TRUE(isValid("markArticlesAsRead:"));
}

TEST_F(MenuValidationTest, MarksAsUnreadWhereSomethingIsRead) {
    EXPECT_FALSE(isValid("markArticlesAsUnread:", unread));
    EXPECT_TRUE(isValid("markArticlesAsUnread:", read));
    EXPECT_TRUE(isValid("markArticlesAsUnread:"));
}

TEST_F(MenuValidationTest, OpensArticlesWhereSomethingIsUnread) {
    EXPECT_TRUE(isValid("openAllUnreadArticles:", unread));
    EXPECT_FALSE(isValid("openAllUnreadArticles:", read));
    EXPECT_TRUE(isValid("openAllUnreadArticles:"));
}

TEST_F(MenuValidationTest, HasNothingToMarkOrOpenInAnEmptyLibrary) {
    feeds.clear();
    EXPECT_FALSE(isValid("markArticlesAsRead:"));
    EXPECT_FALSE(isValid("markArticlesAsUnread:"));
    EXPECT_FALSE(isValid("openAllUnreadArticles:"));
}

TEST_F(MenuValidationTest, LooksBelowAGroup) {
    const auto group = FeedGroup::make("Group");
    group->add(read, 0);
    feeds = {group, unread};
    EXPECT_FALSE(isValid("markArticlesAsRead:", group));
    EXPECT_TRUE(isValid("markArticlesAsUnread:", group));
}

TEST_F(MenuValidationTest, TakesAnythingElseForTheWholeLibrary) {
    EXPECT_TRUE(isValid("markArticlesAsRead:", read->articles()[0]));
}

TEST_F(MenuValidationTest, CountsNothingForActionsThatNoCountMattersFor) {
    const auto count = [](const std::shared_ptr<Feed>&) {
        ADD_FAILURE() << "something is counted";
        return ArticleCounts::Count();
    };
    for (const char* action : {"showArticle:", "openFeed:", "newFeed:", "showFeedsBrowser:"})
        EXPECT_TRUE(isMenuItemValid(MenuItem("Title", action), count, false)) << action;
}

TEST_F(MenuValidationTest, AlwaysAllowsEveryOtherAction) {
    feeds.clear();
    EXPECT_TRUE(isValid("openFeed:", read));
    EXPECT_TRUE(isValid("newFeed:"));
}

} // namespace
} // namespace brindle
