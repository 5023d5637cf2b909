#include "SyndicatedParser/IconLinks.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

std::vector<std::string> links(std::string page) {
    std::vector<std::string> addresses;
    for (const URL& link : iconLinks(std::move(page), URL::make("http://site.test").value()))
        addresses.push_back(link.absoluteString());
    return addresses;
}

using Addresses = std::vector<std::string>;

TEST(IconLinksTest, TakesRelationsThatEndWithIconOrStartWithShortcut) {
    for (const std::string_view relation : {"icon", "shortcut icon", "apple-touch-icon", "shortcut", "SHORTCUT ICON", "Shortcut anything"})
        EXPECT_EQ(links("<link rel='" + std::string(relation) + "' href='/i.png'>"), Addresses{"http://site.test/i.png"}) << relation;
    for (const std::string_view relation : {"icon apple", "stylesheet", "", " shortcut", "icon "})
        EXPECT_EQ(links("<link rel='" + std::string(relation) + "' href='/i.png'>"), Addresses{}) << relation;
}

TEST(IconLinksTest, KeepsThePagesOrder) {
    EXPECT_EQ(links("<html><head><link rel=icon href=/1><link rel=stylesheet href=/2><body><p><link rel=icon href=/3></p>"),
        (Addresses{"http://site.test/1", "http://site.test/3"}));
}

TEST(IconLinksTest, ResolvesAddressesAgainstTheRoot) {
    EXPECT_EQ(links("<link rel=icon href=' i.png '><link rel=icon href=../a/i.png><link rel=icon href=//cdn.test/i.png>"
                    "<link rel=icon href=https://other.test/i.png>"),
        (Addresses{"http://site.test/i.png", "http://site.test/a/i.png", "http://cdn.test/i.png", "https://other.test/i.png"}));
}

TEST(IconLinksTest, PassesOverLinksWithoutAnAddress) {
    EXPECT_EQ(
        links("<link rel=icon><link rel=icon href=''><link rel=icon href='a b'><link rel=icon href=/i>"), Addresses{"http://site.test/i"});
}

TEST(IconLinksTest, FindsNothingInAPageWithoutLinks) {
    EXPECT_EQ(links("<html><body>text"), Addresses{});
    EXPECT_EQ(links("text"), Addresses{});
}

} // namespace
} // namespace brindle
