#include "Brindle/library/FeedGroup.hpp"
#include "Brindle/library/FeedItem.hpp"
#include "Brindle/library/FeedsManager.hpp"
#include "foundation/Console.hpp"
#include "tests/cli/NetworkCommandTest.hpp"
#include "tests/support/MainLoop.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace brindle {

class UpdateCommandTest : public NetworkCommandTest {
protected:
    /// Adds a feed whose server answers otherwise from then on.
    std::string addThen(const std::string& path, HTTPServer::Response later) {
        serve(path, rssDocument("Feed " + path, {"Alpha"}));
        std::string uuid = add(path);
        server.route(path, std::move(later));
        return uuid;
    }

    /// Stores a library of a feed at "/top" and a group with feeds at these paths.
    void storeGroup(const std::vector<std::string>& paths) const {
        Console::redirect([](std::string_view) {});
        const SyndicatedSessionEnvironment offline = {std::make_shared<SystemClock>(), absentNetworkRoute(), nullptr};
        FeedsManager manager(supportFolder(), offline, {});
        const auto makeItem = [&](const std::string& path) { return FeedItem::make(path, server.url(path), 30, {}, {}, offline); };
        const auto group = FeedGroup::make("Group");
        manager.addFeed(makeItem("/top"), 0);
        manager.addFeed(group, 1);
        for (const std::string& path : paths)
            manager.addFeed(makeItem(path), -1, group);
        manager.createSupportDirectories();
        manager.save();
    }

    std::string outcomeOf(const std::string& uuid) { return runJSON({"update", "--feed", uuid}, 1)[0]["outcome"]; }
};

TEST_F(UpdateCommandTest, FetchesEveryFeedOnceInTreeOrderAndSaves) {
    serve("/one", rssDocument("First", {"Alpha"}));
    serve("/two", rssDocument("Second", {}));
    const std::string one = add("/one");
    const std::string two = add("/two");
    serve("/one", rssDocument("First", {"Beta", "Alpha"}));
    const CommandLineRun result = run({"--json", "update"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.output, R"([
  {
    "uuid": ")" + one + R"(",
    "name": "First",
    "url": ")" + address("/one") +
                                 R"(",
    "outcome": "finished",
    "new": 1,
    "articles": 2
  },
  {
    "uuid": ")" + two + R"(",
    "name": "Second",
    "url": ")" + address("/two") +
                                 R"(",
    "outcome": "finished",
    "new": 0,
    "articles": 0
  }
]
)");
    EXPECT_EQ(server.requestCount("/one"), 3U);
    EXPECT_EQ(runJSON({"articles"}).size(), 2U);
    EXPECT_EQ(runJSON({"update"})[0]["new"], 0);
}

TEST_F(UpdateCommandTest, FetchesTheNamedFeedsAlone) {
    for (const char* path : {"/one", "/two", "/three"})
        serve(path, rssDocument("Feed", {}));
    const std::string one = add("/one");
    add("/two");
    const std::string three = add("/three");
    const auto updated = runJSON({"update", "--feed", three, "--feed", one, "--no-icons"});
    ASSERT_EQ(updated.size(), 2U);
    EXPECT_EQ(updated[0]["uuid"], one);
    EXPECT_EQ(updated[1]["uuid"], three);
    EXPECT_EQ(server.requestCount("/two"), 2U);
    expectError({"update", "--feed", "00000000-0000-0000-0000-000000000009"}, 1, "no feed has the UUID");
}

TEST_F(UpdateCommandTest, FetchesTheFeedsBelowANamedGroupAlone) {
    for (const char* path : {"/top", "/one", "/two"})
        serve(path, rssDocument("Feed", {"Alpha"}));
    storeGroup({"/one", "/two"});
    const auto updated = runJSON({"update", "--feed", "@1"});
    ASSERT_EQ(updated.size(), 2U);
    EXPECT_EQ(updated[0]["url"], address("/one"));
    EXPECT_EQ(updated[1]["url"], address("/two"));
    EXPECT_EQ(updated[1]["outcome"], "finished");
    EXPECT_EQ(server.requestCount("/top"), 0U);
}

TEST_F(UpdateCommandTest, HasNothingToDoInAnEmptyLibrary) {
    EXPECT_EQ(runJSON({"update"}), nlohmann::ordered_json::array());
}

TEST_F(UpdateCommandTest, TakesTheArticlesOfAFeedThatCannotBeReachedFromTheStore) {
    const std::string uuid = addThen("/feed", faulty(HTTPServer::Response::Fault::drop));
    const auto updated = runJSON({"update"}, 1);
    EXPECT_EQ(updated[0]["outcome"], "connection");
    EXPECT_EQ(updated[0]["new"], 0);
    EXPECT_EQ(updated[0]["articles"], 1);
    EXPECT_EQ(runJSON({"list"})[0]["uuid"], uuid);
}

TEST_F(UpdateCommandTest, TellsAConnectionFailureWithNothingStored) {
    addThen("/feed", faulty(HTTPServer::Response::Fault::drop));
    std::filesystem::remove_all(supportFolder() / "Data");
    const auto updated = runJSON({"update"}, 1);
    EXPECT_EQ(updated[0]["outcome"], "connection");
    EXPECT_EQ(updated[0]["articles"], 0);
}

