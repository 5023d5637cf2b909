#include "SyndicatedParser/SyndicatedRSSFeedParser.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using testsupport::CapturedConsole;
using testsupport::date;
using testsupport::FeedReading;
using testsupport::fields;
using testsupport::presentMoment;
using testsupport::read;
using testsupport::readRSS;
using testsupport::readRSSItem;

constexpr std::string_view monday = "Mon, 01 Jun 2020 10:00:00 GMT";
constexpr std::string_view tuesday = "Tue, 02 Jun 2020 10:00:00 GMT";
const Date mondayDate = date("2020-06-01T10:00:00Z");
const Date tuesdayDate = date("2020-06-02T10:00:00Z");

std::string element(std::string_view name, std::string_view text) {
    return "<" + std::string(name) + ">" + std::string(text) + "</" + std::string(name) + ">";
}

TEST(SyndicatedRSSFeedParserTest, ReadsTheChannel) {
    const FeedReading reading = readRSS("<title>A &amp;amp; B</title><link> http://a/ </link><description>C &amp;lt; D</description>"
                                        "<language> de </language><pubDate>Mon, 01 Jun 2020 10:00:00 GMT</pubDate>"
                                        "<lastBuildDate>Tue, 02 Jun 2020 10:00:00 GMT</lastBuildDate><category>K</category>");
    const SyndicatedFeed& feed = *reading.feed;
    EXPECT_EQ(feed.title, "A & B");
    EXPECT_EQ(feed.subtitle, "C < D");
    EXPECT_EQ(feed.languageCode, " de ");
    EXPECT_EQ(feed.datePublished, mondayDate);
    EXPECT_EQ(feed.dateUpdated, tuesdayDate);
    ASSERT_EQ(feed.links.size(), 1U);
    EXPECT_EQ(feed.links[0].url, URL::make("http://a/"));
    EXPECT_EQ(feed.links[0].relation, SyndicatedLinkRelation::alternate);
    EXPECT_EQ(feed.links[0].title, "");
    ASSERT_EQ(feed.categories.size(), 1U);
    EXPECT_EQ(feed.categories[0].term(), "K");
    EXPECT_EQ(feed.categories[0].label(), "K");
}

TEST(SyndicatedRSSFeedParserTest, ReadsAnItem) {
    const FeedReading reading =
        readRSSItem("<title>A &amp;amp; B</title><link> http://a/1 </link><description>&lt;p&gt;&amp;eacute;&lt;/p&gt;"
                    "</description><guid isPermaLink=\"false\"> 1 </guid><pubDate>Mon, 01 Jun 2020 10:00:00 GMT</pubDate>"
                    "<category>K</category><category>L</category><author> W </author>");
    const SyndicatedEntry& entry = reading.entry();
    EXPECT_EQ(entry.title, "A & B");
    EXPECT_EQ(entry.identifier, " 1 ");
    EXPECT_EQ(entry.dateCreated, mondayDate);
    EXPECT_EQ(entry.dateUpdated, mondayDate);
    EXPECT_EQ(entry.copyright, " W ");
    ASSERT_NE(entry.content(), nullptr);
    EXPECT_EQ(entry.content()->type(), SyndicatedContent::MIMEType::raw);
    EXPECT_EQ(entry.content()->content(), "<p>\u00E9</p>");
    EXPECT_EQ(entry.summary, nullptr);
    ASSERT_EQ(entry.links.size(), 1U);
    EXPECT_EQ(entry.links[0].url, URL::make("http://a/1"));
    EXPECT_EQ(entry.links[0].relation, SyndicatedLinkRelation::alternate);
    ASSERT_EQ(entry.categories.size(), 2U);
    EXPECT_EQ(entry.categories[1].term(), "L");
    EXPECT_EQ(entry.feed.lock(), reading.feed);
}

TEST(SyndicatedRSSFeedParserTest, ComparesElementNamesInLowerCase) {
    const FeedReading reading = read(SyndicatedFeedKind::rss, "<RSS><Channel><TITLE>A</TITLE><ITEM><PUBDATE>Mon, 01 Jun 2020 10:00:00 "
                                                              "GMT</PUBDATE><lin\u212A>http://a/</lin\u212A></ITEM></Channel></RSS>");
    EXPECT_EQ(reading.feed->title, "A");
    EXPECT_EQ(reading.entry().dateCreated, mondayDate);
    EXPECT_EQ(reading.entry().preferredLinkURL(), URL::make("http://a/"));
}

