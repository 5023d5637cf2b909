#include "Brindle/shell/AddFeedFlow.hpp"

#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"
#include "foundation/FileManager.hpp"
#include "foundation/NotificationCenter.hpp"
#include "tests/fakes/FeedItemDelegateFake.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"
#include "tests/support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace brindle {

namespace {

constexpr const char* feedText = "<rss><channel><title>T</title><item><title>One</title></item></channel></rss>";

/// Notes what the flow says, in order.
class FlowLog : public AddFeedFlowDelegate {
public:
    std::vector<std::string> calls;
    Alert alert;
    Failure failure = Failure::emptyAddress;
    AddFeedFlow::FeedItems committed;
    bool savedAtCommit = false;
    std::filesystem::path libraryFile;

    void addFeedFlowDidFail(AddFeedFlow&, Failure why, const Alert& shown) override {
        calls.emplace_back("fail");
        failure = why;
        alert = shown;
    }
    void addFeedFlowDidDiscoverFeedItems(AddFeedFlow&) override { calls.emplace_back("discover"); }
    void addFeedFlowDidCommit(AddFeedFlow&, const AddFeedFlow::FeedItems& feeds) override {
        calls.emplace_back("commit");
        committed = feeds;
        savedAtCommit = FileManager::fileExists(libraryFile);
    }
};

} // namespace

class AddFeedFlowTest : public ::testing::Test {
protected:
    AddFeedFlowTest() {
        Console::redirect([](std::string_view) {});
        const SyndicatedSessionEnvironment environment = {std::make_shared<SystemClock>(), route, nullptr};
        manager = std::make_shared<FeedsManager>(folder.path(), environment, libraryDelegate);
        manager->createSupportDirectories();
        log->libraryFile = folder / "Feeds.brindle";
        flow = AddFeedFlow::make(manager, log);
    }
    ~AddFeedFlowTest() override {
        flow.reset();
        manager.reset();
        Console::redirect({});
    }

    void serve(const std::string& path, const std::string& body) { server.route(path, HTTPServer::document(body)); }

    std::string linkTo(const std::string& path) const {
        return R"(<link rel="alternate" type="application/rss+xml" title="Title" href=")" + server.origin() + path + R"("/>)";
    }

    /// Types the address of a path and waits for the flow's next word.
    std::string confirm(const std::string& path) {
        const std::size_t before = log->calls.size();
        flow->confirm(server.origin() + path);
        EXPECT_TRUE(runMainLoop([&] { return log->calls.size() > before; }));
        return log->calls.back();
    }

    void expectUntouched() const {
        EXPECT_TRUE(manager->feeds.empty());
        EXPECT_FALSE(FileManager::fileExists(log->libraryFile));
        EXPECT_EQ(flow->newFeedItem(), nullptr);
        EXPECT_TRUE(flow->discoveredFeedItems().empty());
    }

    HTTPServer server;
    TemporaryFolder folder;
    std::shared_ptr<NetworkRouteFake> route = std::make_shared<NetworkRouteFake>();
    std::shared_ptr<FeedItemDelegateFake> libraryDelegate = std::make_shared<FeedItemDelegateFake>();
    std::shared_ptr<FlowLog> log = std::make_shared<FlowLog>();
    std::shared_ptr<FeedsManager> manager;
    std::shared_ptr<AddFeedFlow> flow;
};

TEST_F(AddFeedFlowTest, ACandidateThatParsedIsAppendedToTheTopLevelAndSaved) {
    serve("/feed", feedText);
    manager->addFeed(FeedGroup::make("G"), 0);
    flow->name = "Mine";
    flow->updateRate = 42;
    EXPECT_EQ(confirm("/feed"), "commit");
    ASSERT_EQ(manager->feeds.size(), 2U);
    EXPECT_EQ(manager->feeds[1], log->committed.at(0));
    const FeedItem& item = *log->committed[0];
    EXPECT_EQ(item.name(), "Mine");
    EXPECT_EQ(item.updateRate, 42);
    EXPECT_EQ(item.delegate.lock(), libraryDelegate);
    EXPECT_TRUE(item.hasTimer());
    EXPECT_TRUE(log->savedAtCommit);
    EXPECT_EQ(flow->newFeedItem(), nullptr);
}

