#include "Brindle/browser/BrowserActions.hpp"
#include "tests/browser/BrowserWindowFixture.hpp"

namespace brindle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FeedsBrowserWindowControllerTest : public BrowserWindowTest {};

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
    EXPECT_THAT(takeCalls(),
        ElementsAre("expandItem FEEDS", "expandItem Group", "selectRow x", "scrollRowToVisible x", "showWindow", "setTitle Feeds Browser"));
}

TEST_F(FeedsBrowserWindowControllerTest, ListsTheArticlesOfAFeedThatItRevealsBeforeItHasTheKeyboard) {
    controller.selectedFeed = x;
    controller.showWindow();
    EXPECT_THAT(listed(), ElementsAre("x one", "x two"));
    EXPECT_EQ(feeds->selectedFeed(), x);
    EXPECT_TRUE(toolbarItem->isEnabled());
    EXPECT_THAT(application->log, IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, RevealsASeparatorWithoutListingAnything) {
    outline->click(b);
    takeCalls();
    controller.selectedFeed = separator;
    controller.showWindow();
    EXPECT_THAT(
        takeCalls(), ElementsAre("expandItem FEEDS", "selectRow -", "scrollRowToVisible -", "showWindow", "setTitle Feeds Browser"));
    EXPECT_EQ(feeds->selectedFeed(), separator);
    EXPECT_EQ(toolbarItem->selectedFeed(), separator);
    EXPECT_THAT(listed(), ElementsAre("b one"));
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

TEST_F(FeedsBrowserWindowControllerTest, SendsWhatNoPaneTakesToTheApplication) {
    auto other = FeedsBrowserSplitViewController::make(environment, toolbarItem, container);
    const auto pane = other->feedsViewController().shared_from_this();
    pane->feedsOutlineView = outline;
    pane->viewDidLoad();
    other.reset();
    outline->click(b);
    outline->click(outline->itemAtRow(1));
    ASSERT_THAT(application->log, ElementsAre("showFeed:", "showCollectionArticles:"));
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
    becomeKey();
    outline->click(b);
    environment.responderChain->perform(Action{browseractions::deleteFeed});
    EXPECT_THAT(takeCalls(), ElementsAre("runModal Delete Feed?", "beginUpdates", "removeItem 2 in FEEDS", "endUpdates", "refreshInterface",
                                 "reloadItem today", "reloadItem unread", "reloadItem saved"));
    EXPECT_EQ(alerts->alerts.front(), (Alert{"Delete Feed?", "This action cannot be undone.", {"Yes", "Cancel"}}));
    EXPECT_THAT(names(manager->feeds), ElementsAre("Group", "-"));
    EXPECT_THAT(listed(), IsEmpty());
    EXPECT_EQ(feeds->selectedFeed(), nullptr);
    EXPECT_FALSE(toolbarItem->isEnabled());
}

TEST_F(FeedsBrowserWindowControllerTest, RemovesAnEntryThatIsNotSelectedAndKeepsTheSelection) {
    becomeKey();
    outline->click(b);
    takeCalls();
    feeds->removeFeed(separator);
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "removeItem 1 in FEEDS", "endUpdates", "refreshInterface", "reloadItem today",
                                 "reloadItem unread", "reloadItem saved"));
    EXPECT_THAT(names(manager->feeds), ElementsAre("Group", "b"));
    EXPECT_EQ(feeds->selectedFeed(), b);
    EXPECT_TRUE(toolbarItem->isEnabled());
    EXPECT_THAT(listed(), ElementsAre("b one"));
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
    becomeKey();
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
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "removeItem 0 in Group", "endUpdates", "refreshInterface", "reloadItem today",
                                 "reloadItem unread", "reloadItem saved", "reloadItem Group"));
    EXPECT_THAT(group->feeds(), IsEmpty());
    EXPECT_THAT(alerts->alerts, IsEmpty());
    controller.removeSelectedFeed();
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(FeedsBrowserWindowControllerTest, EmptiesTheListAfterARemovalWhenAllElseKnowsOfIt) {
    outline->click(b);
    takeCalls();
    table->log = log;
    controller.removeSelectedFeed();
    EXPECT_THAT(takeCalls(), ElementsAre("beginUpdates", "removeItem 2 in FEEDS", "endUpdates", "refreshInterface", "reloadItem today",
                                 "reloadItem unread", "reloadItem saved", "show sourceColumn", "reloadData"));
}

TEST_F(FeedsBrowserWindowControllerTest, EndsTheTimerOfARemovedFeed) {
    b->scheduleUpdates(false);
    outline->click(b);
    controller.removeSelectedFeed();
    EXPECT_FALSE(b->hasTimer());
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