TEST(SyndicatedRSSFeedParserTest, IgnoresElementsWithPrefixes) {
    const FeedReading reading = readRSS("<atom:link href=\"http://a/\"/><item><dc:date>2020-06-01T10:00:00Z</dc:date>"
                                        "<content:encoded>x</content:encoded><media:title>y</media:title></item>");
    EXPECT_TRUE(reading.feed->links.empty());
    EXPECT_EQ(reading.entry().dateCreated, presentMoment());
    EXPECT_EQ(reading.entry().content(), nullptr);
    EXPECT_EQ(reading.entry().title, "");
}

TEST(SyndicatedRSSFeedParserTest, ReadsRDFWithItemsBesideTheChannel) {
    const std::string item = "<item><title>I</title><link>http://a/1</link><description>D</description></item>";
    const std::string image = "<image><title>other</title><link>http://image/</link></image>";
    const FeedReading reading =
        read(SyndicatedFeedKind::rdf, "<rdf:RDF><channel><title>T</title><link>http://a/</link></channel>" + image + item + "</rdf:RDF>");
    EXPECT_EQ(reading.feed->title, "T");
    EXPECT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.entry().title, "I");
    EXPECT_EQ(reading.entry().effectiveIdentifier(), "http://a/1");
    EXPECT_EQ(reading.entry().content()->content(), "D");
}

TEST(SyndicatedRSSFeedParserTest, ReadsRDFExactlyAsRSS) {
    const std::string channel = element("title", "A &amp;amp; B") + element("link", " http://a/ ") + element("description", "C") +
                                element("language", "de") + element("pubDate", monday) + element("lastBuildDate", tuesday) +
                                element("category", "K");
    const std::string item = "<item>" + element("title", "T &amp;amp; U") + element("link", " http://a/1 ") +
                             element("description", "&lt;p&gt;D&lt;/p&gt;") + element("guid", " 1 ") + element("pubDate", monday) +
                             element("category", "L") + element("author", " W ") +
                             "<enclosure url=\"http://a/1.mp3\" length=\"123\" type=\"audio/mpeg\"/></item>";
    const FeedReading rss = read(SyndicatedFeedKind::rss, "<rss><channel>" + channel + item + "</channel></rss>");
    const FeedReading rdf = read(SyndicatedFeedKind::rdf, "<rdf:RDF><channel>" + channel + "</channel>" + item + "</rdf:RDF>");
    ASSERT_EQ(rss.feed->entries.size(), 1U);
    ASSERT_EQ(rdf.feed->entries.size(), 1U);
    EXPECT_EQ(rdf.feed->kind, SyndicatedFeedKind::rdf);
    EXPECT_EQ(fields(*rdf.feed), fields(*rss.feed));
    EXPECT_EQ(fields(rdf.entry()), fields(rss.entry()));
    EXPECT_EQ(fields(rss.entry()).back(), "http://a/1.mp3 123 1") << "what both were read into is not empty";
}

TEST(SyndicatedRSSFeedParserTest, CollectsNoBuildDateOfAnItemOutsideTheChannel) {
    const std::string item = "<item>" + element("lastBuildDate", tuesday) + "</item>";
    EXPECT_EQ(readRSS(item).entry().dateUpdated, tuesdayDate);
    EXPECT_EQ(read(SyndicatedFeedKind::rdf, "<rdf:RDF>" + item + "</rdf:RDF>").entry().dateUpdated, presentMoment());
}

TEST(SyndicatedRSSFeedParserTest, KeepsTheWhiteSpaceOfATitle) {
    EXPECT_EQ(readRSSItem("<title> Foo &amp; Bar </title>").entry().title, " Foo & Bar ");
}

TEST(SyndicatedRSSFeedParserTest, TakesACDATABlockWhereAnElementHasNoText) {
    EXPECT_EQ(readRSSItem("<title> <![CDATA[ A ]]> </title>").entry().title, "A");
    EXPECT_EQ(readRSSItem("<title>B<![CDATA[A]]></title>").entry().title, "B");
}

