#include "SyndicatedParser/SyndicatedAtomFeedParser.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using testsupport::CapturedConsole;
using testsupport::date;
using testsupport::FeedReading;
using testsupport::presentMoment;
using testsupport::readAtom;
using testsupport::readAtomEntry;
using MIMEType = SyndicatedContent::MIMEType;
using Relation = SyndicatedLinkRelation;

const Date first = date("2020-06-01T10:00:00Z");
const Date second = date("2020-06-02T10:00:00Z");

TEST(SyndicatedAtomFeedParserTest, ReadsTheFeed) {
    const FeedReading reading = readAtom("<title>A &amp;amp; B</title><id> urn:1 </id><updated>2020-06-01T10:00:00Z</updated>"
                                         "<subtitle>C &amp;lt; D</subtitle><category term=\"t\" label=\"l\"/>"
                                         "<link rel=\"alternate\" href=\" http://a/ \" title=\"L\"/><rights>R</rights>");
    const SyndicatedFeed& feed = *reading.feed;
    EXPECT_EQ(feed.title, "A & B");
    EXPECT_EQ(feed.identifier, " urn:1 ");
    EXPECT_EQ(feed.dateUpdated, first);
    EXPECT_EQ(feed.datePublished, presentMoment());
    EXPECT_EQ(feed.subtitle, "C < D");
    EXPECT_EQ(feed.copyright, "");
    ASSERT_EQ(feed.links.size(), 1U);
    EXPECT_EQ(feed.links[0].url, URL::make("http://a/"));
    EXPECT_EQ(feed.links[0].title, "L");
    EXPECT_EQ(feed.links[0].relation, Relation::alternate);
    ASSERT_EQ(feed.categories.size(), 1U);
    EXPECT_EQ(feed.categories[0].label(), "l");
}

TEST(SyndicatedAtomFeedParserTest, ReadsAnEntry) {
    const FeedReading reading = readAtomEntry("<title>A &amp;amp; B</title><id> 1 </id><published>2020-06-01T10:00:00Z</published>"
                                              "<updated>2020-06-02T10:00:00+00:00</updated><rights>C &amp;lt; D</rights>"
                                              "<link rel=\"ALTERNATE\" href=\"http://a/1\" title=\"L\" length=\"7\"/>");
    const SyndicatedEntry& entry = reading.entry();
    EXPECT_EQ(entry.title, "A & B");
    EXPECT_EQ(entry.identifier, " 1 ");
    EXPECT_EQ(entry.dateCreated, first);
    EXPECT_EQ(entry.dateUpdated, second);
    EXPECT_EQ(entry.copyright, "C < D");
    EXPECT_EQ(entry.feed.lock(), reading.feed);
    ASSERT_EQ(entry.links.size(), 1U);
    EXPECT_EQ(entry.links[0].relation, Relation::alternate);
    EXPECT_EQ(entry.links[0].title, "L");
    EXPECT_EQ(entry.links[0].length, 7);
}

TEST(SyndicatedAtomFeedParserTest, ReadsTheRelationOfAFeedsLinkInAnyCase) {
    EXPECT_EQ(readAtom("<link rel=\"SELF\" href=\"http://h/\"/>").feed->links.at(0).relation, Relation::self);
}

TEST(SyndicatedAtomFeedParserTest, DropsAFeedsLinkWithoutRelationOrAddress) {
    const CapturedConsole console;
    EXPECT_TRUE(readAtom("<link href=\"h\"/><link rel=\"self\"/><link rel=\"self\" href=\"a b\"/>").feed->links.empty());
}

TEST(SyndicatedAtomFeedParserTest, GivesAnEntrysLinkWithoutRelationTheUnknownOne) {
    const FeedReading one = readAtomEntry("<link href=\"http://h/\"/>");
    ASSERT_EQ(one.entry().links.size(), 1U);
    EXPECT_EQ(one.entry().links[0].relation, Relation::unknown);
    EXPECT_EQ(one.entry().preferredLinkURL(), URL::make("http://h/"));
    EXPECT_EQ(readAtomEntry("<link href=\"http://h/\"/><link href=\"http://i/\"/>").entry().preferredLinkURL(), std::nullopt);
}

