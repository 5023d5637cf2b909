#include "Brindle/shell/FeedsPickerViewController.hpp"
#include "Brindle/shell/NewFeedItemViewController.hpp"
#include "foundation/FileManager.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/fakes/TableViewFake.hpp"
#include "tests/shell/AppDelegateFixture.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <algorithm>

namespace brindle {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr const char* feedText = "<rss><channel><title>T</title><item><title>One</title></item></channel></rss>";

} // namespace

/// The window as the application opens it, with feeds of a server on this machine.
class NewFeedWindowTest : public AppDelegateTest {
protected:
    NewFeedWindowTest() {
        environment.sessions.route = route;
        remake();
        feedsManager().createSupportDirectories();
    }

    NewFeedItemViewController& newFeed() {
        delegate->newFeed();
        return item();
    }
    NewFeedItemViewController& edit(const std::shared_ptr<FeedItem>& feed) {
        delegate->editFeedItem(feed);
        return item();
    }
    NewFeedItemViewController& item() { return *windows->newFeed->newFeedItemViewController(); }
    NewFeedGroupViewController& group() { return *windows->newFeed->newFeedGroupViewController(); }
    bool isOpen() const { return windows->newFeedWindow->isVisible(); }

    void serve(const std::string& path, const std::string& body) { server.route(path, HTTPServer::document(body)); }
    /// A page that announces feeds at paths, each under its path as the title.
    void servePage(const std::vector<std::string>& paths) {
        std::string head;
        for (const std::string& path : paths) {
            head.append(R"(<link rel="alternate" type="application/rss+xml" title=")").append(path);
            head.append(R"(" href=")").append(server.origin()).append(path).append(R"("/>)");
        }
        serve("/page", "<html><head>" + head + "</head><body>Text</body></html>");
    }
    /// Types an address and presses "OK".
    void confirm(const std::string& address, const std::string& name = {}) {
        item().nameTextField.setStringValue(name);
        item().urlTextField.setStringValue(address);
        item().handleOK();
    }
    /// The picker of a page with two feeds, in a window of its own.
    std::shared_ptr<FeedsPickerViewController> pick(const std::string& name = {}) {
        serve("/a", feedText);
        serve("/b", feedText);
        servePage({"/a", "/b"});
        std::shared_ptr<FeedsPickerViewController> picker;
        newFeed().showFeedsPicker = [&](const std::shared_ptr<FeedsPickerViewController>& shown) { picker = shown; };
        confirm(server.origin() + "/page", name);
        EXPECT_TRUE(runMainLoop([&] { return picker != nullptr; }));
        picker->feedsTableView = table;
        picker->window = pickerWindow;
        picker->viewDidLoad();
        pickerWindow->show();
        takeCalls();
        return picker;
    }
    static FeedsPickerCell& cell(const FeedsPickerViewController& picker, std::size_t row) {
        return static_cast<FeedsPickerCell&>(*picker.viewFor("FeedCell", row));
    }
    bool isSaved() const { return FileManager::fileExists(environment.supportDirectory / "Feeds.brindle"); }
    void expectAlert(const std::string& how, const Alert& alert) {
        ASSERT_EQ(alerts->alerts.size(), 1U);
        EXPECT_EQ(alerts->alerts[0], alert);
        EXPECT_EQ(std::ranges::count(*log, how + " " + alert.messageText), 1);
    }

    HTTPServer server;
    std::shared_ptr<NetworkRouteFake> route = std::make_shared<NetworkRouteFake>();
    std::shared_ptr<TableViewFake> table = std::make_shared<TableViewFake>();
    std::shared_ptr<WindowFake> pickerWindow = std::make_shared<WindowFake>();
};

TEST_F(NewFeedWindowTest, OpensOnAnEmptyFormWithTheAddressReadyForTyping) {
    NewFeedItemViewController& pane = newFeed();
    EXPECT_THAT(takeCalls(), ElementsAre("setDelegate", "setTitle New Feed", "showWindow"));
    EXPECT_EQ(pane.title(), "New Feed");
    EXPECT_EQ(pane.nameTextField.stringValue(), "");
    EXPECT_EQ(pane.urlTextField.stringValue(), "");
    EXPECT_TRUE(pane.nameTextField.isEditable());
    EXPECT_TRUE(pane.urlTextField.isEditable());
    EXPECT_EQ(pane.refreshRatePopupButton.selectedTag(), 5);
    EXPECT_EQ(pane.statusImageView.image(), std::nullopt);
    EXPECT_EQ(windows->newFeedWindow->firstResponder, &pane.urlTextField);
}

TEST_F(NewFeedWindowTest, IsMadeOnceAndForgetsWhatWasTyped) {
    newFeed().nameTextField.setStringValue("typed");
    const auto* const made = windows->newFeed.get();
    item().handleCancel();
    EXPECT_EQ(newFeed().nameTextField.stringValue(), "");
    EXPECT_EQ(windows->newFeed.get(), made);
}

