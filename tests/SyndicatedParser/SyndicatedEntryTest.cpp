#include "SyndicatedParser/SyndicatedEntry.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using testsupport::emptyFeed;
using testsupport::presentMoment;

SyndicatedLink link(std::string_view address, SyndicatedLinkRelation relation) {
    return {URL::make(address), {}, relation, 0};
}

std::shared_ptr<SyndicatedContent> plain(std::string text) {
    return std::make_shared<SyndicatedContent>(SyndicatedContent::MIMEType::plain, std::move(text));
}

TEST(SyndicatedEntryTest, HasTheMomentOfItsCreationInBothDates) {
    const SyndicatedEntry entry(presentMoment());
    EXPECT_EQ(entry.dateCreated, presentMoment());
    EXPECT_EQ(entry.dateUpdated, presentMoment());
}

TEST(SyndicatedEntryTest, IsIdentifiedByItsIdentifierAsGiven) {
    SyndicatedEntry entry(presentMoment());
    entry.identifier = " 1 ";
    entry.title = "T";
    entry.links.push_back(link("http://a/", SyndicatedLinkRelation::alternate));
    EXPECT_EQ(entry.effectiveIdentifier(), " 1 ");
}

TEST(SyndicatedEntryTest, IsIdentifiedByItsPreferredLinkWhenTheIdentifierIsEmpty) {
    SyndicatedEntry entry(presentMoment());
    entry.title = "T";
    entry.links.push_back(link("http://a/", SyndicatedLinkRelation::via));
    EXPECT_EQ(entry.effectiveIdentifier(), "http://a/");
}

TEST(SyndicatedEntryTest, IsIdentifiedByItsTitleWhenThereIsNothingElse) {
    SyndicatedEntry entry(presentMoment());
    EXPECT_EQ(entry.effectiveIdentifier(), "");
    entry.title = "T";
    EXPECT_EQ(entry.effectiveIdentifier(), "T");
}

TEST(SyndicatedEntryTest, IsIdentifiedByItsTitleWhenTheOnlyLinkHasNoURL) {
    SyndicatedEntry entry(presentMoment());
    entry.title = "T";
    entry.links.emplace_back();
    EXPECT_EQ(entry.effectiveIdentifier(), "T");
}

TEST(SyndicatedEntryTest, PrefersItsOnlyLinkWhateverTheRelation) {
    SyndicatedEntry entry(presentMoment());
    entry.links.push_back(link("http://a/", SyndicatedLinkRelation::unknown));
    EXPECT_EQ(entry.preferredLinkURL(), URL::make("http://a/"));
}

TEST(SyndicatedEntryTest, PrefersNoLinkOfTwoThatAreNotAlternate) {
    SyndicatedEntry entry(presentMoment());
    entry.links.push_back(link("http://a/", SyndicatedLinkRelation::self));
    entry.links.push_back(link("http://b/", SyndicatedLinkRelation::via));
    EXPECT_EQ(entry.preferredLinkURL(), std::nullopt);
}

TEST(SyndicatedEntryTest, PrefersTheAlternateLinkOfSeveral) {
    SyndicatedEntry entry(presentMoment());
    entry.links.push_back(link("http://a/", SyndicatedLinkRelation::self));
    entry.links.push_back(link("http://b/", SyndicatedLinkRelation::alternate));
    EXPECT_EQ(entry.preferredLinkURL(), URL::make("http://b/"));
}

TEST(SyndicatedEntryTest, ShowsItsStateAsReadOrNot) {
    SyndicatedEntry entry(presentMoment());
    EXPECT_FALSE(entry.isRead());
    entry.setIsRead(true);
    EXPECT_EQ(entry.state(), SyndicatedEntry::State::read);
    entry.setState(SyndicatedEntry::State::unread);
    EXPECT_FALSE(entry.isRead());
}

TEST(SyndicatedEntryTest, OfAnAtomFeedTakesItsFirstContentAsTheMissingSummary) {
    const auto feed = emptyFeed(SyndicatedFeedKind::atom);
    SyndicatedEntry entry(presentMoment());
    entry.feed = feed;
    const auto first = plain("a");
    const auto second = plain("b");
    entry.setContent(first);
    entry.setContent(second);
    EXPECT_EQ(entry.summary, first);
    EXPECT_EQ(entry.content(), second);
}

TEST(SyndicatedEntryTest, OfAnyOtherFeedOrNoneTakesNoSummaryFromItsContent) {
    const auto feed = emptyFeed(SyndicatedFeedKind::rss);
    SyndicatedEntry entry(presentMoment());
    entry.setContent(plain("a"));
    EXPECT_EQ(entry.summary, nullptr);
    entry.feed = feed;
    entry.setContent(plain("b"));
    EXPECT_EQ(entry.summary, nullptr);
}

} // namespace
} // namespace brindle
