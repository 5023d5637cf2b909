#include "tests/cli/NetworkCommandTest.hpp"

namespace brindle {
namespace {

class OpenCommandTest : public NetworkCommandTest {
protected:
    /// The address of a path as a link of the scheme "feed".
    std::string feedAddress(const std::string& path) const { return "feed" + address(path).substr(4); }
};

TEST_F(OpenCommandTest, AddsAndFetchesAFeed) {
    serve("/feed", rssDocument("First", {"Alpha", "Beta"}));
    const auto opened = runJSON({"open", feedAddress("/feed")});
    ASSERT_EQ(opened.size(), 1U);
    EXPECT_EQ(opened[0]["name"], "First");
    EXPECT_EQ(opened[0]["url"], address("/feed"));
    EXPECT_EQ(opened[0]["updateRate"], 30);
    EXPECT_EQ(opened[0]["articles"], 2);
    EXPECT_EQ(server.requestCount("/feed"), 1U);
    EXPECT_EQ(runJSON({"list"}), opened);
}

TEST_F(OpenCommandTest, AddsTheSameFeedTwice) {
    serve("/feed", rssDocument("First", {}));
    runJSON({"open", feedAddress("/feed")});
    runJSON({"open", feedAddress("/feed")});
    EXPECT_EQ(runJSON({"list"}).size(), 2U);
}

TEST_F(OpenCommandTest, AddsAFeedThatCouldNotBeFetched) {
    server.route("/drop", faulty(HTTPServer::Response::Fault::drop));
    const auto opened = runJSON({"open", address("/drop")});
    ASSERT_EQ(opened.size(), 1U);
    EXPECT_EQ(opened[0]["articles"], 0);
    EXPECT_EQ(runJSON({"list"}), opened);
}

TEST_F(OpenCommandTest, AddsNothingForAnAddressThatIsNone) {
    for (const char* text : {"", "a b", "a.test/feed", "ftp://a.test/feed", "HTTP://a.test/feed", "feed:http://a.test/feed"})
        expectError({"open", text}, 1, "is no address of a feed");
    EXPECT_EQ(runJSON({"list"}).size(), 0U);
}

} // namespace
} // namespace brindle