TEST_F(NewFeedWindowTest, ShowsTheFeedThatIsEditedAndStopsItsTimer) {
    const auto feed = add(makeItem("Mine"));
    feed->updateRate = 60;
    feed->scheduleUpdates(false);
    NewFeedItemViewController& pane = edit(feed);
    EXPECT_EQ(pane.title(), "Edit Feed");
    EXPECT_EQ(pane.nameTextField.stringValue(), "Mine");
    EXPECT_EQ(pane.urlTextField.stringValue(), "http://127.0.0.1/Mine");
    EXPECT_FALSE(pane.urlTextField.isEditable());
    EXPECT_EQ(pane.refreshRatePopupButton.selectedTag(), 60);
    EXPECT_FALSE(feed->hasTimer());
    EXPECT_EQ(windows->newFeedWindow->firstResponder, nullptr);
}

TEST_F(NewFeedWindowTest, ShowsTheParsedTitleOfAFeedWithoutAName) {
    const auto feed = add(makeItem(""));
    feed->session().feed()->title = "Parsed";
    EXPECT_EQ(edit(feed).nameTextField.stringValue(), "Parsed");
}

TEST_F(NewFeedWindowTest, OffersARateThatIsNotAmongTheUsualOnes) {
    const auto feed = add(makeItem("Mine"));
    feed->updateRate = 42;
    NewFeedItemViewController& pane = edit(feed);
    ASSERT_EQ(pane.refreshRatePopupButton.selectedTag(), 42);
    EXPECT_EQ(pane.refreshRatePopupButton.selectedItem()->title(), "Every 42 minutes");
    pane.handleOK();
    EXPECT_EQ(feed->updateRate, 42);
}

TEST_F(NewFeedWindowTest, TellsOfAnEmptyAddress) {
    newFeed().handleOK();
    expectAlert("beginSheet", {"URL cannot be empty", "Please provide a valid URL of the feed."});
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(item().progressIndicator.isAnimating());
}

TEST_F(NewFeedWindowTest, TellsOfAnInvalidAddressAndChangesNothingElse) {
    newFeed();
    confirm("httpexample.test", "kept");
    expectAlert("beginSheet", {"invalidURLDialogTitle", "invalidURLDialogMessage"});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(item().newFeedItem(), nullptr);
    EXPECT_EQ(item().nameTextField.stringValue(), "kept");
    EXPECT_EQ(item().statusImageView.image(), std::nullopt);
    EXPECT_FALSE(item().progressIndicator.isAnimating());
}

TEST_F(NewFeedWindowTest, AddsAFeedThatParsedAndCloses) {
    serve("/feed", feedText);
    add(FeedGroup::make("G"));
    newFeed().refreshRatePopupButton.choose(120);
    takeCalls();
    confirm(server.origin() + "/feed", "Mine");
    EXPECT_TRUE(item().progressIndicator.isAnimating());
    EXPECT_THAT(names(), ElementsAre("G"));
    EXPECT_TRUE(runMainLoop([&] { return !isOpen(); }));
    EXPECT_THAT(names(), ElementsAre("G", "Mine"));
    const auto added = std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds.back());
    EXPECT_EQ(added->updateRate, 120);
    EXPECT_EQ(added->delegate.lock(), delegate->uiSyncDispatcher());
    EXPECT_TRUE(isSaved());
    EXPECT_FALSE(item().progressIndicator.isAnimating());
    EXPECT_THAT(alerts->alerts, IsEmpty());
    // The menu and the badge are those of the new library before any window hears of the feed, and the pane goes last.
    EXPECT_THAT(takeCalls(), ElementsAre("Removing FeedGroup __SAVED_FEED_GROUP__", "badge 1", "didAddFeed Mine", "closeWindow"));
}

TEST_F(NewFeedWindowTest, LeavesTheNameEmptySoThatTheParsedTitleShows) {
    serve("/feed", feedText);
    newFeed();
    confirm(server.origin() + "/feed");
    EXPECT_TRUE(runMainLoop([&] { return !isOpen(); }));
    EXPECT_THAT(names(), ElementsAre("T"));
    std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0])->session().feed()->title = "Later";
    EXPECT_THAT(names(), ElementsAre("Later"));
}

TEST_F(NewFeedWindowTest, StaysOpenWithACautionWhenTheFeedCanNotBeRead) {
    serve("/feed", "no feed");
    newFeed();
    confirm(server.origin() + "/feed");
    EXPECT_TRUE(runMainLoop([&] { return !alerts->alerts.empty(); }));
    expectAlert("beginSheet", {"An error occured", "Could not connect to or parse feed. Please check the URL is correct and try again."});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(item().newFeedItem(), nullptr);
    EXPECT_FALSE(item().progressIndicator.isAnimating());
    EXPECT_EQ(item().statusImageView.image(), Image::named("NSImageNameCaution"));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(isSaved());
}

