#include "SyndicatedParser/SyndicatedJSONFeedParser.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindle {
namespace {

using testing::ElementsAre;
using testsupport::CapturedConsole;
using testsupport::date;
using testsupport::FeedReading;
using testsupport::presentMoment;
using testsupport::readInto;
using testsupport::readJSON;
using MIMEType = SyndicatedContent::MIMEType;
using Relation = SyndicatedLinkRelation;

FeedReading readItem(std::string item) {
    return readJSON("{\"items\":[" + std::move(item) + "]}");
}

TEST(SyndicatedJSONFeedParserTest, ReadsTheFeed) {
    const FeedReading reading = readJSON(R"({"version":"https://jsonfeed.org/version/1","title":" A &amp; B ","home_page_url":"http://a/",
        "feed_url":"http://a/feed","description":"C &amp; D","language":"de","author":{"name":"N"}})");
    const SyndicatedFeed& feed = *reading.feed;
    EXPECT_EQ(feed.version, "https://jsonfeed.org/version/1");
    EXPECT_EQ(feed.title, " A &amp; B ");
    EXPECT_EQ(feed.subtitle, "C &amp; D");
    EXPECT_EQ(feed.languageCode, "en-US");
    ASSERT_EQ(feed.links.size(), 2U);
    EXPECT_EQ(feed.links[0].url, URL::make("http://a/"));
    EXPECT_EQ(feed.links[0].relation, Relation::self);
    EXPECT_EQ(feed.links[1].url, URL::make("http://a/feed"));
    EXPECT_EQ(feed.links[1].relation, Relation::alternate);
    EXPECT_EQ(feed.primaryURL(), URL::make("http://a/feed"));
}

TEST(SyndicatedJSONFeedParserTest, KeepsAFeedsLinkWithoutURLAndSanitisesNone) {
    const CapturedConsole console;
    const FeedReading reading = readJSON(R"({"home_page_url":"a b","feed_url":"/feed","items":[{"url":"/1"},{"url":" http://a/ "}]})");
    ASSERT_EQ(reading.feed->links.size(), 2U);
    EXPECT_EQ(reading.feed->links[0].url, std::nullopt);
    EXPECT_EQ(reading.feed->links[1].url, URL::make("/feed"));
    EXPECT_EQ(reading.entry(0).preferredLinkURL(), URL::make("/1"));
    EXPECT_TRUE(reading.entry(1).links.empty());
    EXPECT_TRUE(console.lines.empty());
}

TEST(SyndicatedJSONFeedParserTest, HasNoPrimaryURLWhereItsOwnAddressIsNone) {
    const FeedReading reading = readJSON(R"({"feed_url":"a b"})");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, std::nullopt);
    EXPECT_EQ(reading.feed->links[0].relation, Relation::alternate);
    EXPECT_EQ(reading.feed->primaryURL(), std::nullopt);
}

TEST(SyndicatedJSONFeedParserTest, TakesAnObjectWithNoneOfTheKeysAsAnEmptyFeed) {
    const FeedReading before = readJSON(R"({"title":"T","items":[{"id":"1"}]})");
    const FeedReading reading = readInto(before.feed, SyndicatedFeedKind::json, "{}");
    EXPECT_THAT(reading.outcomes(), ElementsAre("success"));
    EXPECT_EQ(reading.feed->title, "T");
    EXPECT_TRUE(reading.feed->entries.empty());
}

TEST(SyndicatedJSONFeedParserTest, ReadsAnItem) {
    const FeedReading reading = readItem(R"({"id":" 1 ","url":"http://a/1","title":" T &amp; ","content_html":"<p>&eacute;</p>",
        "summary":"S &amp; s","date_published":"2020-06-01T10:00:00Z","date_modified":"2020-06-02T12:00:00+02:00"})");
    const SyndicatedEntry& entry = reading.entry();
    EXPECT_EQ(entry.identifier, " 1 ");
    EXPECT_EQ(entry.title, " T &amp; ");
    EXPECT_EQ(entry.content()->type(), MIMEType::raw);
    EXPECT_EQ(entry.content()->content(), "<p>\u00E9</p>");
    EXPECT_EQ(entry.summary->type(), MIMEType::plain);
    EXPECT_EQ(entry.summary->content(), "S & s");
    EXPECT_EQ(entry.dateCreated, date("2020-06-01T10:00:00Z"));
    EXPECT_EQ(entry.dateUpdated, date("2020-06-02T10:00:00Z"));
    EXPECT_EQ(entry.feed.lock(), nullptr);
}

TEST(SyndicatedJSONFeedParserTest, TakesAValueOfAnotherTypeAsMissing) {
    const FeedReading reading = readJSON(R"({"title":1,"items":[{"id":12,"title":["T"],"url":"http://a/1","tags":"x","attachments":{}},
        5, null, ["id"], {"id":12,"title":"T"}]})");
    EXPECT_EQ(reading.feed->title, "");
    ASSERT_EQ(reading.feed->entries.size(), 2U);
    EXPECT_EQ(reading.entry(0).identifier, "");
    EXPECT_EQ(reading.entry(0).effectiveIdentifier(), "http://a/1");
    EXPECT_EQ(reading.entry(1).effectiveIdentifier(), "T");
    EXPECT_TRUE(readJSON(R"({"items":{"id":"1"}})").feed->entries.empty());
}

