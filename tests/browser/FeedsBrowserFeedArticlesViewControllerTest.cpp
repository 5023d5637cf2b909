#include "Brindle/browser/FeedsBrowserFeedArticlesViewController.hpp"
#include "Brindle/browser/ArticleNameTableCellView.hpp"
#include "Brindle/browser/ChangeNotices.hpp"
#include "Brindle/browser/ImageTableCellView.hpp"
#include "tests/browser/BrowserFixture.hpp"
#include "tests/fakes/TableViewFake.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedsBrowserFeedArticlesViewControllerTest : public BrowserTest {
protected:
    using Controller = FeedsBrowserFeedArticlesViewController;

    FeedsBrowserFeedArticlesViewControllerTest() {
        controller->articlesTableView = table;
        controller->viewDidLoad();
    }

    template <typename Cell>
    std::shared_ptr<Cell> cell(std::string_view column, std::size_t row = 0) const {
        return std::dynamic_pointer_cast<Cell>(controller->viewFor(column, row));
    }
    void showFeed() {
        controller->showFeed(item);
        takeCalls();
    }
    void markRead(std::size_t index) { item->markArticle(*item->articles().at(index), ArticleStateFilter::read); }
    std::vector<std::string> shown() const { return titles(controller->feedItemArticles()); }

    std::shared_ptr<FeedItem> item = add(makeItem("Feed", {"one", "two"}));
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>(log);
    std::shared_ptr<Controller> controller = Controller::make(environment);
};

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ServesTheTable) {
    EXPECT_EQ(table->dataSource.lock(), controller);
    showFeed();
    EXPECT_EQ(controller->numberOfRows(), 2U);
    EXPECT_EQ(controller->heightOfRow(0), 32.0);
    EXPECT_TRUE(controller->shouldSelectRow(1));
    EXPECT_EQ(controller->viewFor("unknownColumn", 0), nullptr);
    EXPECT_EQ(controller->viewFor("nameColumn", 2), nullptr);
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsTheArticlesOfAFeedWithoutTheirSource) {
    controller->showFeed(item);
    EXPECT_THAT(shown(), ElementsAre("one", "two"));
    EXPECT_FALSE(controller->isCollection());
    EXPECT_THAT(takeCalls(), ElementsAre("hide sourceColumn", "reloadData"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsTheArticlesOfAllBelowAGroup) {
    const auto group = add(FeedGroup::make("Group"));
    add(makeItem("Inner", {"three"}), group);
    add(makeItem("Other", {"four"}), group);
    controller->showFeed(group);
    EXPECT_THAT(shown(), ElementsAre("three", "four"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsACollectionWithTheSourcesOfItsArticles) {
    controller->showCollection(item->articles());
    EXPECT_TRUE(controller->isCollection());
    EXPECT_THAT(takeCalls(), ElementsAre("show sourceColumn", "reloadData"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, IsEmptyForNoFeed) {
    showFeed();
    controller->showFeed(nullptr);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, HidesTheSourceWhenItAppearsUnlessItShowsACollection) {
    controller->viewDidAppear();
    EXPECT_THAT(takeCalls(), ElementsAre("hide sourceColumn"));
    controller->showCollection({});
    takeCalls();
    controller->viewDidAppear();
    EXPECT_THAT(takeCalls(), ElementsAre("show sourceColumn"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ReloadsTheTable) {
    controller->reloadArticles();
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ShowsTheIconOfAnArticlesFeed) {
    showFeed();
    EXPECT_EQ(cell<ImageTableCellView>("sourceColumn")->imageView.image(), Image::defaultFeedIcon());
    item->setFeedImageData("bytes");
    EXPECT_EQ(cell<ImageTableCellView>("sourceColumn")->imageView.image(), Image::withData("bytes"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ShowsTheDefaultIconForAnArticleWhoseFeedIsGone) {
    controller->showCollection({std::make_shared<FeedItemArticle>(item->articles().front()->entry, std::weak_ptr<FeedItem>())});
    EXPECT_EQ(cell<ImageTableCellView>("sourceColumn")->imageView.image(), Image::defaultFeedIcon());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, MarksAnUnreadArticleByAnImage) {
    showFeed();
    EXPECT_EQ(cell<ImageTableCellView>("statusColumn")->imageView.image(), Image::named("NSImageNameStatusUnavailable"));
    markRead(0);
    EXPECT_EQ(cell<ImageTableCellView>("statusColumn")->imageView.image(), std::nullopt);
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ShowsTheTitleAndWhetherTheArticleIsSaved) {
    showFeed();
    EXPECT_EQ(cell<ArticleNameTableCellView>("nameColumn")->nameTextField.stringValue(), "one");
    EXPECT_EQ(cell<ArticleNameTableCellView>("nameColumn")->article, item->articles().front());
    EXPECT_TRUE(cell<ArticleNameTableCellView>("nameColumn")->savedImageView.isHidden());
    saved->saveArticle(item->articles().front());
    EXPECT_FALSE(cell<ArticleNameTableCellView>("nameColumn")->savedImageView.isHidden());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, MarksASelectedArticleReadBeforeItIsShown) {
    showFeed();
    bool wasRead = false;
    const auto token =
        NotificationCenter::defaultCenter().addObserver(notices::didUpdateFeed, nullptr, [&](const Notification& notification) {
            log->push_back(notification.object == item->articles()[1].get() ? "didUpdateFeed" : "other");
            wasRead = item->articles()[1]->entry->isRead() && application->log.empty();
        });
    table->select({1});
    EXPECT_THAT(takeCalls(),
        ElementsAre("refreshInterface", "reloadRow 1 statusColumn nameColumn", "reloadRow 1 statusColumn nameColumn", "didUpdateFeed"));
    EXPECT_TRUE(wasRead);
    EXPECT_EQ(item->articleStateCache.at(item->articles()[1]->articleStateKey()), 1);
    EXPECT_THAT(application->log, ElementsAre("showArticle:"));
    EXPECT_EQ(application->senders.front()->representedObject(), item->articles()[1]);
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, OnlyShowsASelectedArticleThatIsRead) {
    markRead(0);
    showFeed();
    table->select({0});
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_THAT(application->log, ElementsAre("showArticle:"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, DoesNothingForNoSelectedRow) {
    showFeed();
    table->select({});
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_THAT(application->log, IsEmpty());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ShowsAnArticleWhoseFeedIsGoneUnread) {
    const auto article = std::make_shared<FeedItemArticle>(item->articles().front()->entry, std::weak_ptr<FeedItem>());
    controller->showCollection({article});
    table->select({0});
    EXPECT_FALSE(article->entry->isRead());
    EXPECT_THAT(application->log, ElementsAre("showArticle:"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ReloadsTheRowsThatDifferOfAnUpdatedFeed) {
    showFeed();
    markRead(1);
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 1 sourceColumn statusColumn nameColumn"));
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsTheNewArticlesOfAParsedFeed) {
    showFeed();
    parse(*item, {"zero", "one", "two"});
    notices::post(notices::didReceiveNewArticles, item);
    EXPECT_THAT(shown(), ElementsAre("zero", "one", "two"));
    EXPECT_EQ(controller->feedItemArticles(), item->articles());
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ReloadsTheTableWhereArticlesHaveOtherPlaces) {
    showFeed();
    parse(*item, {"zero", "one"});
    notices::post(notices::didReceiveNewArticles, item);
    EXPECT_THAT(shown(), ElementsAre("zero", "one"));
    EXPECT_THAT(takeCalls(), ElementsAre("reloadData"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsTheNewArticlesOfAParsedFeedBelowItsGroup) {
    const auto group = add(FeedGroup::make("Group"));
    const auto below = add(makeItem("Below", {"three"}), add(FeedGroup::make("Inner"), group));
    controller->showFeed(group);
    takeCalls();
    parse(*below, {"three"});
    notices::post(notices::didReceiveNewArticles, below);
    EXPECT_EQ(controller->feedItemArticles(), below->articles());
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 0 sourceColumn statusColumn nameColumn"));
    parse(*below, {"three", "four"});
    notices::post(notices::didReceiveNewArticles, below);
    EXPECT_THAT(shown(), ElementsAre("three", "four"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ReloadsTheRowsThatAreReadSinceAnUpdateOfTheGroupAbove) {
    const auto group = add(FeedGroup::make("Group"));
    const auto below = add(makeItem("Below", {"three"}), group);
    controller->showFeed(below);
    takeCalls();
    manager->markArticles(ArticleStateFilter::read, group);
    notices::post(notices::didUpdateFeed, group);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 0 sourceColumn statusColumn nameColumn"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, LeavesItsListWhenAnotherFeedIsUpdated) {
    showFeed();
    const auto other = add(makeItem("Other", {"three"}));
    notices::post(notices::didUpdateFeed, other);
    EXPECT_THAT(shown(), ElementsAre("one", "two"));
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, KeepsTheRowsOfACollectionWhenAFeedIsUpdated) {
    showFeed();
    controller->showCollection({item->articles()[0]});
    takeCalls();
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(takeCalls(), IsEmpty());
    markRead(0);
    notices::post(notices::didUpdateFeed, item);
    EXPECT_THAT(shown(), ElementsAre("one"));
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 0 sourceColumn statusColumn nameColumn"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ListsTheArticlesOfACollectionAsTheyAreAfterAParse) {
    const auto other = add(makeItem("Other", {"three"}));
    controller->showCollection({item->articles()[0], other->articles()[0], item->articles()[1]});
    takeCalls();
    parse(*item, {"zero", "one"});
    notices::post(notices::didReceiveNewArticles, item);
    EXPECT_THAT(shown(), ElementsAre("one", "three", "two"));
    EXPECT_EQ(controller->feedItemArticles()[0], item->articles()[1]);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 0 sourceColumn statusColumn nameColumn"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, KeepsEachOfTwoArticlesWithOneKeyInACollection) {
    parse(*item, {"same", "same"});
    controller->showCollection(item->articles());
    takeCalls();
    notices::post(notices::didUpdateFeed, item);
    EXPECT_EQ(controller->feedItemArticles(), item->articles());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, ReloadsTheRowOfAnUpdatedArticle) {
    showFeed();
    notices::post(notices::didUpdateFeed, item->articles()[1]);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 1 statusColumn nameColumn"));
}

TEST_F(FeedsBrowserFeedArticlesViewControllerTest, RefreshesTheSavedMarksOfTheSelectedRows) {
    showFeed();
    table->selection = {0, 1};
    notices::post(SavedArticlesManager::didSaveArticleNotification, item->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 0 nameColumn", "reloadRow 1 nameColumn"));
    table->selection = {1};
    notices::post(SavedArticlesManager::didUnsaveArticleNotification, item->articles()[0]);
    EXPECT_THAT(takeCalls(), ElementsAre("reloadRow 1 nameColumn"));
}

} // namespace
} // namespace brindle
