#include "Brindle/browser/FeedsBrowserWindowController.hpp"
#include "Brindle/browser/BrowserActions.hpp"
#include "Brindle/browser/ChangeNotices.hpp"
#include "tests/browser/OutlineFixture.hpp"
#include "tests/fakes/TableViewFake.hpp"
#include "tests/fakes/WebViewFake.hpp"
#include "tests/fakes/WindowFake.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The whole browser on the tree: Group(x), -, b. The split view is the first of the responder chain, the application the last.
class FeedsBrowserWindowControllerTest : public BrowserTest {
protected:
    FeedsBrowserWindowControllerTest() {
        outline->name = rowName;
        feeds->feedsOutlineView = outline;
        feeds->viewDidLoad();
        articles->articlesTableView = table;
        articles->viewDidLoad();
        article->viewDidLoad();
        environment.responderChain->setHandlers({split, feeds, application});
        controller.windowDidLoad();
        takeCalls();
    }

    void search(const std::string& term) {
        controller.searchField.setStringValue(term);
        controller.controlTextDidChange();
    }
    std::vector<std::string> listed() const { return titles(articles->feedItemArticles()); }
    bool isFeedsListCollapsed() const { return split->splitViewItems.front().isCollapsed(); }

    std::shared_ptr<FeedGroup> group = add(FeedGroup::make("Group"));
    std::shared_ptr<FeedItem> x = add(makeItem("x", {"x one", "x two"}), group);
    std::shared_ptr<FeedSeparator> separator = add(FeedSeparator::make());
    std::shared_ptr<FeedItem> b = add(makeItem("b", {"b one"}));
    std::shared_ptr<OutlineViewFake> outline = std::make_shared<OutlineViewFake>(log);
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>(makeCallLog());
    std::shared_ptr<WebContainerViewFake> container = std::make_shared<WebContainerViewFake>(makeCallLog());
    std::shared_ptr<WindowFake> window = std::make_shared<WindowFake>(log);
    std::shared_ptr<RemoveFeedToolbarItem> toolbarItem = std::make_shared<RemoveFeedToolbarItem>();
    std::shared_ptr<FeedsBrowserFeedsViewController> feeds = FeedsBrowserFeedsViewController::make(environment, toolbarItem);
    std::shared_ptr<FeedsBrowserFeedArticlesViewController> articles = FeedsBrowserFeedArticlesViewController::make(environment);
    std::shared_ptr<FeedsBrowserArticleViewController> article = FeedsBrowserArticleViewController::make(environment, container, false);
    std::shared_ptr<FeedsBrowserSplitViewController> split = std::make_shared<FeedsBrowserSplitViewController>(feeds, articles, article);
    FeedsBrowserWindowController controller{environment, window, split, toolbarItem};
};

TEST_F(FeedsBrowserWindowControllerTest, RestoresItsFrame) {
    FeedsBrowserWindowController other(environment, window, split, toolbarItem);
    other.windowDidLoad();
    EXPECT_THAT(
        takeCalls(), ElementsAre("setFrameAutosaveName FeedsBrowserWindowController", "setFrameUsingName FeedsBrowserWindowController"));
}

TEST_F(FeedsBrowserWindowControllerTest, BuildsThePopUpOfTheToolbar) {
    std::vector<std::string> items;
    for (const auto& item : controller.feedPopUpButton.menu().items())
        items.push_back(item->isSeparator() ? "-" : item->title() + " " + std::string(item->action()));
    EXPECT_THAT(items, ElementsAre("Add Feed newFeed:", "Add Group newGroup:", "Add Separator newSeparator:", "-",
                           "Import Feeds... importOPML:", "Export Feeds... exportOPML:"));
}

TEST_F(FeedsBrowserWindowControllerTest, DispatchesTheChosenItemOfThePopUpByItsTag) {
    controller.feedPopUpChanged();
    for (std::int64_t tag = 0; tag < 5; ++tag) {
        ASSERT_TRUE(controller.feedPopUpButton.selectItem(tag));
        controller.feedPopUpChanged();
    }
    EXPECT_THAT(application->log, ElementsAre("newFeed:", "newGroup:", "newSeparator:", "importOPML:", "exportOPML:"));
}

