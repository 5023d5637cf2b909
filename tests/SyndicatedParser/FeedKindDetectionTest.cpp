#include "SyndicatedParser/FeedKindDetection.hpp"
#include "tests/SyndicatedParser/CapturedConsole.hpp"
#include "tests/SyndicatedParser/FeedReading.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using testsupport::emptyFeed;
using testsupport::FeedReading;
using testsupport::readInto;

SyndicatedFeedKind kindOf(std::string text) {
    return detectFeedKind(text);
}

/// What the parser makes of a document that came through the detection.
FeedReading readDetected(std::string text) {
    const SyndicatedFeedKind kind = detectFeedKind(text);
    return readInto(emptyFeed(kind), kind, std::move(text));
}

/// What becomes of a document's bytes on the whole road to its feed.
FeedReading readDocument(std::string bytes) {
    DecodedDocument document = decodeDocument(std::move(bytes));
    const SyndicatedFeedKind kind = detectFeedKind(document.text);
    return readInto(emptyFeed(kind), kind, std::move(document.text), testsupport::presentMoment(), document.encoding);
}

/// A feed with a title, in an encoding that it declares.
std::string titled(std::string_view encoding, std::string_view title) {
    return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?><rss><channel><title>" + std::string(title) +
           "</title></channel></rss>";
}

TEST(DecodeDocumentTest, ReadsUTF8WhateverTheDocumentDeclares) {
    const DecodedDocument document = decodeDocument("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\u00E4</a>");
    EXPECT_EQ(document.encoding, StringEncoding::utf8);
    EXPECT_EQ(document.text, "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\u00E4</a>");
}

TEST(DecodeDocumentTest, ReadsAllElseAsLatin1) {
    const DecodedDocument document = decodeDocument("<a>\xE4</a>");
    EXPECT_EQ(document.encoding, StringEncoding::isoLatin1);
    EXPECT_EQ(document.text, "<a>\u00E4</a>");
}

TEST(DecodeDocumentTest, MakesAnEmptyTextOfNoBytes) {
    const DecodedDocument document = decodeDocument("");
    EXPECT_EQ(document.encoding, StringEncoding::utf8);
    EXPECT_EQ(document.text, "");
}

TEST(FeedKindDetectionTest, TellsJSONByItsTopLevelAndLeavesTheTextAlone) {
    for (const std::string_view json : {"{}", " [1, 2]", "{\"title\":\"<rss/>\"}", "\uFEFF{}"}) {
        std::string text(json);
        EXPECT_EQ(detectFeedKind(text), SyndicatedFeedKind::json) << json;
        EXPECT_EQ(text, json);
    }
}

TEST(FeedKindDetectionTest, TakesNoBareValueForJSON) {
    for (const std::string_view text : {"1", "\"rss\"", "null", "{", "{} x"})
        EXPECT_EQ(kindOf(std::string(text)), SyndicatedFeedKind::unknown) << text;
}

TEST(FeedKindDetectionTest, LooksForMarkupInAJSONString) {
    std::string text = "\"<rss></rss>\"";
    EXPECT_EQ(detectFeedKind(text), SyndicatedFeedKind::rss);
    EXPECT_EQ(text, "\n\"\n<rss></rss>\"");
}

TEST(FeedKindDetectionTest, TellsMarkupByItsRootElement) {
    EXPECT_EQ(kindOf("<RSS/>"), SyndicatedFeedKind::rss);
    EXPECT_EQ(kindOf("<rdf:RDF></rdf:RDF>"), SyndicatedFeedKind::rdf);
    EXPECT_EQ(kindOf("<?xml version=\"1.0\"?><!-- c --><Feed>"), SyndicatedFeedKind::atom);
    EXPECT_EQ(kindOf("<!DOCTYPE html><html><body>"), SyndicatedFeedKind::html);
    EXPECT_EQ(kindOf("<opml/>"), SyndicatedFeedKind::opml);
    EXPECT_EQ(kindOf("<feeds/>"), SyndicatedFeedKind::unknown);
    EXPECT_EQ(kindOf("<rssfeed/>"), SyndicatedFeedKind::unknown);
    EXPECT_EQ(kindOf("text <rss/>"), SyndicatedFeedKind::rss);
}