TEST_F(NewFeedWindowTest, StaysOpenWithACautionWhenAPageAnnouncesNoFeed) {
    servePage({});
    newFeed();
    confirm(server.origin() + "/page");
    EXPECT_TRUE(runMainLoop([&] { return !alerts->alerts.empty(); }));
    expectAlert("runModal", {"No Feeds Found!", "Brindle could not find any feeds associated to " + server.origin() + "/page"});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(item().statusImageView.image(), Image::named("NSImageNameCaution"));
}

TEST_F(NewFeedWindowTest, ClearsTheCautionWhenItIsOpenedAgain) {
    serve("/feed", "no feed");
    newFeed();
    confirm(server.origin() + "/feed");
    EXPECT_TRUE(runMainLoop([&] { return !alerts->alerts.empty(); }));
    item().handleCancel();
    EXPECT_EQ(newFeed().statusImageView.image(), std::nullopt);
}

TEST_F(NewFeedWindowTest, ASecondTryReplacesTheFirst) {
    serve("/feed", feedText);
    newFeed();
    confirm(server.origin() + "/never");
    const std::weak_ptr<FeedItem> first = item().newFeedItem();
    confirm(server.origin() + "/feed", "Second");
    EXPECT_TRUE(first.expired());
    EXPECT_TRUE(runMainLoop([&] { return !isOpen(); }));
    EXPECT_THAT(names(), ElementsAre("Second"));
}

