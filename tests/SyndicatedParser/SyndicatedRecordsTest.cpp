#include "SyndicatedParser/SyndicatedFeed.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace brindle {
namespace {

using testsupport::emptyFeed;
using testsupport::presentMoment;

SyndicatedLink link(std::optional<URL> url, SyndicatedLinkRelation relation) {
    return {std::move(url), "t", relation, 0};
}

TEST(SyndicatedFeedTest, BeginsEmptyWithTheMomentOfItsCreation) {
    const SyndicatedFeed feed(SyndicatedFeedKind::rss, presentMoment());
    EXPECT_EQ(feed.kind, SyndicatedFeedKind::rss);
    EXPECT_EQ(feed.datePublished, presentMoment());
    EXPECT_EQ(feed.dateUpdated, presentMoment());
    EXPECT_EQ(feed.languageCode, "en-US");
    EXPECT_EQ(feed.data, std::nullopt);
}

TEST(SyndicatedFeedTest, HasNoPrimaryURLWithoutLinks) {
    EXPECT_EQ(emptyFeed(SyndicatedFeedKind::rss)->primaryURL(), std::nullopt);
}

TEST(SyndicatedFeedTest, HasItsFirstAlternateLinkAsPrimaryURL) {
    const auto feed = emptyFeed(SyndicatedFeedKind::rss);
    feed->links.push_back(link(URL::make("http://a/"), SyndicatedLinkRelation::self));
    EXPECT_EQ(feed->primaryURL(), URL::make("http://a/"));
    feed->links.push_back(link(URL::make("http://b/"), SyndicatedLinkRelation::alternate));
    feed->links.push_back(link(URL::make("http://c/"), SyndicatedLinkRelation::alternate));
    EXPECT_EQ(feed->primaryURL(), URL::make("http://b/"));
}

TEST(SyndicatedFeedTest, HasNoPrimaryURLWhenItsFirstAlternateLinkHasNone) {
    const auto feed = emptyFeed(SyndicatedFeedKind::json);
    feed->links.push_back(link(URL::make("http://a/"), SyndicatedLinkRelation::self));
    feed->links.push_back(link(std::nullopt, SyndicatedLinkRelation::alternate));
    EXPECT_EQ(feed->primaryURL(), std::nullopt);
}

TEST(SyndicatedLinkTest, IsEqualByTitleRelationAndURLs) {
    const SyndicatedLink a = link(URL::make("http://a/"), SyndicatedLinkRelation::self);
    SyndicatedLink other = a;
    EXPECT_EQ(a, other);
    other.length = 5;
    EXPECT_EQ(a, other);
    other.url = URL::make("http://b/");
    EXPECT_FALSE(a == other);
    other = a;
    other.title = "u";
    EXPECT_FALSE(a == other);
    other = a;
    other.relation = SyndicatedLinkRelation::via;
    EXPECT_FALSE(a == other);
}

TEST(SyndicatedLinkTest, IsEqualToOneWithoutURLYetBothStandInABag) {
    SyndicatedEntry entry(presentMoment());
    entry.links.push_back(link(URL::make("http://a/"), SyndicatedLinkRelation::self));
    entry.links.push_back(link(std::nullopt, SyndicatedLinkRelation::self));
    EXPECT_EQ(entry.links[0], entry.links[1]);
    EXPECT_EQ(entry.links.size(), 2U);
}

TEST(SyndicatedLinkRelationTest, IsReadInAnyCaseAndWrittenBack) {
    for (const std::string_view word : {"alternate", "related", "self", "enclosure", "via"})
        EXPECT_EQ(name(linkRelation(word)), word);
    EXPECT_EQ(linkRelation("SELF"), SyndicatedLinkRelation::self);
    EXPECT_EQ(linkRelation("alternate stylesheet"), SyndicatedLinkRelation::unknown);
    EXPECT_EQ(linkRelation(""), SyndicatedLinkRelation::unknown);
    EXPECT_EQ(name(SyndicatedLinkRelation::unknown), "__unknown__");
}

TEST(SyndicatedCategoryTest, TakesItsTermAsLabelWhileThatIsEmpty) {
    SyndicatedCategory category;
    category.setLabel("y");
    category.setTerm("x");
    EXPECT_EQ(category.term(), "x");
    EXPECT_EQ(category.label(), "y");

    SyndicatedCategory unlabelled;
    unlabelled.setTerm("x");
    EXPECT_EQ(unlabelled.label(), "x");
    unlabelled.setTerm("z");
    EXPECT_EQ(unlabelled.label(), "x");
}

TEST(SyndicatedEnclosureTest, HasItsKindFromTheBeginningOfTheType) {
    EXPECT_EQ(SyndicatedEnclosure::kindOfMIMEType("audio/mpeg"), SyndicatedEnclosure::Kind::audio);
    EXPECT_EQ(SyndicatedEnclosure::kindOfMIMEType("VIDEO/mp4"), SyndicatedEnclosure::Kind::video);
    EXPECT_EQ(SyndicatedEnclosure::kindOfMIMEType("image/png"), SyndicatedEnclosure::Kind::other);
    EXPECT_EQ(SyndicatedEnclosure::kindOfMIMEType(""), SyndicatedEnclosure::Kind::other);
}

TEST(SyndicatedContentTest, DecodesEntitiesAtConstructionOnly) {
    SyndicatedContent content(SyndicatedContent::MIMEType::raw, "a &amp; b");
    EXPECT_EQ(content.content(), "a & b");
    content.setContent("a &amp; b");
    EXPECT_EQ(content.content(), "a &amp; b");
    EXPECT_EQ(content.type(), SyndicatedContent::MIMEType::raw);
}

TEST(SyndicatedContentTest, StripsItsTagsAtEachCall) {
    SyndicatedContent content(SyndicatedContent::MIMEType::raw, "<p>a</p>");
    EXPECT_EQ(content.strippedContent(), "a");
    content.setContent("<b>c</b>");
    EXPECT_EQ(content.strippedContent(), "c");
}

TEST(SyndicatedFeedKindTest, HasADisplayStringForEachKind) {
    EXPECT_EQ(displayString(SyndicatedFeedKind::unknown), "Unknown");
    EXPECT_EQ(displayString(SyndicatedFeedKind::rss), "RSS");
    EXPECT_EQ(displayString(SyndicatedFeedKind::rdf), "RDF");
    EXPECT_EQ(displayString(SyndicatedFeedKind::atom), "Atom");
    EXPECT_EQ(displayString(SyndicatedFeedKind::html), "HTML");
    EXPECT_EQ(displayString(SyndicatedFeedKind::opml), "OPML");
    EXPECT_EQ(displayString(SyndicatedFeedKind::json), "JSON");
}

TEST(SyndicatedFeedKindTest, ComesFromTheRootElementsNameInAnyCase) {
    EXPECT_EQ(feedKindOfRootElement("RSS"), SyndicatedFeedKind::rss);
    EXPECT_EQ(feedKindOfRootElement("rdf:RDF"), SyndicatedFeedKind::rdf);
    EXPECT_EQ(feedKindOfRootElement("RDFfoo"), SyndicatedFeedKind::rdf);
    EXPECT_EQ(feedKindOfRootElement("Feed"), SyndicatedFeedKind::atom);
    EXPECT_EQ(feedKindOfRootElement("HTML"), SyndicatedFeedKind::html);
    EXPECT_EQ(feedKindOfRootElement("opml"), SyndicatedFeedKind::opml);
}

TEST(SyndicatedFeedKindTest, IsUnknownForAnyOtherRootElement) {
    for (const std::string_view name : {"feeds", "rssfeed", "atom:feed", "json", ""})
        EXPECT_EQ(feedKindOfRootElement(name), SyndicatedFeedKind::unknown) << name;
}

/// What is stored as numbers must mean the same for ever.
TEST(SyndicatedRecordsTest, StoreTheirEnumerationsAsTheseNumbers) {
    using Type = SyndicatedContent::MIMEType;
    using Kind = SyndicatedEnclosure::Kind;
    using State = SyndicatedEntry::State;
    using Relation = SyndicatedLinkRelation;
    const auto numbers = [](auto... values) { return std::vector<int>{static_cast<int>(values)...}; };
    EXPECT_EQ(numbers(Type::plain, Type::raw), (std::vector<int>{0, 1}));
    EXPECT_EQ(numbers(Kind::other, Kind::audio, Kind::video, Kind::image), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(numbers(State::unread, State::read), (std::vector<int>{0, 1}));
    EXPECT_EQ(numbers(Relation::alternate, Relation::related, Relation::self, Relation::enclosure, Relation::via, Relation::unknown),
        (std::vector<int>{0, 1, 2, 3, 4, 5}));
}

} // namespace
} // namespace brindle
