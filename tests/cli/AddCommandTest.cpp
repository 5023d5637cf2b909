#include "tests/cli/NetworkCommandTest.hpp"

namespace brindle {

namespace {

constexpr const char* failed = "An error occured: Could not connect to or parse feed. Please check the URL is correct and try again.";

} // namespace

class AddCommandTest : public NetworkCommandTest {
protected:
    bool isStored() const { return std::filesystem::exists(supportFolder() / "Feeds.brindle"); }

    /// A page that announces feeds at these paths.
    void servePage(const std::string& path, const std::vector<std::string>& feeds) {
        std::string page = "<html><head>";
        for (const std::string& feed : feeds) {
            page +=
                R"(<link rel="alternate" type="application/rss+xml" title="Title of )" + feed + R"(" href=")" + address(feed) + R"("/>)";
            serve(feed, rssDocument("Feed " + feed, {"Alpha"}));
        }
        serve(path, page + "</head></html>");
    }
};

TEST_F(AddCommandTest, TriesCommitsFetchesAgainAndSaves) {
    serve("/feed", rssDocument("First", {"Alpha", "Beta"}));
    const auto added = runJSON({"add", address("/feed")});
    ASSERT_EQ(added.size(), 1U);
    EXPECT_EQ(added[0]["kind"], "item");
    EXPECT_EQ(added[0]["name"], "First");
    EXPECT_EQ(added[0]["url"], address("/feed"));
    EXPECT_EQ(added[0]["updateRate"], 5);
    EXPECT_EQ(added[0]["articles"], 2);
    EXPECT_EQ(server.requestCount("/feed"), 2U);
    EXPECT_EQ(runJSON({"list"}), added);
    EXPECT_EQ(server.requestCount("/feed"), 2U);
}

TEST_F(AddCommandTest, PrintsTheKeysOfAFeedInTheOrderOfTheList) {
    serve("/feed", rssDocument("First", {}));
    EXPECT_EQ(keys(runJSON({"add", address("/feed")})[0]),
        (std::vector<std::string>{"kind", "name", "uuid", "url", "updateRate", "articles", "unread"}));
}

TEST_F(AddCommandTest, TakesANameAndARate) {
    serve("/feed", rssDocument("First", {}));
    const auto added = runJSON({"add", "--name", "Mine", "--rate=60", address("/feed"), "--no-icons"});
    EXPECT_EQ(added[0]["name"], "Mine");
    EXPECT_EQ(added[0]["updateRate"], 60);
    expectError({"add", "--rate", "0", address("/feed")}, 2, "--rate takes a whole number");
}

TEST_F(AddCommandTest, PutsTheSchemeInFrontOfAnAddressWithoutOne) {
    serve("/feed", rssDocument("First", {}));
    EXPECT_EQ(runJSON({"add", address("/feed").substr(7)})[0]["url"], address("/feed"));
}

TEST_F(AddCommandTest, AppendsToTheEndOfTheTopLevelAndFetchesNoOtherFeed) {
    serve("/one", rssDocument("First", {}));
    serve("/two", rssDocument("Second", {}));
    add("/one");
    EXPECT_EQ(run({"add-group", "G"}).status, 0);
    add("/two");
    EXPECT_EQ(server.requestCount("/one"), 2U);
    const auto list = runJSON({"list"});
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[2]["name"], "Second");
}

TEST_F(AddCommandTest, GoesFromAPageToItsOnlyFeed) {
    servePage("/page", {"/rss"});
    const auto added = runJSON({"add", address("/page")});
    EXPECT_EQ(added[0]["url"], address("/rss"));
    EXPECT_EQ(added[0]["name"], "Feed /rss");
}

TEST_F(AddCommandTest, ListsTheFeedsOfAPageThatAnnouncesSeveralAndAddsNone) {
    servePage("/page", {"/rss", "/atom"});
    const CommandLineRun result = run({"--json", "add", address("/page")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.messages().size(), 1U);
    const auto list = result.json();
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[1], nlohmann::ordered_json({{"pick", 2}, {"name", "Title of /atom"}, {"url", address("/atom")}}));
    EXPECT_FALSE(isStored());
    EXPECT_EQ(server.requestCount("/rss"), 0U);
}

TEST_F(AddCommandTest, AddsWhatIsPickedOfAPagesFeedsInPageOrder) {
    servePage("/page", {"/a", "/b", "/c"});
    const auto added = runJSON({"add", address("/page"), "--pick", "3", "--pick=1"});
    ASSERT_EQ(added.size(), 2U);
    EXPECT_EQ(added[0]["url"], address("/a"));
    EXPECT_EQ(added[1]["url"], address("/c"));
    EXPECT_EQ(added[1]["articles"], 1);
    EXPECT_EQ(added[1]["updateRate"], 30);
    EXPECT_EQ(server.requestCount("/b"), 0U);
    EXPECT_EQ(runJSON({"list"}), added);
}

TEST_F(AddCommandTest, RefusesAPickThatIsNoNumberAndFailsForOneThatIsNotThere) {
    servePage("/page", {"/a", "/b"});
    for (const char* pick : {"0", "x", ""})
        expectError({"add", "--pick", pick, address("/page")}, 2, "--pick takes a whole number");
    expectError({"add", "--pick", "3", address("/page")}, 1, "there is no feed 3");
    EXPECT_FALSE(isStored());
}

TEST_F(AddCommandTest, SaysWhyAnAddressIsRefused) {
    expectError({"add", ""}, 1, "URL cannot be empty: Please provide a valid URL of the feed.");
    expectError({"add", "httpexample.test"}, 1, "'httpexample.test' is no valid URL of a feed");
    expectError({"add", "a b"}, 1, "'a b' is no valid URL of a feed");
    EXPECT_FALSE(isStored());
}

TEST_F(AddCommandTest, SaysThatAFeedCouldNotBeFetchedOrRead) {
    server.route("/drop", faulty(HTTPServer::Response::Fault::drop));
    serve("/opml", "<opml/>");
    for (const char* path : {"/drop", "/opml", "/missing"})
        expectError({"add", address(path)}, 1, failed);
    EXPECT_FALSE(isStored());
}

TEST_F(AddCommandTest, SaysThatAPageAnnouncesNoFeed) {
    serve("/page", "<html/>");
    expectError({"add", address("/page")}, 1, "No Feeds Found! Brindle could not find any feeds associated to " + address("/page"));
    EXPECT_FALSE(isStored());
}

} // namespace brindle
