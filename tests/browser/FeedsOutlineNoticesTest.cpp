#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/events/UISyncDispatcher.hpp"
#include "tests/browser/OutlineFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FeedsOutlineNoticesTest : public OutlineTest {
protected:
    FeedsOutlineNoticesTest() {
        setCollections(true, true, true);
        show();
    }

    std::shared_ptr<FeedGroup> outer = add(FeedGroup::make("Outer"));
    std::shared_ptr<FeedGroup> inner = add(FeedGroup::make("Inner"), outer);
    std::shared_ptr<FeedItem> item = add(makeItem("Feed", {"a"}), inner);
};

TEST_F(FeedsOutlineNoticesTest, HaveTheNamesUnderWhichOthersPostThem) {
    EXPECT_EQ(notices::didReceiveNewArticles, UISyncDispatcher::didReceiveNewArticlesNotification);
    EXPECT_EQ(notices::didUpdateFeedItemImage, UISyncDispatcher::didUpdateFeedItemImageNotification);
}

TEST_F(FeedsOutlineNoticesTest, OfAParsedFeedReloadTheCollectionsThenItsRowAndThoseAboveIt) {
    notices::post(notices::didReceiveNewArticles, item);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem today", "reloadItem unread", "reloadItem saved", "reloadItem Feed", "reloadItem Inner",
                                 "reloadItem Outer"));
}

TEST_F(FeedsOutlineNoticesTest, OfAnIconReloadTheFeedsRow) {
    notices::post(notices::didUpdateFeedItemImage, item);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem Feed"));
}

TEST_F(FeedsOutlineNoticesTest, OfASavedArticleReloadTheSavedCollection) {
    notices::post(SavedArticlesManager::didSaveArticleNotification, item->articles().front());
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem saved"));
}

TEST_F(FeedsOutlineNoticesTest, OfAnUnsavedArticleReloadItsFeedAndWhatIsAboveToo) {
    notices::post(SavedArticlesManager::didUnsaveArticleNotification, item->articles().front());
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem saved", "reloadItem Feed", "reloadItem Inner", "reloadItem Outer"));
}

TEST_F(FeedsOutlineNoticesTest, OfAnUnsavedArticleWhoseFeedIsGoneReloadTheCollectionAlone) {
    notices::post(SavedArticlesManager::didUnsaveArticleNotification,
        std::make_shared<FeedItemArticle>(item->articles().front()->entry, std::weak_ptr<FeedItem>()));
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem saved"));
}

TEST_F(FeedsOutlineNoticesTest, OfANewEntryInsertItsRowInItsGroup) {
    const auto added = add(makeItem("New"), inner);
    notices::post(notices::didAddFeed, added);
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "insertItem 1 in Inner", "endUpdates"));
}

TEST_F(FeedsOutlineNoticesTest, OfANewEntryInsertItsRowAtTheEndOfTheTopLevel) {
    const auto added = add(FeedSeparator::make());
    notices::post(notices::didAddFeed, added);
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "insertItem 1 in FEEDS", "endUpdates"));
}

TEST_F(FeedsOutlineNoticesTest, OfSeveralNewEntriesInsertEachWhereItIs) {
    const auto first = add(makeItem("First"));
    const auto second = add(makeItem("Second"));
    notices::post(notices::didAddFeed, first);
    notices::post(notices::didAddFeed, second);
    EXPECT_THAT(takeCalls(),
        ElementsAre("beginUpdates", "insertItem 1 in FEEDS", "endUpdates", "beginUpdates", "insertItem 2 in FEEDS", "endUpdates"));
}

TEST_F(FeedsOutlineNoticesTest, OfAnEntryOutsideTheLibraryDoNothing) {
    const auto stranger = makeItem("Stranger");
    notices::post(notices::didAddFeed, stranger);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsOutlineNoticesTest, OfAnUpdatedFeedReloadItsRowThoseAboveItAndTheCollections) {
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem Feed", "reloadItem Inner", "reloadItem Outer", "reloadItem today", "reloadItem unread",
                                 "reloadItem saved"));
}

TEST_F(FeedsOutlineNoticesTest, OfAnUpdatedArticleReloadTheRowOfItsFeed) {
    const auto article = item->articles().front();
    parse(*item, {"b"}); // the article is no more in its feed
    notices::post(notices::didUpdateFeed, article);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadItem Feed", "reloadItem Inner", "reloadItem Outer", "reloadItem today", "reloadItem unread",
                                 "reloadItem saved"));
}

TEST_F(FeedsOutlineNoticesTest, OfOtherCollectionsReloadAllAndKeepTheCollectionSelected) {
    view->click(collectionRow(Collection::Kind::saved));
    setCollections(false, false, true);
    notices::post(notices::didUpdateCollections, nullptr);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData", "expandItem COLLECTIONS", "expandItem FEEDS", "selectRow saved"));
}

TEST_F(FeedsOutlineNoticesTest, OfOtherCollectionsKeepTheFeedSelected) {
    view->expanded.insert({outer, inner});
    view->click(item);
    setCollections(false, false, false);
    notices::post(notices::didUpdateCollections, nullptr);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData", "expandItem FEEDS", "expandItem Outer", "expandItem Inner", "selectRow Feed"));
}

TEST_F(FeedsOutlineNoticesTest, OfOtherCollectionsSelectNothingInPlaceOfOneThatIsGone) {
    view->click(collectionRow(Collection::Kind::today));
    ASSERT_THAT(controller->selectedItems(), SizeIs(1));
    setCollections(false, true, false);
    notices::post(notices::didUpdateCollections, nullptr);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData", "expandItem COLLECTIONS", "expandItem FEEDS"));
    EXPECT_THAT(controller->selectedItems(), IsEmpty());
}

TEST_F(FeedsOutlineNoticesTest, AreHeardNoMoreWhenTheControllerIsGone) {
    controller.reset();
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

} // namespace
} // namespace brindle