TEST(SyndicatedAtomFeedParserTest, DropsAnEntrysLinkWithoutAddress) {
    const FeedReading reading = readAtomEntry("<link/><link rel=\"self\"/><link href=\"a b\"/><link rel=\"enclosure\" href=\"a b\"/>");
    EXPECT_TRUE(reading.entry().links.empty());
    EXPECT_TRUE(reading.entry().enclosures.empty());
}

TEST(SyndicatedAtomFeedParserTest, ReadsALinkToAFileAsALinkUnlessItIsAnEnclosure) {
    const FeedReading reading = readAtomEntry("<link rel=\"alternate\" type=\"audio/mpeg\" href=\"http://h/\" length=\"x\"/>");
    EXPECT_EQ(reading.entry().links.size(), 1U);
    EXPECT_EQ(reading.entry().links.at(0).length, 0);
    EXPECT_TRUE(reading.entry().enclosures.empty());
}

TEST(SyndicatedAtomFeedParserTest, ReadsEnclosures) {
    const FeedReading reading = readAtomEntry("<link rel=\"enclosure\" href=\"http://h/\"/>"
                                              "<link rel=\"Enclosure\" href=\"http://h/1\" type=\"AUDIO/mpeg\" length=\" 12 bytes\"/>"
                                              "<link rel=\"enclosure\" href=\"http://h/2\" type=\"video/mp4\" length=\"x\"/>");
    const auto& enclosures = reading.entry().enclosures;
    EXPECT_TRUE(reading.entry().links.empty());
    ASSERT_EQ(enclosures.size(), 3U);
    EXPECT_EQ(enclosures[0].kind, SyndicatedEnclosure::Kind::other);
    EXPECT_EQ(enclosures[0].length, 0);
    EXPECT_EQ(enclosures[1].kind, SyndicatedEnclosure::Kind::audio);
    EXPECT_EQ(enclosures[1].length, 12);
    EXPECT_EQ(enclosures[2].kind, SyndicatedEnclosure::Kind::video);
    EXPECT_EQ(enclosures[2].length, 0);
}

TEST(SyndicatedAtomFeedParserTest, TakesContentOfTypeHTMLAsMarkupAndAllElseAsText) {
    const FeedReading html = readAtomEntry("<content type=\"html\">&lt;p&gt;x&lt;/p&gt;</content>");
    EXPECT_EQ(html.entry().content()->type(), MIMEType::raw);
    EXPECT_EQ(html.entry().content()->content(), "<p>x</p>");
    for (const std::string_view type : {"", " type=\"text\"", " type=\"HTML\"", " type=\"xhtml\"", " TYPE=\"html\""}) {
        const FeedReading plain = readAtomEntry("<content" + std::string(type) + ">x</content>");
        EXPECT_EQ(plain.entry().content()->type(), MIMEType::plain) << type;
        EXPECT_EQ(plain.entry().content()->content(), "x") << type;
    }
}

TEST(SyndicatedAtomFeedParserTest, StoresTextsWithoutDecodingThem) {
    const FeedReading reading = readAtomEntry("<content type=\"html\">a &amp;amp; b</content><summary>c &amp;amp; d</summary>");
    EXPECT_EQ(reading.entry().content()->content(), "a &amp; b");
    EXPECT_EQ(reading.entry().summary->content(), "c &amp; d");
}

TEST(SyndicatedAtomFeedParserTest, LosesTheTextOfContentWithChildren) {
    const FeedReading reading = readAtomEntry("<content type=\"xhtml\"><div>x</div></content>");
    EXPECT_EQ(reading.entry().content()->type(), MIMEType::plain);
    EXPECT_EQ(reading.entry().content()->content(), "");
    EXPECT_EQ(reading.entry().summary, reading.entry().content());
}

TEST(SyndicatedAtomFeedParserTest, TakesContentAloneAsSummaryToo) {
    const FeedReading reading = readAtomEntry("<content>x</content>");
    ASSERT_NE(reading.entry().content(), nullptr);
    EXPECT_EQ(reading.entry().summary, reading.entry().content());
}

TEST(SyndicatedAtomFeedParserTest, TakesContentInsideContentOrASummaryAlone) {
    for (const std::string_view text :
        {"<content type=\"html\"><content>x</content>y</content>", "<summary><content>x</content></summary>"}) {
        const FeedReading reading = readAtomEntry(std::string(text));
        ASSERT_NE(reading.entry().content(), nullptr) << text;
        EXPECT_EQ(reading.entry().content()->type(), MIMEType::plain) << text;
        EXPECT_EQ(reading.entry().content()->content(), "x") << text;
        EXPECT_EQ(reading.entry().summary, reading.entry().content()) << text;
    }
}