TEST_F(UpdateCommandTest, NamesWhatIsWrongWithAFeed) {
    EXPECT_EQ(outcomeOf(addThen("/empty", {})), "noData");
    EXPECT_EQ(outcomeOf(addThen("/opml", HTTPServer::document("<opml/>"))), "invalidFeed");
    EXPECT_EQ(outcomeOf(addThen("/array", HTTPServer::document("[1]"))), "invalidFeed");
    EXPECT_EQ(outcomeOf(addThen("/page", HTTPServer::document("<html/>"))), "discovered");
    const std::string link = R"(<link rel="alternate" type="application/rss+xml" href=""/>)";
    EXPECT_EQ(outcomeOf(addThen("/link", HTTPServer::document("<html>" + link + "</html>"))), "noURL");
}

TEST_F(UpdateCommandTest, LeavesAFeedThatBecameAPageOfSeveralFeedsWhereItIs) {
    const std::string links = R"(<link rel="alternate" type="application/rss+xml" href="http://127.0.0.1:1/a"/>)"
                              R"(<link rel="alternate" type="application/rss+xml" href="http://127.0.0.1:1/b"/>)";
    const std::string uuid = addThen("/page", HTTPServer::document("<html>" + links + "</html>"));
    const auto updated = runJSON({"update", "--feed", uuid}, 1);
    EXPECT_EQ(updated[0]["outcome"], "discovered");
    EXPECT_EQ(updated[0]["url"], address("/page"));
}

TEST_F(UpdateCommandTest, KeepsTheArticlesOfAFeedThatFailed) {
    addThen("/feed", HTTPServer::document("<opml/>"));
    runJSON({"update"}, 1);
    EXPECT_EQ(runJSON({"articles"}).size(), 1U);
}

TEST_F(UpdateCommandTest, GivesUpAfterItsTimeAndSavesWhatCame) {
    const std::string slow = addThen("/slow", faulty(HTTPServer::Response::Fault::hang));
    serve("/quick", rssDocument("Quick", {"Alpha"}));
    add("/quick");
    serve("/quick", rssDocument("Quick", {"Alpha", "Beta"}));
    const auto updated = runJSON({"update", "--timeout", "2"}, 1);
    EXPECT_EQ(updated[0]["outcome"], "timeout");
    EXPECT_EQ(updated[1]["outcome"], "finished");
    EXPECT_EQ(runJSON({"articles"}).size(), 3U);
    for (const char* timeout : {"0", "x", "-1", "1.5"})
        expectError({"update", "--timeout", timeout}, 2, "--timeout takes a whole number");
}

TEST_F(UpdateCommandTest, PrintsWhatCameWhenTheLibraryCannotBeSaved) {
    serve("/feed", rssDocument("Feed", {"Alpha"}));
    add("/feed");
    // Where the file is written before it gets its name.
    std::filesystem::create_directory(supportFolder() / ".Feeds.brindle.tmp");
    const CommandLineRun result = run({"--json", "update"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.json()[0]["outcome"], "finished");
    ASSERT_EQ(result.messages().size(), 1U) << result.errors;
    EXPECT_NE(result.messages()[0].find("could not be saved"), std::string::npos) << result.messages()[0];
}

TEST_F(UpdateCommandTest, LetsNobodyWriteWhileItWaits) {
    const std::string document = rssDocument("Feed", {"Alpha"});
    HTTPServer::Response hanging = HTTPServer::document(document);
    hanging.fault = HTTPServer::Response::Fault::hang;
    addThen("/feed", hanging);
    const CommandLineCall update = begin({"update"});
    ASSERT_TRUE(runMainLoop([&] { return server.requestCount("/feed") == 3; })) << "two were made when it was added";
    expectError({"add-group", "G"}, 1, "is in use by another program");
    server.release();
    EXPECT_EQ(end(update).status, 0);
    EXPECT_EQ(runJSON({"list"}).size(), 1U);
    EXPECT_EQ(run({"add-group", "G"}).status, 0);
}

TEST_F(UpdateCommandTest, StoresANewAddressAfterARedirect) {
    serve("/old", rssDocument("Feed", {}));
    add("/old");
    server.redirect("/old", address("/new"));
    serve("/new", rssDocument("Feed", {}));
    EXPECT_EQ(runJSON({"update"})[0]["url"], address("/new"));
    EXPECT_EQ(runJSON({"list"})[0]["url"], address("/new"));
}

TEST_F(UpdateCommandTest, PrintsATableForPeople) {
    serve("/feed", rssDocument("First", {"Alpha"}));
    add("/feed");
    const std::string output = run({"update"}).output;
    EXPECT_TRUE(output.starts_with("Outcome ")) << output;
    EXPECT_NE(output.find("\nfinished "), std::string::npos) << output;
}

TEST_F(UpdateCommandTest, CountsOnATerminalAndOnlyThere) {
    serve("/feed", rssDocument("First", {"Alpha"}));
    add("/feed");
    EXPECT_EQ(run({"update"}).errors.find("of 1 feeds"), std::string::npos);
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(::grantpt(terminal), 0);
    ASSERT_EQ(::unlockpt(terminal), 0);
    errorPath = ::ptsname(terminal);
    const int kept = ::open(errorPath.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    EXPECT_EQ(run({"update"}).status, 0);
    std::array<char, 4096> buffer;
    const ssize_t count = ::read(terminal, buffer.data(), buffer.size());
    ::close(kept);
    ::close(terminal);
    ASSERT_GT(count, 0);
    const std::string shown(buffer.data(), static_cast<std::size_t>(count));
    EXPECT_NE(shown.find("0 of 1 feeds"), std::string::npos) << shown;
    EXPECT_NE(shown.find("1 of 1 feeds\r\x1b[K"), std::string::npos) << shown;
}

} // namespace brindle
