#include "SyndicatedParser/SiteIconDiscovery.hpp"

#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/support/HTTPServer.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using Icon = std::optional<std::string>;
using Lines = std::vector<std::string>;

constexpr std::string_view twoIcons = "<html><head><link rel=icon href=/1.png><link rel='shortcut icon' href=/2.png>";

class SiteIconDiscoveryTest : public testing::Test {
protected:
    HTTPServer server;
    testsupport::CapturedConsole console;

    void servePage(std::string_view page) { server.route("/", HTTPServer::document(std::string(page), "text/html")); }
    void serve(const std::string& path, std::string icon) { server.route(path, HTTPServer::document(std::move(icon), "image/png")); }

    /// The icon of the server's site.
    Icon icon() {
        Icon found;
        bool ended = false;
        bool onMainThread = false;
        SiteIconDiscovery().discoverIcon(URL::make(server.origin()).value(), [&](Icon bytes) {
            found = std::move(bytes);
            ended = true;
            onMainThread = RunLoop::main().isCurrent();
        });
        EXPECT_FALSE(ended);
        EXPECT_TRUE(runMainLoop([&] { return ended; }));
        EXPECT_TRUE(onMainThread);
        return found;
    }
};

TEST_F(SiteIconDiscoveryTest, TakesTheFirstIconLinkThatCanBeRead) {
    servePage(twoIcons);
    serve("/1.png", "first");
    serve("/2.png", "second");
    EXPECT_EQ(icon(), "first");
    EXPECT_EQ(server.requestCount("/2.png"), 0U);
    EXPECT_EQ(server.requestCount("/favicon.ico"), 0U);
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, TriesTheNextLinkWhereOneCannotBeRead) {
    servePage(
        "<link rel=icon href=/gone.png><link rel=icon href=/dropped.png><link rel=icon href=data:image/png,x><link rel=icon href=/2.png>");
    HTTPServer::Response dropped;
    dropped.fault = HTTPServer::Response::Fault::drop;
    server.route("/dropped.png", dropped);
    serve("/2.png", "second");
    EXPECT_EQ(icon(), "second");
    EXPECT_EQ(server.requestCount("/gone.png"), 1U);
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, TakesAnEmptyBodyBehindAnIconLink) {
    servePage(twoIcons);
    serve("/1.png", "");
    serve("/2.png", "second");
    EXPECT_EQ(icon(), "");
}

TEST_F(SiteIconDiscoveryTest, FollowsRedirectsToAnIcon) {
    servePage(twoIcons);
    server.redirect("/1.png", "/moved.png", 302);
    serve("/moved.png", "moved");
    EXPECT_EQ(icon(), "moved");
}

TEST_F(SiteIconDiscoveryTest, FollowsRedirectsOfTheRootPage) {
    server.redirect("/", "/home");
    server.route("/home", HTTPServer::document(std::string(twoIcons), "text/html"));
    serve("/1.png", "first");
    EXPECT_EQ(icon(), "first");
}

TEST_F(SiteIconDiscoveryTest, TriesTheFaviconAfterAllLinks) {
    servePage(twoIcons);
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(server.requestCount("/1.png"), 1U);
    EXPECT_EQ(server.requestCount("/2.png"), 1U);
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, TakesTheFaviconOfAPageWithoutLinksInSilence) {
    servePage("<html><body>Welcome");
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, FindsNothingWhereTheFaviconIsEmptyOrMissing) {
    servePage("<html>");
    EXPECT_EQ(icon(), std::nullopt);
    serve("/favicon.ico", "");
    EXPECT_EQ(icon(), std::nullopt);
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, TellsOfARootPageThatIsMissing) {
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(console.lines, Lines{"Could not fetch icon data because the status code was not in the range of 2xx"});
}

TEST_F(SiteIconDiscoveryTest, TellsOfAnEmptyRootPage) {
    servePage("");
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(console.lines, Lines{"Could not fetch icon data because the HTML data was empty"});
}

TEST_F(SiteIconDiscoveryTest, TellsWhyTheRootPageDidNotCome) {
    HTTPServer::Response dropped;
    dropped.fault = HTTPServer::Response::Fault::drop;
    server.route("/", dropped);
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(
        console.lines, Lines{"Could not fetch feed icon because an error occured: The server closed the connection without an answer."});
}

TEST_F(SiteIconDiscoveryTest, LooksForNoLinksInAPageThatIsNotUTF8) {
    servePage("<link rel=icon href=/1.png>\xE9");
    serve("/1.png", "first");
    serve("/favicon.ico", "favicon");
    EXPECT_EQ(icon(), "favicon");
    EXPECT_EQ(server.requestCount("/1.png"), 0U);
    EXPECT_EQ(console.lines, Lines{});
}

TEST_F(SiteIconDiscoveryTest, TakesNoIconThatIsTooLarge) {
    servePage(twoIcons);
    serve("/1.png", std::string((1 << 24) + 1, 'x'));
    serve("/2.png", std::string(1 << 24, 'x'));
    EXPECT_EQ(icon().value_or("").size(), std::size_t{1} << 24);
    EXPECT_EQ(server.requestCount("/2.png"), 1U);
}

TEST_F(SiteIconDiscoveryTest, NamesNoProgram) {
    servePage("<html>");
    EXPECT_EQ(icon(), std::nullopt);
    for (const HTTPServer::Request& request : server.requests())
        EXPECT_EQ(request.header("user-agent"), "") << request.path;
}

} // namespace
} // namespace brindle