TEST(SyndicatedRSSFeedParserTest, TakesTheLatestCDATABlockForEveryMissingText) {
    EXPECT_EQ(readRSSItem("<title><![CDATA[A]]></title><guid></guid>").entry().identifier, "A");
    EXPECT_EQ(readRSSItem("<x><![CDATA[A]]></x><x><![CDATA[B]]></x><guid/>").entry().identifier, "B");
}

TEST(SyndicatedRSSFeedParserTest, LosesTheTextAroundAChildElement) {
    const FeedReading reading = readRSSItem("<description>x<b>y</b>z</description>");
    ASSERT_NE(reading.entry().content(), nullptr);
    EXPECT_EQ(reading.entry().content()->content(), "");
    EXPECT_EQ(reading.entry().content()->type(), SyndicatedContent::MIMEType::raw);
}

TEST(SyndicatedRSSFeedParserTest, GivesALinkByAttributeInAnItemToTheFeed) {
    const FeedReading reading = readRSSItem("<link href=\"http://a/u\"/>");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, URL::make("http://a/u"));
    EXPECT_EQ(reading.feed->links[0].relation, SyndicatedLinkRelation::self);
    EXPECT_TRUE(reading.entry().links.empty());
}

TEST(SyndicatedRSSFeedParserTest, TakesTheLatestCDATABlockAsTheTextOfALinkByAttributeToo) {
    const FeedReading reading = readRSSItem("<title><![CDATA[http://a/]]></title><link href=\"http://u/\"/>");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, URL::make("http://u/"));
    EXPECT_EQ(reading.feed->links[0].relation, SyndicatedLinkRelation::self);
    ASSERT_EQ(reading.entry().links.size(), 1U);
    EXPECT_EQ(reading.entry().links[0].url, URL::make("http://a/"));
    EXPECT_EQ(reading.entry().links[0].relation, SyndicatedLinkRelation::alternate);
}

TEST(SyndicatedRSSFeedParserTest, GivesALinkByAttributeToTheFeedEvenWithoutURL) {
    const FeedReading reading = readRSSItem("<link href=\"a b\"/>");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, std::nullopt);
}

TEST(SyndicatedRSSFeedParserTest, ReadsNoLinkByAttributeInTheChannel) {
    EXPECT_TRUE(readRSS("<link href=\"http://a/\"/>").feed->links.empty());
}

TEST(SyndicatedRSSFeedParserTest, StoresARelativeLinkAndSaysThatTheBaseIsMissing) {
    const CapturedConsole console;
    EXPECT_EQ(readRSSItem("<link>/a</link>").entry().preferredLinkURL(), URL::make("/a"));
    EXPECT_EQ(console.lines, std::vector<std::string>{"Can't sanatize URL. Base URL is missing!"});
}

TEST(SyndicatedRSSFeedParserTest, ReadsEnclosures) {
    const FeedReading reading = readRSSItem("<enclosure url=\"http://a/1.mp3\" length=\"123\" type=\"Audio/mpeg\"/>"
                                            "<enclosure url=\"http://a/2.mp4\" length=\"x\" type=\"video/mp4\"/>"
                                            "<enclosure url=\"u\" length=\"1\" type=\"\"/>");
    const auto& enclosures = reading.entry().enclosures;
    ASSERT_EQ(enclosures.size(), 3U);
    EXPECT_EQ(enclosures[0].url, URL::make("http://a/1.mp3"));
    EXPECT_EQ(enclosures[0].length, 123);
    EXPECT_EQ(enclosures[0].kind, SyndicatedEnclosure::Kind::audio);
    EXPECT_EQ(enclosures[1].length, 0);
    EXPECT_EQ(enclosures[1].kind, SyndicatedEnclosure::Kind::video);
    EXPECT_EQ(enclosures[2].kind, SyndicatedEnclosure::Kind::other);
}

TEST(SyndicatedRSSFeedParserTest, DropsAnEnclosureThatLacksAnAttributeOrAURL) {
    EXPECT_TRUE(readRSSItem("<enclosure url=\"u\" type=\"audio/mpeg\"/><enclosure url=\"u\" length=\"1\"/>"
                            "<enclosure length=\"1\" type=\"audio/mpeg\"/><enclosure url=\" u\" length=\"1\" type=\"audio/mpeg\"/>"
                            "<enclosure URL=\"u\" length=\"1\" type=\"audio/mpeg\"/>")
                    .entry()
                    .enclosures.empty());
    EXPECT_TRUE(readRSS("<enclosure url=\"u\" length=\"1\" type=\"audio/mpeg\"/><item/>").entry().enclosures.empty());
}

