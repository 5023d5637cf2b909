#include "SyndicatedParser/SyndicatedFeedParser.hpp"
#include "SyndicatedParser/FeedParserFactory.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindle {
namespace {

using testing::ElementsAre;
using testsupport::date;
using testsupport::emptyFeed;
using testsupport::FeedReading;
using testsupport::presentMoment;
using testsupport::read;
using testsupport::readInto;
using State = SyndicatedEntry::State;

const Date anHourLater = presentMoment() + std::chrono::hours(1);

/// A feed with one dated entry.
std::string rss(std::string_view guid, std::string_view title, std::string_view day) {
    return "<rss><channel><item><guid>" + std::string(guid) + "</guid><title>" + std::string(title) + "</title><pubDate>" +
           std::string(day) + " Jun 2020 10:00:00 GMT</pubDate></item></channel></rss>";
}

std::string undated(std::string_view items) {
    return "<rss><channel>" + std::string(items) + "</channel></rss>";
}

TEST(SyndicatedFeedParserTest, HasAParserForEachKindOfFeedAndNoneForOtherDocuments) {
    const auto clock = std::make_shared<FixedClock>(presentMoment());
    for (const SyndicatedFeedKind kind :
        {SyndicatedFeedKind::rss, SyndicatedFeedKind::rdf, SyndicatedFeedKind::atom, SyndicatedFeedKind::json})
        EXPECT_NE(makeFeedParser(kind, emptyFeed(kind), "x", StringEncoding::utf8, clock), nullptr);
    for (const SyndicatedFeedKind kind : {SyndicatedFeedKind::unknown, SyndicatedFeedKind::html, SyndicatedFeedKind::opml})
        EXPECT_EQ(makeFeedParser(kind, emptyFeed(kind), "x", StringEncoding::utf8, clock), nullptr);
}

TEST(SyndicatedFeedParserTest, ReportsAnEmptyTextTwice) {
    for (const SyndicatedFeedKind kind : {SyndicatedFeedKind::rss, SyndicatedFeedKind::rdf, SyndicatedFeedKind::atom}) {
        const FeedReading reading = read(kind, "");
        EXPECT_THAT(reading.outcomes(), ElementsAre("emptyString", "parseError"));
        EXPECT_EQ(reading.calls.back().error().error, std::nullopt);
    }
    EXPECT_THAT(read(SyndicatedFeedKind::json, "").outcomes(), ElementsAre("emptyString", "invalidFeed"));
}

TEST(SyndicatedFeedParserTest, ReportsAFeedThatIsNoneTwice) {
    for (const SyndicatedFeedKind kind : {SyndicatedFeedKind::unknown, SyndicatedFeedKind::html, SyndicatedFeedKind::opml}) {
        const FeedReading reading = readInto(emptyFeed(kind), SyndicatedFeedKind::rss, "<rss/>");
        EXPECT_THAT(reading.outcomes(), ElementsAre("invalidFeed", "parseError"));
    }
}

TEST(SyndicatedFeedParserTest, GivesNoSuccessForJSONInAFeedThatIsNone) {
    const FeedReading reading = readInto(emptyFeed(SyndicatedFeedKind::html), SyndicatedFeedKind::json, "{\"title\":\"T\"}");
    EXPECT_THAT(reading.outcomes(), ElementsAre("invalidFeed"));
}

TEST(SyndicatedFeedParserTest, HasNoXMLParserForAJSONFeed) {
    const FeedReading reading = readInto(emptyFeed(SyndicatedFeedKind::json), SyndicatedFeedKind::rss, "<rss/>");
    EXPECT_THAT(reading.outcomes(), ElementsAre("parseError"));
}

TEST(SyndicatedFeedParserTest, ReportsASuccessOnceWithTheFeed) {
    const FeedReading reading = read(SyndicatedFeedKind::rss, "<rss/>");
    EXPECT_THAT(reading.outcomes(), ElementsAre("success"));
    EXPECT_EQ(reading.calls.front().value(), reading.feed);
}

TEST(SyndicatedFeedParserTest, ReportsTheXMLParsersErrorAndLeavesWhatWasRead) {
    const FeedReading reading = read(SyndicatedFeedKind::rss, "<rss><channel><title>T</title><item><guid>1</guid></item><item></rss>");
    EXPECT_THAT(reading.outcomes(), ElementsAre("parseError"));
    EXPECT_NE(reading.calls.front().error().error, std::nullopt);
    EXPECT_EQ(reading.feed->title, "T");
    ASSERT_EQ(reading.feed->entries.size(), 1U);
    EXPECT_EQ(reading.entry().identifier, "1");
}

TEST(SyndicatedFeedParserTest, ReportsJSONWithoutAnObjectOnTop) {
    for (const std::string_view text : {"[1,2]", "1", "\"a\"", "null", "{", "x"})
        EXPECT_THAT(read(SyndicatedFeedKind::json, std::string(text)).outcomes(), ElementsAre("invalidFeed")) << text;
}

TEST(SyndicatedFeedParserTest, ReadsADocumentOfAnotherKindIntoAFeedThatKeepsItsKind) {
    const FeedReading reading = readInto(emptyFeed(SyndicatedFeedKind::atom), SyndicatedFeedKind::rss, rss("1", "A", "Mon, 01"));
    EXPECT_THAT(reading.outcomes(), ElementsAre("success"));
    EXPECT_EQ(reading.feed->kind, SyndicatedFeedKind::atom);
    EXPECT_EQ(reading.entry().identifier, "1");
}

TEST(SyndicatedFeedParserTest, ReadsATextThatWasLatin1WithoutLosingCharacters) {
    const std::string text = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><rss><channel><title>\u00E4 \u2019</title></channel></rss>";
    const FeedReading reading =
        readInto(emptyFeed(SyndicatedFeedKind::rss), SyndicatedFeedKind::rss, text, presentMoment(), StringEncoding::isoLatin1);
    EXPECT_EQ(reading.feed->title, "\u00E4 \u2019");
}

TEST(SyndicatedFeedParserTest, ResolvesTheNamedReferencesOfHTML) {
    EXPECT_EQ(testsupport::readRSS("<title>a&nbsp;b&eacute;</title>").feed->title, "a\u00A0b\u00E9");
}

TEST(SyndicatedFeedParserTest, GivesUnreadEntriesAtTheFirstParse) {
    EXPECT_EQ(read(SyndicatedFeedKind::rss, rss("1", "A", "Mon, 01")).entry().state(), State::unread);
}

TEST(SyndicatedFeedParserTest, ReplacesTheEntriesAndLetsLinksAndCategoriesGrow) {
    const std::string text = undated("<link>http://a/</link><category>c</category><item><guid>1</guid></item>");
    const FeedReading first = read(SyndicatedFeedKind::rss, text);
    const auto before = first.feed->entries.front();
    const FeedReading second = readInto(first.feed, SyndicatedFeedKind::rss, text);
    ASSERT_EQ(second.feed->entries.size(), 1U);
    EXPECT_NE(second.feed->entries.front(), before);
    EXPECT_EQ(second.feed->links.size(), 2U);
    EXPECT_EQ(second.feed->categories.size(), 2U);
}

TEST(SyndicatedFeedParserTest, KeepsAReadEntryReadWhenItsDateMovedForward) {
    const FeedReading first = read(SyndicatedFeedKind::rss, rss("1", "A", "Mon, 01"));
    first.feed->entries.front()->setIsRead(true);
    EXPECT_EQ(readInto(first.feed, SyndicatedFeedKind::rss, rss("1", "A", "Tue, 02")).entry().state(), State::read);
}

TEST(SyndicatedFeedParserTest, MakesAnEntryUnreadWhoseDateStoodStillOrWentBack) {
    for (const std::string_view day : {"Tue, 02", "Mon, 01"}) {
        const FeedReading first = read(SyndicatedFeedKind::rss, rss("1", "A", "Tue, 02"));
        first.feed->entries.front()->setIsRead(true);
        EXPECT_EQ(readInto(first.feed, SyndicatedFeedKind::rss, rss("1", "A", day)).entry().state(), State::unread) << day;
    }
}

TEST(SyndicatedFeedParserTest, MakesAnEntryUnreadWhoseTitleChanged) {
    const FeedReading first = read(SyndicatedFeedKind::rss, rss("1", "A", "Mon, 01"));
    first.feed->entries.front()->setIsRead(true);
    EXPECT_EQ(readInto(first.feed, SyndicatedFeedKind::rss, rss("1", "B", "Tue, 02")).entry().state(), State::unread);
}

TEST(SyndicatedFeedParserTest, LeavesAnEntryUnreadThatIsNew) {
    const FeedReading first = read(SyndicatedFeedKind::rss, rss("1", "A", "Mon, 01"));
    first.feed->entries.front()->setIsRead(true);
    EXPECT_EQ(readInto(first.feed, SyndicatedFeedKind::rss, rss("2", "A", "Tue, 02")).entry().state(), State::unread);
}

TEST(SyndicatedFeedParserTest, KeepsTheStateOfAnUndatedEntry) {
    const std::string text = undated("<item><link>http://a/1</link></item>");
    const FeedReading first = read(SyndicatedFeedKind::rss, text);
    first.feed->entries.front()->setIsRead(true);
    EXPECT_EQ(readInto(first.feed, SyndicatedFeedKind::rss, text, anHourLater).entry().state(), State::read);
}

TEST(SyndicatedFeedParserTest, GivesEntriesOfOneIdentityTheStateOfTheLaterOne) {
    const std::string text = undated("<item><guid>1</guid></item><item><guid>1</guid></item>");
    const FeedReading first = read(SyndicatedFeedKind::rss, text);
    ASSERT_EQ(first.feed->entries.size(), 2U);
    first.feed->entries[1]->setIsRead(true);
    const FeedReading second = readInto(first.feed, SyndicatedFeedKind::rss, text, anHourLater);
    ASSERT_EQ(second.feed->entries.size(), 2U);
    EXPECT_TRUE(second.entry(0).isRead());
    EXPECT_TRUE(second.entry(1).isRead());
}

TEST(SyndicatedFeedParserTest, LosesTheStatesWithAFailedParse) {
    const std::string text = undated("<item><guid>1</guid></item>");
    const FeedReading first = read(SyndicatedFeedKind::rss, text);
    first.feed->entries.front()->setIsRead(true);
    readInto(first.feed, SyndicatedFeedKind::rss, "<rss>", anHourLater);
    EXPECT_TRUE(first.feed->entries.empty());
    EXPECT_FALSE(readInto(first.feed, SyndicatedFeedKind::rss, text, anHourLater + std::chrono::hours(1)).entry().isRead());
}

} // namespace
} // namespace brindle