TEST_F(AddFeedFlowTest, ACommittedFeedIsFetchedAgain) {
    serve("/feed", feedText);
    confirm("/feed");
    EXPECT_TRUE(runMainLoop([&] { return server.requestCount("/feed") == 2; }));
}

TEST_F(AddFeedFlowTest, AFeedWithoutANameShowsItsTitle) {
    serve("/feed", feedText);
    confirm("/feed");
    EXPECT_EQ(log->committed.at(0)->name(), "T");
}

TEST_F(AddFeedFlowTest, TheNameIsReadAgainAtTheCommit) {
    serve("/feed", feedText);
    flow->name = "Before";
    flow->confirm(server.origin() + "/feed");
    EXPECT_EQ(flow->newFeedItem()->name(), "Before");
    flow->name = "After";
    EXPECT_TRUE(runMainLoop([&] { return !log->committed.empty(); }));
    EXPECT_EQ(log->committed[0]->name(), "After");
}

TEST_F(AddFeedFlowTest, ANoticeIsPostedForEachFeedAfterTheCommit) {
    serve("/page", "<html>" + linkTo("/a") + linkTo("/b") + "</html>");
    std::vector<const void*> objects;
    const auto token = NotificationCenter::defaultCenter().addObserver(
        "NewFeedWindowControllerDidAddFeed", nullptr, [&](const Notification& notification) {
            EXPECT_EQ(log->calls.back(), "commit");
            objects.push_back(notification.object);
        });
    confirm("/page");
    flow->commit(flow->discoveredFeedItems());
    ASSERT_EQ(log->committed.size(), 2U);
    EXPECT_EQ(objects, (std::vector<const void*>{log->committed[0].get(), log->committed[1].get()}));
}

TEST_F(AddFeedFlowTest, APagesFeedsAreOfferedAndNothingEntersTheLibrary) {
    serve("/page", "<html>" + linkTo("/a") + linkTo("/b") + "</html>");
    EXPECT_EQ(confirm("/page"), "discover");
    EXPECT_TRUE(manager->feeds.empty());
    ASSERT_EQ(flow->discoveredFeedItems().size(), 2U);
    EXPECT_EQ(flow->discoveredFeedItems()[1]->url(), server.url("/b"));
    EXPECT_NE(flow->newFeedItem(), nullptr);
}

TEST_F(AddFeedFlowTest, AllPickedFeedsGetTheTypedName) {
    serve("/page", "<html>" + linkTo("/a") + linkTo("/b") + "</html>");
    confirm("/page");
    flow->name = "Both";
    flow->commit(flow->discoveredFeedItems());
    ASSERT_EQ(manager->feeds.size(), 2U);
    EXPECT_EQ(manager->feeds[0]->name(), "Both");
    EXPECT_EQ(manager->feeds[1]->name(), "Both");
    EXPECT_TRUE(flow->discoveredFeedItems().empty());
}

TEST_F(AddFeedFlowTest, ACommitOfNothingOnlyLetsTheCandidateGo) {
    serve("/page", "<html>" + linkTo("/a") + linkTo("/b") + "</html>");
    confirm("/page");
    flow->commit({});
    EXPECT_EQ(log->calls, (std::vector<std::string>{"discover"}));
    expectUntouched();
}

TEST_F(AddFeedFlowTest, AnEmptyAddressIsRefused) {
    flow->confirm("");
    EXPECT_EQ(log->failure, AddFeedFlow::Failure::emptyAddress);
    EXPECT_EQ(log->alert.title, "URL cannot be empty");
    EXPECT_EQ(log->alert.text, "Please provide a valid URL of the feed.");
    expectUntouched();
}

TEST_F(AddFeedFlowTest, AnAddressThatIsNoURLIsRefused) {
    flow->confirm("httpexample.test");
    EXPECT_EQ(log->failure, AddFeedFlow::Failure::invalidAddress);
    EXPECT_EQ(log->alert.title, "invalidURLDialogTitle");
    EXPECT_EQ(log->alert.text, "invalidURLDialogMessage");
    expectUntouched();
}