TEST_F(NewFeedWindowTest, CancelLetsTheCandidateGo) {
    serve("/feed", feedText);
    newFeed();
    confirm(server.origin() + "/feed");
    const std::weak_ptr<FeedItem> candidate = item().newFeedItem();
    item().handleCancel();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(candidate.expired());
    EXPECT_FALSE(item().progressIndicator.isAnimating());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(NewFeedWindowTest, CancelStartsTheTimerOfAnEditedFeedAgainWithoutAFetch) {
    const auto feed = add(makeItem("Mine"));
    feed->scheduleUpdates(false);
    edit(feed).nameTextField.setStringValue("Other");
    item().handleCancel();
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_EQ(feed->name(), "Mine");
    EXPECT_FALSE(isOpen());
}

TEST_F(NewFeedWindowTest, ClosingTheWindowIsACancel) {
    const auto feed = add(makeItem("Mine"));
    edit(feed);
    windows->newFeedWindow->close();
    EXPECT_TRUE(feed->hasTimer());
}

TEST_F(NewFeedWindowTest, ChangesAFeedAndFetchesIt) {
    serve("/feed", feedText);
    const auto feed = add(FeedItem::make("Mine", URL::make(server.origin() + "/feed").value(), 30, {}, {}, feedsManager().environment()));
    NewFeedItemViewController& pane = edit(feed);
    pane.nameTextField.setStringValue("Other");
    pane.refreshRatePopupButton.choose(10);
    takeCalls();
    pane.handleOK();
    EXPECT_THAT(takeCalls(), ElementsAre("didUpdateFeed Other", "badge ", "closeWindow"));
    EXPECT_EQ(feed->name(), "Other");
    EXPECT_EQ(feed->updateRate, 10);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_TRUE(runMainLoop([&] { return feed->articles().size() == 1; }));
    EXPECT_FALSE(isSaved());
}

TEST_F(NewFeedWindowTest, DoesNotRenameAFeedOfAnotherScheme) {
    const auto feed = add(FeedItem::make("News", URL::make("httpx:news.xml").value(), 30, {}, {}, feedsManager().environment()));
    edit(feed).nameTextField.setStringValue("Other");
    item().handleOK();
    EXPECT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(feed->name(), "News");
    EXPECT_TRUE(isOpen());
}

TEST_F(NewFeedWindowTest, OffersTheFeedsOfAPageByTheirTitles) {
    const auto picker = pick();
    ASSERT_EQ(picker->numberOfRows(), 2U);
    EXPECT_EQ(cell(*picker, 0).checkBox.title(), "/a");
    EXPECT_EQ(cell(*picker, 1).checkBox.title(), "/b");
    EXPECT_FALSE(cell(*picker, 0).checkBox.state());
    EXPECT_EQ(picker->viewFor("other", 0), nullptr);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(item().discoveredFeedItems(), picker->feedItems);
}

TEST_F(NewFeedWindowTest, AddsWhatWasTickedInTableOrderUnderTheOneNameThatWasTyped) {
    const auto picker = pick("Same");
    cell(*picker, 1).checkBox.press();
    cell(*picker, 0).checkBox.press();
    picker->handleOK();
    EXPECT_THAT(names(), ElementsAre("Same", "Same"));
    EXPECT_THAT(takeCalls(), ElementsAre("Removing FeedItem: Same", "Removing FeedGroup __SAVED_FEED_GROUP__", "badge ", "didAddFeed Same",
                                 "didAddFeed Same", "closeWindow"));
    EXPECT_EQ(std::dynamic_pointer_cast<FeedItem>(feedsManager().feeds[0])->url().path(), "/a");
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(pickerWindow->isVisible());
    EXPECT_TRUE(isSaved());
}

TEST_F(NewFeedWindowTest, AddsUnderTheParsedTitlesWhereNoNameWasTyped) {
    const auto picker = pick();
    cell(*picker, 0).checkBox.press();
    picker->handleOK();
    EXPECT_TRUE(runMainLoop([&] { return names() == std::vector<std::string>{"T"}; }));
}

TEST_F(NewFeedWindowTest, AsksForATickBeforeItAdds) {
    const auto picker = pick();
    cell(*picker, 0); // row 1 was never made
    picker->handleOK();
    ASSERT_EQ(alerts->alerts.size(), 1U);
    EXPECT_EQ(alerts->alerts[0], (Alert{"No feed selected!", "Please select a feed to continue."}));
    EXPECT_THAT(takeCalls(), ElementsAre("runModal No feed selected!"));
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(pickerWindow->isVisible());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(NewFeedWindowTest, CancellingThePickerClosesTheWholeDialog) {
    const auto picker = pick();
    cell(*picker, 0).checkBox.press();
    picker->handleCancel();
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(pickerWindow->isVisible());
    EXPECT_EQ(item().newFeedItem(), nullptr);
    EXPECT_FALSE(item().progressIndicator.isAnimating());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(isSaved());
}

TEST_F(NewFeedWindowTest, ClosingThePickerIsACancel) {
    const auto picker = pick();
    pickerWindow->close();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(item().newFeedItem(), nullptr);
}

TEST_F(NewFeedWindowTest, AddsAGroupToTheTopLevelWithoutSaving) {
    add(makeItem("a"));
    delegate->newGroup();
    EXPECT_EQ(group().title(), "New Feed Group");
    EXPECT_TRUE(group().nameTextField.isEditable());
    EXPECT_EQ(group().nameTextField.stringValue(), "");
    group().nameTextField.setStringValue("G");
    takeCalls();
    group().handleOK();
    EXPECT_THAT(takeCalls(), ElementsAre("didAddFeed G", "badge ", "closeWindow"));
    EXPECT_THAT(names(), ElementsAre("a", "G"));
    EXPECT_EQ(feedsManager().feeds[1]->parent.lock(), nullptr);
    EXPECT_FALSE(isSaved());
}

TEST_F(NewFeedWindowTest, RenamesAGroup) {
    const auto edited = add(FeedGroup::make("Old"));
    delegate->editFeedGroup(edited);
    EXPECT_EQ(group().title(), "Edit Feed Group");
    EXPECT_EQ(group().nameTextField.stringValue(), "Old");
    group().nameTextField.setStringValue("New");
    takeCalls();
    group().handleOK();
    EXPECT_THAT(takeCalls(), ElementsAre("didUpdateFeed New", "badge ", "closeWindow"));
    EXPECT_THAT(names(), ElementsAre("New"));
}

TEST_F(NewFeedWindowTest, AsksForTheNameOfAGroup) {
    delegate->newGroup();
    group().handleOK();
    expectAlert("beginSheet", {"Name cannot be empty", "Please provide a name to the group."});
    EXPECT_TRUE(isOpen());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(NewFeedWindowTest, CancelLeavesAGroupAsItIs) {
    const auto edited = add(FeedGroup::make("Old"));
    delegate->editFeedGroup(edited);
    group().nameTextField.setStringValue("New");
    group().handleCancel();
    EXPECT_FALSE(isOpen());
    EXPECT_THAT(names(), ElementsAre("Old"));
}

TEST_F(NewFeedWindowTest, ShowsThePaneOfWhatItIsAbout) {
    newFeed();
    EXPECT_EQ(windows->newFeed->currentChildViewController(), windows->newFeed->newFeedItemViewController());
    const auto feed = add(makeItem("Mine"));
    edit(feed);
    ASSERT_FALSE(feed->hasTimer());
    std::vector<NewFeedPane*> shown;
    windows->newFeed->showPane = [&](NewFeedPane& pane) { shown.push_back(&pane); };
    delegate->newGroup();
    EXPECT_EQ(windows->newFeed->currentChildViewController(), windows->newFeed->newFeedGroupViewController());
    EXPECT_THAT(shown, ElementsAre(&group()));
    EXPECT_TRUE(feed->hasTimer()) << "what the window was about before is given up";
}

} // namespace brindle