TEST(FeedKindDetectionTest, KnowsNoKindOfADocumentWithoutElements) {
    for (const std::string_view text : {"", "<?xml version=\"1.0\"?>", "<!-- rss -->", "rss", "</rss>"})
        EXPECT_EQ(kindOf(std::string(text)), SyndicatedFeedKind::unknown) << text;
}

TEST(FeedKindDetectionTest, PassesOverAByteOrderMark) {
    std::string text = "\uFEFF<?xml version=\"1.0\"?><rss/>";
    EXPECT_EQ(detectFeedKind(text), SyndicatedFeedKind::rss);
    EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\"?>")) << text;
}

TEST(FeedKindDetectionTest, RewritesMarkup) {
    std::string text = "<rss><channel><title>A</title><guid>b</guid></channel></rss>";
    EXPECT_EQ(detectFeedKind(text), SyndicatedFeedKind::rss);
    EXPECT_EQ(text, "\n<rss>\n <channel>\n  <title>A</title>\n  <guid>\n   b\n  </guid>\n </channel>\n</rss>");
}

TEST(FeedKindDetectionTest, BalancesWhatIsNotWellFormed) {
    const FeedReading reading = readDetected("<rss><channel><title>A & B<item><guid>1</guid></channel>");
    EXPECT_EQ(reading.outcomes(), std::vector<std::string>{"success"});
    EXPECT_EQ(reading.feed->entries.size(), 1U);
}

TEST(FeedKindDetectionTest, TurnsCDATAIntoText) {
    const FeedReading reading = readDetected("<rss><channel><item><title><![CDATA[A]]></title><guid></guid>"
                                             "<description><![CDATA[<p>x</p>]]></description></item></channel></rss>");
    EXPECT_EQ(reading.entry().title, "A");
    EXPECT_EQ(reading.entry().identifier, "");
    EXPECT_EQ(reading.entry().content()->content(), "\n    <p>x</p>\n   ");
}

TEST(FeedKindDetectionTest, PutsWhiteSpaceAroundTextsButNotTitles) {
    const FeedReading reading = readDetected("<rss><channel><item><title>A</title><guid>1</guid><link>http://a/</link>"
                                             "<pubDate>Mon, 01 Jun 2020 10:00:00 GMT</pubDate></item></channel></rss>");
    EXPECT_EQ(reading.entry().title, "A");
    EXPECT_EQ(reading.entry().identifier, "\n    1\n   ");
    EXPECT_EQ(reading.entry().preferredLinkURL(), URL::make("http://a/"));
    EXPECT_EQ(reading.entry().dateCreated, testsupport::date("2020-06-01T10:00:00Z"));
}

TEST(FeedKindDetectionTest, KeepsReferencesReadable) {
    const FeedReading reading = readDetected("<rss><channel><title>a&nbsp;b &copy; &amp;lt;</title></channel></rss>");
    EXPECT_EQ(reading.feed->title, "a\u00A0b \u00A9 <");
}

TEST(FeedKindDetectionTest, LeavesADeclaredEncodingToTheParser) {
    const FeedReading reading = readDocument(titled("windows-1251", "\xCF\xF0\xE8\xE2\xE5\xF2"));
    EXPECT_EQ(reading.outcomes(), std::vector<std::string>{"success"});
    EXPECT_EQ(reading.feed->title, "\u041F\u0440\u0438\u0432\u0435\u0442");
}

TEST(FeedKindDetectionTest, LeavesAByteThatLooksLikeANoBreakSpaceToTheParser) {
    EXPECT_EQ(readDocument(titled("Shift_JIS", "\x83\xA0")).feed->title, "\u0392");
}

TEST(FeedKindDetectionTest, BearsFloods) {
    const auto flood = [](std::string_view part) {
        std::string text = "<rss>";
        while (text.size() < 1 << 20)
            text += part;
        return text;
    };
    for (const std::string_view part : {"<", "<a ", "<a>", "</a>", "&", "&amp;", "]]>", "<![CDATA[", "<!--", "<?", "a=\"b\" "}) {
        std::string text = flood(part);
        EXPECT_EQ(detectFeedKind(text), SyndicatedFeedKind::rss) << part;
        EXPECT_FALSE(readInto(emptyFeed(SyndicatedFeedKind::rss), SyndicatedFeedKind::rss, std::move(text)).calls.empty()) << part;
    }
}

} // namespace
} // namespace brindle
