#include "SyndicatedParser/SyndicatedDiscovery.hpp"
#include "foundation/RunLoop.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>
#include <optional>

namespace brindle {
namespace {

using testsupport::CapturedConsole;

SyndicatedDiscovery::Feeds discover(std::string page) {
    RunLoop& loop = RunLoop::main();
    std::optional<SyndicatedDiscovery::Feeds> found;
    SyndicatedDiscovery::discoverFeeds(std::move(page), std::make_shared<FixedClock>(testsupport::presentMoment()),
        [&found](SyndicatedDiscovery::Feeds feeds) { found = std::move(feeds); });
    EXPECT_TRUE(loop.runUntil([&found] { return found.has_value(); }, std::chrono::minutes(1)));
    return found.value_or(SyndicatedDiscovery::Feeds());
}

std::string linkTag(std::string_view attributes) {
    return "<link " + std::string(attributes) + ">";
}

std::string rssLink(std::string_view attributes) {
    return linkTag("rel=\"alternate\" type=\"application/rss+xml\" " + std::string(attributes));
}

TEST(SyndicatedDiscoveryTest, FindsTheFeedsOfAPageInItsOrder) {
    const auto feeds = discover("<!DOCTYPE html><html><head><meta charset=utf-8>" + rssLink("href=\"http://a/rss\" title=\"R\"") +
                                linkTag("rel=\"alternate\" type=\"application/atom+xml\" href=\"http://a/atom\" title=\"A\"") +
                                "</head><body></body></html>");
    ASSERT_EQ(feeds.size(), 2U);
    EXPECT_EQ(feeds[0]->kind, SyndicatedFeedKind::rss);
    EXPECT_EQ(feeds[0]->title, "R");
    ASSERT_EQ(feeds[0]->links.size(), 1U);
    EXPECT_EQ(feeds[0]->links[0].url, URL::make("http://a/rss"));
    EXPECT_EQ(feeds[0]->links[0].title, "R");
    EXPECT_EQ(feeds[0]->links[0].relation, SyndicatedLinkRelation::alternate);
    EXPECT_EQ(feeds[0]->links[0].length, 0);
    EXPECT_TRUE(feeds[0]->entries.empty());
    EXPECT_EQ(feeds[1]->kind, SyndicatedFeedKind::atom);
}

TEST(SyndicatedDiscoveryTest, TellsTheKindByTheType) {
    const std::vector<std::pair<std::string, SyndicatedFeedKind>> kinds = {{"rss+xml", SyndicatedFeedKind::rss},
        {"rdf+xml", SyndicatedFeedKind::rdf}, {"atom+xml", SyndicatedFeedKind::atom}, {"json", SyndicatedFeedKind::json},
        {"feed+json", SyndicatedFeedKind::json}};
    for (const auto& [type, kind] : kinds) {
        const auto feeds = discover(linkTag("rel=alternate type=application/" + type + " href=http://a/"));
        ASSERT_EQ(feeds.size(), 1U) << type;
        EXPECT_EQ(feeds[0]->kind, kind) << type;
    }
}

TEST(SyndicatedDiscoveryTest, ComparesValuesInLowerCase) {
    EXPECT_EQ(discover(linkTag("rel=\"Alternate\" type=\"Application/RSS+XML\" href=\"http://a/\"")).size(), 1U);
    EXPECT_EQ(discover("<LINK rel=\"alternate\" type=\"application/rss+xml\" href=\"http://a/\">").size(), 1U);
}

TEST(SyndicatedDiscoveryTest, ComparesAttributeNamesByCase) {
    EXPECT_TRUE(discover(linkTag("REL=\"alternate\" type=\"application/rss+xml\" href=\"http://a/\"")).empty());
}

TEST(SyndicatedDiscoveryTest, PassesOverOtherLinks) {
    for (const std::string_view attributes :
        {"rel=\"alternate stylesheet\" type=\"application/rss+xml\"", "rel=\" alternate\" type=\"application/rss+xml\"",
            "type=\"application/rss+xml\"", "rel=\"alternate\"", "rel=\"alternate\" type=\"\"", "rel=\"alternate\" type=\"text/xml\"",
            "rel=\"alternate\" type=\"application/rss+xml; charset=utf-8\"", "rel=\"stylesheet\" type=\"application/rss+xml\""})
        EXPECT_TRUE(discover(linkTag(std::string(attributes) + " href=\"http://a/\"")).empty()) << attributes;
}

TEST(SyndicatedDiscoveryTest, TakesTheWholeAddressInLowerCaseAndKeepsTheTitles) {
    const auto feeds = discover(rssLink("href=\"HTTP://A/Feed?Q=B\" title=\"Feed\""));
    ASSERT_EQ(feeds.size(), 1U);
    EXPECT_EQ(feeds[0]->links[0].url, URL::make("http://a/feed?q=b"));
    EXPECT_EQ(feeds[0]->title, "Feed");
}

TEST(SyndicatedDiscoveryTest, GivesALinkWithoutTitleTheEmptyOne) {
    for (const std::string_view href : {"href=\"http://a/Feed\"", "href=\"http://a/\"", "href=\"http://a/b\" title=\"\""}) {
        const auto feeds = discover(rssLink(href));
        ASSERT_EQ(feeds.size(), 1U) << href;
        EXPECT_EQ(feeds[0]->title, "") << href;
        EXPECT_EQ(feeds[0]->links[0].title, "") << href;
    }
}

TEST(SyndicatedDiscoveryTest, LeavesARelativeAddressRelative) {
    const CapturedConsole console;
    const auto feeds = discover(rssLink("href=\"/feed\"") + rssLink("href=\"a b\"") + rssLink(""));
    ASSERT_EQ(feeds.size(), 3U);
    EXPECT_EQ(feeds[0]->links[0].url, URL::make("/feed"));
    EXPECT_EQ(feeds[0]->links[0].url->host(), std::nullopt);
    EXPECT_EQ(feeds[1]->links[0].url, std::nullopt);
    EXPECT_EQ(feeds[2]->links[0].url, std::nullopt);
    EXPECT_EQ(console.lines, std::vector<std::string>{"Can't sanatize URL. Base URL is missing!"});
}

TEST(SyndicatedDiscoveryTest, KeepsAFeedThatIsAnnouncedTwice) {
    EXPECT_EQ(discover(rssLink("href=\"http://a/\"") + rssLink("href=\"http://a/\"")).size(), 2U);
}

TEST(SyndicatedDiscoveryTest, FindsNothingInAPageWithoutTags) {
    EXPECT_TRUE(discover("no tags").empty());
}

TEST(SyndicatedDiscoveryTest, AnswersAtOnceForABlankPage) {
    for (const std::string_view page : {"", " \n\t ", "\u00A0\uFFFE "}) {
        bool answered = false;
        SyndicatedDiscovery::discoverFeeds(std::string(page), std::make_shared<FixedClock>(testsupport::presentMoment()),
            [&answered](const SyndicatedDiscovery::Feeds& feeds) { answered = feeds.empty(); });
        EXPECT_TRUE(answered) << page;
    }
}

TEST(SyndicatedDiscoveryTest, AnswersOnTheMainThread) {
    RunLoop& loop = RunLoop::main();
    bool answered = false;
    SyndicatedDiscovery::discoverFeeds("<html>", std::make_shared<FixedClock>(testsupport::presentMoment()),
        [&](const SyndicatedDiscovery::Feeds&) { answered = loop.isCurrent(); });
    EXPECT_FALSE(answered);
    EXPECT_TRUE(loop.runUntil([&answered] { return answered; }, std::chrono::minutes(1)));
}

} // namespace
} // namespace brindle