TEST_F(AddFeedFlowTest, AFailedCandidateNeverTouchesTheLibrary) {
    serve("/opml", "<opml/>");
    EXPECT_EQ(confirm("/opml"), "fail");
    EXPECT_EQ(log->failure, AddFeedFlow::Failure::unreadableFeed);
    EXPECT_EQ(log->alert.title, "An error occured");
    EXPECT_EQ(log->alert.text, "Could not connect to or parse feed. Please check the URL is correct and try again.");
    expectUntouched();
}

TEST_F(AddFeedFlowTest, AnotherTryMayFollowAFailure) {
    serve("/opml", "<opml/>");
    serve("/feed", feedText);
    EXPECT_EQ(confirm("/opml"), "fail");
    EXPECT_EQ(confirm("/feed"), "commit");
}

TEST_F(AddFeedFlowTest, APageWithoutFeedsIsNamedInTheAlert) {
    serve("/page", "<html/>");
    EXPECT_EQ(confirm("/page"), "fail");
    EXPECT_EQ(log->failure, AddFeedFlow::Failure::noFeedDiscovered);
    EXPECT_EQ(log->alert.title, "No Feeds Found!");
    EXPECT_EQ(log->alert.text, "Brindle could not find any feeds associated to " + server.origin() + "/page");
    expectUntouched();
}

TEST_F(AddFeedFlowTest, ASecondAddressDropsTheFirstCandidate) {
    HTTPServer::Response slow = HTTPServer::document(feedText);
    slow.fault = HTTPServer::Response::Fault::hang;
    server.route("/slow", std::move(slow));
    serve("/feed", feedText);
    flow->confirm(server.origin() + "/slow");
    const std::weak_ptr<FeedItem> candidate = flow->newFeedItem();
    EXPECT_EQ(confirm("/feed"), "commit");
    EXPECT_TRUE(candidate.expired());
    server.release();
    ASSERT_EQ(manager->feeds.size(), 1U);
}

TEST_F(AddFeedFlowTest, ARefusedAddressLeavesTheCandidateAsItIs) {
    HTTPServer::Response slow = HTTPServer::document(feedText);
    slow.fault = HTTPServer::Response::Fault::hang;
    server.route("/slow", std::move(slow));
    flow->confirm(server.origin() + "/slow");
    const std::shared_ptr<FeedItem> candidate = flow->newFeedItem();
    flow->confirm("httpexample.test");
    EXPECT_EQ(log->calls, (std::vector<std::string>{"fail"}));
    EXPECT_EQ(log->failure, AddFeedFlow::Failure::invalidAddress);
    EXPECT_EQ(flow->newFeedItem(), candidate);
    server.release();
    EXPECT_TRUE(runMainLoop([&] { return log->calls.size() > 1; }));
    EXPECT_EQ(log->calls, (std::vector<std::string>{"fail", "commit"}));
    EXPECT_EQ(log->committed, AddFeedFlow::FeedItems{candidate});
}

TEST_F(AddFeedFlowTest, TheEndOfADroppedCandidateCommitsNothing) {
    HTTPServer laterServer;
    HTTPServer::Response slow = HTTPServer::document(feedText);
    slow.fault = HTTPServer::Response::Fault::hang;
    server.route("/first", slow);
    laterServer.route("/second", slow);
    flow->confirm(server.origin() + "/first");
    const std::shared_ptr<FeedItem> first = flow->newFeedItem();
    flow->confirm(laterServer.origin() + "/second");
    server.release();
    EXPECT_TRUE(runMainLoop([&] { return !first->articles().empty(); }));
    EXPECT_TRUE(log->calls.empty());
    EXPECT_TRUE(manager->feeds.empty());
    laterServer.release();
    EXPECT_TRUE(runMainLoop([&] { return !log->calls.empty(); }));
    EXPECT_EQ(log->calls, (std::vector<std::string>{"commit"}));
    ASSERT_EQ(log->committed.size(), 1U);
    EXPECT_EQ(log->committed[0]->url(), laterServer.url("/second"));
}

TEST_F(AddFeedFlowTest, StoppingLetsTheCandidateGo) {
    route->change(0);
    flow->confirm(server.origin() + "/feed");
    const std::shared_ptr<FeedItem> candidate = flow->newFeedItem();
    EXPECT_TRUE(candidate->hasTimer());
    flow->stop();
    EXPECT_FALSE(candidate->hasTimer());
    EXPECT_EQ(candidate->delegate.lock(), nullptr);
    expectUntouched();
}

} // namespace brindle