TEST(SyndicatedAtomFeedParserTest, KeepsSummaryAndContentApartInEitherOrder) {
    for (const std::string_view entry : {"<summary>s</summary><content>c</content>", "<content>c</content><summary>s</summary>"}) {
        const FeedReading reading = readAtomEntry(std::string(entry));
        EXPECT_EQ(reading.entry().content()->content(), "c") << entry;
        EXPECT_EQ(reading.entry().summary->content(), "s") << entry;
    }
}

TEST(SyndicatedAtomFeedParserTest, LeavesContentAbsentWhereThereIsASummaryOnly) {
    const FeedReading reading = readAtomEntry("<summary type=\"html\">s</summary>");
    EXPECT_EQ(reading.entry().content(), nullptr);
    EXPECT_EQ(reading.entry().summary->type(), MIMEType::raw);
}

TEST(SyndicatedAtomFeedParserTest, InsertsCategoriesWithWhatTheyHave) {
    for (const FeedReading& reading :
        {readAtomEntry("<category label=\"a\"/><category term=\"t\" label=\"a\"/><category term=\"t\"/><category/>"),
            readAtom("<category label=\"a\"/><category term=\"t\" label=\"a\"/><category term=\"t\"/><category/>")}) {
        const auto& categories = reading.feed->entries.empty() ? reading.feed->categories : reading.entry().categories;
        ASSERT_EQ(categories.size(), 4U);
        EXPECT_EQ(categories[0].term(), "");
        EXPECT_EQ(categories[0].label(), "a");
        EXPECT_EQ(categories[1].term(), "t");
        EXPECT_EQ(categories[1].label(), "a");
        EXPECT_EQ(categories[2].label(), "t");
        EXPECT_EQ(categories[3].label(), "");
    }
}

TEST(SyndicatedAtomFeedParserTest, ReadsFeedElementsBetweenEntries) {
    EXPECT_EQ(readAtom("<entry><id>1</id></entry><id>urn:feed</id>").feed->identifier, "urn:feed");
}

TEST(SyndicatedAtomFeedParserTest, LetsTheDatesDependOnTheirOrder) {
    const std::string published = "<published>2020-06-01T10:00:00Z</published>";
    const std::string updated = "<updated>2020-06-02T10:00:00Z</updated>";
    EXPECT_EQ(readAtomEntry(published + updated).entry().dateUpdated, second);
    EXPECT_EQ(readAtomEntry(updated + published).entry().dateUpdated, first);
    EXPECT_EQ(readAtomEntry(updated).entry().dateCreated, presentMoment());
}

TEST(SyndicatedAtomFeedParserTest, LeavesADateThatCannotBeRead) {
    const FeedReading reading = readAtom("<updated>x</updated><entry><updated>y</updated><published>z</published></entry>");
    EXPECT_EQ(reading.feed->dateUpdated, presentMoment());
    EXPECT_EQ(reading.entry().dateCreated, presentMoment());
    EXPECT_EQ(reading.entry().dateUpdated, presentMoment());
}

TEST(SyndicatedAtomFeedParserTest, ReadsTheElementsOfASourceAsTheEntrys) {
    EXPECT_EQ(readAtomEntry("<title>A</title><source><title>B</title></source>").entry().title, "B");
}

TEST(SyndicatedAtomFeedParserTest, ReadsNothingOfAuthorsAndPrefixedElements) {
    const FeedReading reading = readAtomEntry("<author><name>N</name></author><media:title>M</media:title><thr:in-reply-to href=\"h\"/>");
    EXPECT_EQ(reading.entry().title, "");
    EXPECT_EQ(reading.entry().copyright, "");
    EXPECT_TRUE(reading.entry().links.empty());
}

TEST(SyndicatedAtomFeedParserTest, TakesTheLatestCDATABlockWhereAnElementHasNoText) {
    EXPECT_EQ(readAtomEntry("<title><![CDATA[A]]></title><id/>").entry().identifier, "A");
    EXPECT_EQ(readAtomEntry("<content type=\"html\"><![CDATA[ <p>x</p> ]]></content>").entry().content()->content(), "<p>x</p>");
}

} // namespace
} // namespace brindle
