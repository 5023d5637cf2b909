#include "foundation/URL.hpp"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace brindle {

namespace {

std::string resolved(std::string_view reference, std::string_view base) {
    const std::optional<URL> url = URL::make(reference, URL::make(base).value());
    return url ? url->absoluteString() : "none";
}

} // namespace

TEST(URLTest, RefusesTheEmptyText) {
    EXPECT_EQ(URL::make(""), std::nullopt);
    EXPECT_EQ(URL::make("", URL::make("http://a/b").value()), std::nullopt);
}

TEST(URLTest, RefusesWhatTheGrammarDoesNotHave) {
    for (const std::string_view bad :
        {"a b", " http://a", "http://a/%zz", "http://a/%4", "http://a/\xC3\xA9", "http://a/{x}", "http://a/[b]", "http://a/<b>", "1a:b",
            "http://[::1", "http://a:b:c/", "http://a/b#c#d", "a\nb", "http://a/|", "http://a/^", "http://a/\\"})
        EXPECT_EQ(URL::make(bad), std::nullopt) << bad;
    EXPECT_EQ(URL::make(std::string_view("a\0b", 3)), std::nullopt);
}

TEST(URLTest, KeepsTheTextAsGiven) {
    for (const std::string_view text : {"HTTP://Example.ORG:80/a/../b?c#d", "../a", "//x/y", "?q", "#f", "mailto:a@b.c",
             "http://[2001:DB8::1]:8080/", "urn:x:y", "http://a", "a", "/", "file:///x"})
        EXPECT_EQ(URL::make(text).value().absoluteString(), text);
}

TEST(URLTest, EqualityIsEqualityOfText) {
    EXPECT_EQ(URL::make("http://a/"), URL::make("http://a/"));
    EXPECT_NE(URL::make("http://a/"), URL::make("http://a"));
    EXPECT_NE(URL::make("http://A/"), URL::make("http://a/"));
}

TEST(URLTest, GivesTheComponents) {
    const URL url = URL::make("https://me:pw@Example.org:8080/a/b.c?x=/y#z").value();
    EXPECT_EQ(url.scheme(), "https");
    EXPECT_EQ(url.host(), "Example.org");
    EXPECT_EQ(url.port(), "8080");
    EXPECT_EQ(url.path(), "/a/b.c");
}

TEST(URLTest, TellsAbsentComponentsFromEmptyOnes) {
    const URL file = URL::make("file:///x").value();
    EXPECT_EQ(file.host(), "");
    EXPECT_EQ(file.port(), std::nullopt);
    EXPECT_EQ(file.path(), "/x");
    const URL mail = URL::make("mailto:a@b").value();
    EXPECT_EQ(mail.host(), std::nullopt);
    EXPECT_EQ(mail.path(), "a@b");
    const URL relative = URL::make("a/b:c?d").value();
    EXPECT_EQ(relative.scheme(), std::nullopt);
    EXPECT_EQ(relative.path(), "a/b:c");
    const URL bare = URL::make("http://a:").value();
    EXPECT_EQ(bare.port(), "");
    EXPECT_EQ(bare.path(), "");
}

TEST(URLTest, GivesAnIPv6HostWithItsBrackets) {
    const URL url = URL::make("http://u@[::1]:81/").value();
    EXPECT_EQ(url.host(), "[::1]");
    EXPECT_EQ(url.port(), "81");
}

TEST(URLTest, ComponentsSurviveCopyAndMove) {
    URL url = URL::make("http://h/p").value();
    const URL copy = url;
    const URL moved = std::move(url);
    EXPECT_EQ(copy.host(), "h");
    EXPECT_EQ(moved.path(), "/p");
}

TEST(URLTest, ResolvesTheExamplesOfTheStandard) {
    // RFC 3986 5.4.1 and 5.4.2
    const std::vector<std::pair<std::string, std::string>> examples = {{"g:h", "g:h"}, {"g", "http://a/b/c/g"}, {"./g", "http://a/b/c/g"},
        {"g/", "http://a/b/c/g/"}, {"/g", "http://a/g"}, {"//g", "http://g"}, {"?y", "http://a/b/c/d;p?y"}, {"g?y", "http://a/b/c/g?y"},
        {"#s", "http://a/b/c/d;p?q#s"}, {"g#s", "http://a/b/c/g#s"}, {"g?y#s", "http://a/b/c/g?y#s"}, {";x", "http://a/b/c/;x"},
        {"g;x", "http://a/b/c/g;x"}, {"g;x?y#s", "http://a/b/c/g;x?y#s"}, {".", "http://a/b/c/"}, {"./", "http://a/b/c/"},
        {"..", "http://a/b/"}, {"../", "http://a/b/"}, {"../g", "http://a/b/g"}, {"../..", "http://a/"}, {"../../", "http://a/"},
        {"../../g", "http://a/g"}, {"../../../g", "http://a/g"}, {"../../../../g", "http://a/g"}, {"/./g", "http://a/g"},
        {"/../g", "http://a/g"}, {"g.", "http://a/b/c/g."}, {".g", "http://a/b/c/.g"}, {"g..", "http://a/b/c/g.."},
        {"..g", "http://a/b/c/..g"}, {"./../g", "http://a/b/g"}, {"./g/.", "http://a/b/c/g/"}, {"g/./h", "http://a/b/c/g/h"},
        {"g/../h", "http://a/b/c/h"}, {"g;x=1/./y", "http://a/b/c/g;x=1/y"}, {"g;x=1/../y", "http://a/b/c/y"},
        {"g?y/./x", "http://a/b/c/g?y/./x"}, {"g?y/../x", "http://a/b/c/g?y/../x"}, {"g#s/./x", "http://a/b/c/g#s/./x"},
        {"g#s/../x", "http://a/b/c/g#s/../x"}, {"http:g", "http:g"}};
    for (const auto& [reference, expected] : examples)
        EXPECT_EQ(resolved(reference, "http://a/b/c/d;p?q"), expected) << reference;
}

TEST(URLTest, ResolvesAgainstABaseWithoutPath) {
    EXPECT_EQ(resolved("g", "http://a"), "http://a/g");
    EXPECT_EQ(resolved("?x", "http://a"), "http://a?x");
    EXPECT_EQ(resolved("../g", "http://a?q"), "http://a/g");
}

TEST(URLTest, ResolvingKeepsTheHostAsWritten) {
    EXPECT_EQ(resolved("g", "http://[2001:DB8::1]:80/x/y"), "http://[2001:DB8::1]:80/x/g");
}

TEST(URLTest, ResolvesAgainstABaseWithoutAuthority) {
    EXPECT_EQ(resolved("../../d", "a:b/c"), "a:/d");
    EXPECT_EQ(resolved("..", "a:b"), "a:");
    EXPECT_EQ(resolved("..//x", "a:/b/c"), "a:/.//x");
}

TEST(URLTest, RefusesABaseWithoutScheme) {
    EXPECT_EQ(URL::make("g", URL::make("/a/b").value()), std::nullopt);
}

TEST(URLTest, TakesALongPathInItsStride) {
    std::string text = "http://a";
    for (int segment = 0; segment < 200'000; ++segment)
        text += "/..";
    EXPECT_EQ(resolved(text, "http://b"), "http://a/");
}

} // namespace brindle