TEST_F(FeedsBrowserWindowControllerTest, ShowsItsWindowThenSetsTheTitle) {
    controller.showWindow();
    EXPECT_THAT(takeCalls(), ElementsAre("showWindow", "setTitle Feeds Browser"));
    EXPECT_TRUE(split->splitViewItems.front().allowsFullHeightLayout());
    EXPECT_TRUE(controller.isWindowVisible());
}

TEST_F(FeedsBrowserWindowControllerTest, RevealsTheFeedThatItIsShownFor) {
    controller.selectedFeed = x;
    controller.showWindow();
    EXPECT_THAT(
        takeCalls(), ElementsAre("expandItem Group", "selectRow x", "scrollRowToVisible x", "showWindow", "setTitle Feeds Browser"));
}

TEST_F(FeedsBrowserWindowControllerTest, RevealsNothingThatIsSelectedAlready) {
    outline->click(b);
    controller.selectedFeed = b;
    controller.showWindow();
    EXPECT_THAT(takeCalls(), ElementsAre("showWindow", "setTitle Feeds Browser"));
}

TEST_F(FeedsBrowserWindowControllerTest, ListsTheArticlesOfTheSelectedFeedOrGroup) {
    outline->click(b);
    EXPECT_EQ(feeds->selectedFeed(), b);
    EXPECT_EQ(toolbarItem->selectedFeed(), b);
    EXPECT_THAT(listed(), ElementsAre("b one"));
    EXPECT_FALSE(articles->isCollection());
    outline->click(group);
    EXPECT_THAT(listed(), ElementsAre("x one", "x two"));
}

TEST_F(FeedsBrowserWindowControllerTest, ListsTheArticlesOfTheSelectedCollection) {
    collections->refreshCollections();
    outline->click(outline->itemAtRow(2));
    EXPECT_EQ(feeds->selectedFeed(), nullptr);
    EXPECT_FALSE(toolbarItem->isEnabled());
    EXPECT_TRUE(articles->isCollection());
    EXPECT_THAT(listed(), ElementsAre("x one", "x two", "b one"));
}

TEST_F(FeedsBrowserWindowControllerTest, SendsNothingForNoSelection) {
    outline->click(b);
    outline->click(nullptr);
    EXPECT_EQ(feeds->selectedFeed(), nullptr);
    EXPECT_FALSE(toolbarItem->isEnabled());
    EXPECT_THAT(listed(), ElementsAre("b one"));
}

TEST_F(FeedsBrowserWindowControllerTest, SendsTheSelectionAlongTheChain) {
    environment.responderChain->setHandlers({application});
    outline->click(b);
    outline->click(outline->itemAtRow(1));
    EXPECT_THAT(application->log, ElementsAre("showFeed:", "showCollectionArticles:"));
    EXPECT_EQ(application->senders.front()->representedObject(), b);
}

TEST_F(FeedsBrowserWindowControllerTest, ShowsTheSelectedArticleInItsOwnPane) {
    outline->click(b);
    table->select({0});
    EXPECT_EQ(article->article(), b->articles().front());
    EXPECT_THAT(application->log, IsEmpty());
    table->select({});
    EXPECT_EQ(article->article(), b->articles().front());
}

TEST_F(FeedsBrowserWindowControllerTest, EditsTheFeedOrGroupThatIsDoubleClicked) {
    outline->click(b);
    feeds->editFeed();
    outline->click(group);
    feeds->editFeed();
    EXPECT_THAT(takeCalls(), ElementsAre("editFeedItem b", "editFeedGroup Group"));
}

TEST_F(FeedsBrowserWindowControllerTest, EditsNothingElse) {
    outline->click(separator);
    feeds->editFeed();
    outline->click(outline->itemAtRow(1));
    feeds->editFeed();
    outline->clicked.reset();
    feeds->editFeed();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, DeletesTheSelectedFeedWhenThePersonConfirms) {
    outline->click(b);
    environment.responderChain->perform(Action{browseractions::deleteFeed});
    EXPECT_THAT(
        takeCalls(), ElementsAre("runModal Delete Feed?", "beginUpdates", "removeItem 2 in FEEDS", "endUpdates", "refreshInterface"));
    EXPECT_EQ(alerts->alerts.front(), (Alert{"Delete Feed?", "This action cannot be undone.", {"Yes", "Cancel"}}));
    EXPECT_THAT(names(manager->feeds), ElementsAre("Group", "-"));
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(feeds->selectedFeed(), nullptr);
    EXPECT_FALSE(toolbarItem->isEnabled());
}