TEST(SyndicatedJSONFeedParserTest, PrefersContentInHTML) {
    EXPECT_EQ(readItem(R"({"content_html":"h","content_text":"t"})").entry().content()->content(), "h");
    const FeedReading text = readItem(R"({"content_html":null,"content_text":"t &amp; u"})");
    EXPECT_EQ(text.entry().content()->content(), "t & u");
    EXPECT_EQ(text.entry().content()->type(), MIMEType::plain);
}

TEST(SyndicatedJSONFeedParserTest, MakesNoSummaryOfTheContent) {
    EXPECT_EQ(readItem(R"({"content_html":"h"})").entry().summary, nullptr);
}

TEST(SyndicatedJSONFeedParserTest, TakesADateThatCannotBeReadAsNow) {
    const FeedReading reading = readItem(R"({"date_published":"2020-01-01T00:00:00.5Z"})");
    EXPECT_EQ(reading.entry().dateCreated, presentMoment());
    EXPECT_EQ(reading.entry().dateUpdated, presentMoment());
    const FeedReading modified = readItem(R"({"date_published":"2020-01-01T00:00:00Z","date_modified":"yesterday"})");
    EXPECT_EQ(modified.entry().dateCreated, date("2020-01-01T00:00:00Z"));
    EXPECT_EQ(modified.entry().dateUpdated, presentMoment());
}

TEST(SyndicatedJSONFeedParserTest, TakesTheDateOfPublicationForBothDates) {
    const FeedReading reading = readItem(R"({"date_published":"2020-01-01T00:00:00Z"})");
    EXPECT_EQ(reading.entry().dateUpdated, date("2020-01-01T00:00:00Z"));
}

TEST(SyndicatedJSONFeedParserTest, PrefersAnItemsOwnURLToTheExternalOne) {
    const FeedReading reading = readItem(R"({"external_url":"http://b/","url":"http://a/"})");
    ASSERT_EQ(reading.entry().links.size(), 2U);
    EXPECT_EQ(reading.entry().preferredLinkURL(), URL::make("http://a/"));
    EXPECT_EQ(readItem(R"({"external_url":"http://b/"})").entry().links.at(0).relation, Relation::related);
}

TEST(SyndicatedJSONFeedParserTest, DropsAnItemsLinkThatIsNone) {
    EXPECT_TRUE(readItem(R"({"external_url":"a b"})").entry().links.empty());
}

TEST(SyndicatedJSONFeedParserTest, ReadsTagsAndAttachmentsOfArraysAlone) {
    const FeedReading reading = readItem(R"({"tags":"x","attachments":{"url":"http://a/1","mime_type":"audio/mpeg"}})");
    EXPECT_TRUE(reading.entry().categories.empty());
    EXPECT_TRUE(reading.entry().enclosures.empty());
}

TEST(SyndicatedJSONFeedParserTest, MakesACategoryOfEachTag) {
    const FeedReading reading = readItem(R"({"tags":["a",1]})");
    const auto& categories = reading.entry().categories;
    ASSERT_EQ(categories.size(), 2U);
    EXPECT_EQ(categories[0].term(), "a");
    EXPECT_EQ(categories[0].label(), "a");
    EXPECT_EQ(categories[1].term(), "");
    EXPECT_EQ(categories[1].label(), "");
}

TEST(SyndicatedJSONFeedParserTest, ReadsAttachments) {
    const FeedReading reading = readItem(R"({"attachments":[{"url":"http://a/1","mime_type":"Audio/mpeg","size_in_bytes":12},
        {"url":"http://a/2","mime_type":"video/mp4","size_in_bytes":"12"}, {"url":"http://a/3","mime_type":"","size_in_bytes":true}]})");
    const auto& enclosures = reading.entry().enclosures;
    ASSERT_EQ(enclosures.size(), 3U);
    EXPECT_EQ(enclosures[0].url, URL::make("http://a/1"));
    EXPECT_EQ(enclosures[0].kind, SyndicatedEnclosure::Kind::audio);
    EXPECT_EQ(enclosures[0].length, 12);
    EXPECT_EQ(enclosures[1].kind, SyndicatedEnclosure::Kind::video);
    EXPECT_EQ(enclosures[1].length, 0);
    EXPECT_EQ(enclosures[2].kind, SyndicatedEnclosure::Kind::other);
    EXPECT_EQ(enclosures[2].length, 1);
}

TEST(SyndicatedJSONFeedParserTest, DropsAnAttachmentWithoutURLOrType) {
    const FeedReading reading = readItem(R"({"attachments":[{"url":"http://a/1"},{"mime_type":"audio/mpeg"},
        {"url":"a b","mime_type":"audio/mpeg"}, {"url":1,"mime_type":"audio/mpeg"}, "http://a/1"]})");
    EXPECT_TRUE(reading.entry().enclosures.empty());
}

} // namespace
} // namespace brindle
