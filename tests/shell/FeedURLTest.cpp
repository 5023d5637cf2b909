#include "Brindle/shell/FeedURL.hpp"

#include <gtest/gtest.h>
#include <string>

namespace brindle {

namespace {

std::string textOf(const std::optional<URL>& url) {
    return url ? url->absoluteString() : "none";
}

std::string normalised(std::string_view text) {
    const auto url = URL::make(text);
    return url ? textOf(normalizedFeedURL(*url)) : "no URL";
}

std::string typed(std::string_view text) {
    return textOf(typedFeedURL(text));
}

} // namespace

TEST(FeedURLTest, LeavesHTTPAndHTTPSAsTheyAre) {
    EXPECT_EQ(normalised("http://a.test/x?y#z"), "http://a.test/x?y#z");
    EXPECT_EQ(normalised("https://a.test/"), "https://a.test/");
}

TEST(FeedURLTest, MakesHTTPOfFeedWithSlashes) {
    EXPECT_EQ(normalised("feed://a.test/x"), "http://a.test/x");
}

TEST(FeedURLTest, KeepsTheColonOfFeedWithoutSlashesAndSoGivesNothing) {
    EXPECT_EQ(normalised("feed:https://a.test/"), "none");
    EXPECT_EQ(normalised("feed:a.test"), "none");
    EXPECT_EQ(normalised("feed:"), "none");
}

TEST(FeedURLTest, GivesNothingForAnyOtherSchemeOrNone) {
    for (const char* text : {"ftp://a.test/", "HTTP://a.test/", "Feed://a.test/", "httpx://a.test/", "a.test/x", "/x"})
        EXPECT_EQ(normalised(text), "none") << text;
}

TEST(FeedURLTest, PutsHTTPInFrontOfATypedTextThatDoesNotStartWithIt) {
    EXPECT_EQ(typed("example.test/rss"), "http://example.test/rss");
    EXPECT_EQ(typed("https://example.test/feed"), "https://example.test/feed");
}

TEST(FeedURLTest, TakesATypedFeedSchemeForAHost) {
    EXPECT_EQ(typed("feed://example.test/rss"), "http://feed://example.test/rss");
    EXPECT_EQ(URL::make(typed("feed://example.test/rss"))->host(), "feed");
}

TEST(FeedURLTest, GivesNothingForATypedTextThatOnlyStartsLikeAnAddress) {
    EXPECT_EQ(typed("httpexample.test"), "none");
    EXPECT_EQ(typed("feed:https://example.test/rss"), "none");
    EXPECT_EQ(typed("a b"), "none");
}

} // namespace brindle