TEST_F(FeedsBrowserWindowControllerTest, DeletesNothingWhenThePersonCancels) {
    outline->click(b);
    alerts->response = Alert::firstButtonReturn + 1;
    feeds->deleteFeed();
    EXPECT_THAT(names(manager->feeds), ElementsAre("Group", "-", "b"));
    EXPECT_EQ(feeds->selectedFeed(), b);
}

TEST_F(FeedsBrowserWindowControllerTest, TellsThatNoFeedIsSelected) {
    feeds->deleteFeed();
    EXPECT_THAT(takeCalls(), ElementsAre("beginSheet No feed selected!"));
    EXPECT_EQ(alerts->alerts.front().informativeText, "Please select a feed to remove.");
}

TEST_F(FeedsBrowserWindowControllerTest, AllowsDeletingOnlyWithASelectedFeed) {
    const MenuItem item("Delete", browseractions::deleteFeed);
    EXPECT_FALSE(environment.responderChain->validate(item));
    outline->click(b);
    EXPECT_TRUE(environment.responderChain->validate(item));
    EXPECT_FALSE(feeds->validateUserInterfaceItem("copy:"));
}

TEST_F(FeedsBrowserWindowControllerTest, RemovesByTheToolbarWithoutAQuestion) {
    outline->expandItem(group);
    outline->click(x);
    takeCalls();
    controller.removeSelectedFeed();
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "removeItem 0 in Group", "endUpdates", "refreshInterface"));
    EXPECT_THAT(group->feeds(), IsEmpty());
    EXPECT_THAT(alerts->alerts, IsEmpty());
    controller.removeSelectedFeed();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, SearchesAllFeedsWhateverIsSelected) {
    outline->click(b);
    table->select({0});
    search("ONE");
    EXPECT_THAT(listed(), ElementsAre("x one", "b one"));
    EXPECT_TRUE(isFeedsListCollapsed());
    EXPECT_EQ(article->article(), nullptr);
}

TEST_F(FeedsBrowserWindowControllerTest, ChangesNothingWhenASearchBegins) {
    outline->click(b);
    takeCalls();
    controller.searchFieldDidStartSearching();
    EXPECT_THAT(listed(), ElementsAre("b one"));
    EXPECT_FALSE(isFeedsListCollapsed());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, StaysEmptyAndCollapsedForATermWithoutMatches) {
    outline->click(b);
    search("nothing");
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_TRUE(isFeedsListCollapsed());
    search("");
    EXPECT_THAT(listed(), ElementsAre("b one"));
    EXPECT_FALSE(isFeedsListCollapsed());
}

TEST_F(FeedsBrowserWindowControllerTest, IsEmptyAfterASearchWhereNoFeedIsSelected) {
    search("one");
    search("");
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, KeepsAFeedsUpdateOutOfTheMatches) {
    outline->click(b);
    search("two");
    parse(*b, {"b three"});
    NotificationCenter::defaultCenter().post(notices::didReceiveNewArticles, b.get());
    EXPECT_THAT(listed(), ElementsAre("x two"));
}

TEST_F(FeedsBrowserWindowControllerTest, AnswersWhetherPanesMayCollapse) {
    EXPECT_FALSE(split->canCollapseSubview(0));
    split->canCollapse = true;
    EXPECT_TRUE(split->canCollapseSubview(0));
}

TEST_F(FeedsBrowserWindowControllerTest, DoesNothingForActionsAboutOtherThings) {
    outline->click(b);
    split->perform(Action{browseractions::showFeed});
    split->perform(Action{browseractions::showCollectionArticles});
    split->perform(Action{browseractions::showArticle});
    EXPECT_THAT(listed(), ElementsAre("b one"));
}

TEST_F(FeedsBrowserWindowControllerTest, DisablesTheToolbarItemWhenItsFeedIsGone) {
    auto stranger = makeItem("Stranger");
    toolbarItem->setSelectedFeed(stranger);
    EXPECT_TRUE(toolbarItem->isEnabled());
    stranger.reset();
    EXPECT_FALSE(toolbarItem->isEnabled());
}

} // namespace
} // namespace brindle