TEST(SyndicatedRSSFeedParserTest, TakesTheTextOfAChannelsSourceAsItsAddress) {
    const CapturedConsole console;
    const FeedReading reading = readRSS("<source url=\"http://s/\">Name</source>");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, URL::make("Name"));
    EXPECT_EQ(reading.feed->links[0].relation, SyndicatedLinkRelation::self);
}

TEST(SyndicatedRSSFeedParserTest, ReadsNoSourceOfAnItem) {
    const FeedReading reading = readRSSItem("<source url=\"http://s/\">Name</source>");
    EXPECT_TRUE(reading.feed->links.empty());
    EXPECT_TRUE(reading.entry().links.empty());
}

TEST(SyndicatedRSSFeedParserTest, MakesAnEntryOfAnItemWithOnlyATitle) {
    const SyndicatedEntry entry(presentMoment());
    const FeedReading reading = readRSSItem("<title>T</title>");
    EXPECT_EQ(reading.entry().effectiveIdentifier(), "T");
    EXPECT_EQ(reading.entry().content(), nullptr);
    EXPECT_EQ(reading.entry().dateCreated, presentMoment());
    EXPECT_EQ(reading.entry().dateUpdated, presentMoment());
}

TEST(SyndicatedRSSFeedParserTest, MakesAnEntryOfAnEmptyItem) {
    EXPECT_EQ(readRSSItem("").feed->entries.size(), 1U);
}

TEST(SyndicatedRSSFeedParserTest, ReadsAnImagesElementsAsTheChannels) {
    const FeedReading reading = readRSS("<title>T</title><image><title>I</title><link>http://i/</link></image>");
    EXPECT_EQ(reading.feed->title, "I");
    ASSERT_EQ(reading.feed->links.size(), 1U);
    EXPECT_EQ(reading.feed->links[0].url, URL::make("http://i/"));
}

TEST(SyndicatedRSSFeedParserTest, LeavesADateThatCannotBeRead) {
    const FeedReading reading = readRSS("<pubDate>x</pubDate><lastBuildDate>y</lastBuildDate><item><pubDate>z</pubDate></item>");
    EXPECT_EQ(reading.feed->datePublished, presentMoment());
    EXPECT_EQ(reading.feed->dateUpdated, presentMoment());
    EXPECT_EQ(reading.entry().dateCreated, presentMoment());
}

TEST(SyndicatedRSSFeedParserTest, LetsTheLaterOfTwoDateElementsWin) {
    const FeedReading built = readRSSItem(element("pubDate", monday) + element("lastBuildDate", tuesday));
    EXPECT_EQ(built.entry().dateCreated, mondayDate);
    EXPECT_EQ(built.entry().dateUpdated, tuesdayDate);
    const FeedReading published = readRSSItem(element("lastBuildDate", tuesday) + element("pubDate", monday));
    EXPECT_EQ(published.entry().dateUpdated, mondayDate);
}

TEST(SyndicatedRSSFeedParserTest, LetsTheLastOfRepeatedElementsWinAndKeepsAllLinks) {
    const FeedReading reading = readRSSItem("<title>A</title><title>B</title><guid>1</guid><guid>2</guid><description>C</description>"
                                            "<description>D</description><link>http://a/1</link><link>http://a/2</link>");
    EXPECT_EQ(reading.entry().title, "B");
    EXPECT_EQ(reading.entry().identifier, "2");
    EXPECT_EQ(reading.entry().content()->content(), "D");
    EXPECT_EQ(reading.entry().links.size(), 2U);
}

TEST(SyndicatedRSSFeedParserTest, ReadsNothingOfTheChannelInsideAnItem) {
    const FeedReading reading = readRSS("<title>T</title><language>de</language><item><title>I</title><language>fr</language></item>");
    EXPECT_EQ(reading.feed->title, "T");
    EXPECT_EQ(reading.feed->languageCode, "de");
}

TEST(SyndicatedRSSFeedParserTest, GoesOnWithTheChannelAfterItsItems) {
    EXPECT_EQ(readRSS("<item><title>I</title></item><title>T</title>").feed->title, "T");
}

} // namespace
} // namespace brindle
