#include <gtest/gtest.h>

#include "html/Serialiser.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::firstElement;
using testing::parseXml;
using testing::repeated;
using testing::rewritten;
using testing::rewrittenPlainly;

TEST(SerialiserTest, LaysOutAFeedByDepth) {
    EXPECT_EQ(rewritten("<?xml version=\"1.0\"?><rss><channel><title>A</title><guid>b</guid></channel></rss>"), "<?xml version=\"1.0\"?>\n"
                                                                                                                "<rss>\n"
                                                                                                                " <channel>\n"
                                                                                                                "  <title>A</title>\n"
                                                                                                                "  <guid>\n"
                                                                                                                "   b\n"
                                                                                                                "  </guid>\n"
                                                                                                                " </channel>\n"
                                                                                                                "</rss>");
}

TEST(SerialiserTest, StartsTheRootOnANewLine) {
    EXPECT_EQ(rewritten("<a></a>"), "\n<a></a>");
    EXPECT_EQ(rewritten("<title></title>"), "\n<title></title>");
}

TEST(SerialiserTest, LeavesAnElementInLineWhereNeitherItNorItsParentIsABlock) {
    EXPECT_EQ(rewritten("<title>x<a>y</a></title>"), "\n<title>x<a>y</a></title>");
}

TEST(SerialiserTest, StartsAnElementOnANewLineForItsOwnTag) {
    EXPECT_EQ(rewritten("<title><guid></guid></title>"), "\n<title>\n <guid></guid></title>");
}

TEST(SerialiserTest, StartsAnElementOnANewLineForItsParentsTag) {
    EXPECT_EQ(rewritten("<guid><title></title></guid>"), "\n<guid>\n <title></title>\n</guid>");
}

TEST(SerialiserTest, StartsOnlyTheFirstTextOfABlockOnANewLine) {
    EXPECT_EQ(rewritten("<guid>a<title></title>b</guid>"), "\n<guid>\n a\n <title></title>b\n</guid>");
    EXPECT_EQ(rewritten("<title>a</title>"), "\n<title>a</title>");
}

TEST(SerialiserTest, WritesABlankTextAsOneBlankInItsPlace) {
    EXPECT_EQ(rewritten("<guid> \n\t </guid>"), "\n<guid> \n</guid>");
    EXPECT_EQ(rewritten("<guid>\n  <link></link>\n</guid>"), "\n<guid> \n <link></link> \n</guid>");
}

TEST(SerialiserTest, MakesRunsOfWhiteSpaceOneBlank) {
    EXPECT_EQ(rewritten("<title>  a \t\r\n b\f\fc  d e </title>"), "\n<title> a b c d e </title>");
    EXPECT_EQ(rewritten("<title>" + repeated("word  word\n\n word ", 40) + "</title>"),
        "\n<title>" + repeated("word word word ", 40) + "</title>");
}

TEST(SerialiserTest, KeepsWhiteSpaceInElementsThatPreserveIt) {
    for (const std::string name : {"pre", "plaintext", "listing", "xmp", "textarea"}) {
        EXPECT_NE(
            rewritten("<" + name + ">  a \n\n b  <b>  c  </b></" + name + ">").find("  a \n\n b  \n <b>\n   c \n </b>"), std::string::npos)
            << name;
        EXPECT_NE(rewritten("<" + name + ">x<i> </i>  \n </" + name + ">").find("</i>  \n "), std::string::npos) << name;
    }
}

TEST(SerialiserTest, PutsTheEndTagOfABlockWithChildrenOnANewLine) {
    EXPECT_EQ(rewritten("<link>x</link>"), "\n<link>\n x\n</link>");
    EXPECT_EQ(rewritten("<link></link>"), "\n<link></link>");
    EXPECT_EQ(rewritten("<p>x</p>"), "\n<p>x</p>");
}

TEST(SerialiserTest, EscapesText) {
    EXPECT_EQ(rewritten("<title>&lt;&gt;&amp;&quot;'&#160;\xC2\xA9</title>"), "\n<title>&lt;&gt;&amp;\"'&nbsp;\xC2\xA9</title>");
}

TEST(SerialiserTest, EscapesAtEveryPlaceOfAText) {
    for (std::size_t before = 0; before < 70; ++before) {
        for (const std::size_t behind : {0U, 1U, 15U, 16U, 17U, 40U}) {
            const std::string start(before, 'a');
            const std::string end(behind, 'b');
            EXPECT_EQ(rewritten("<title>" + start + "&lt;&amp;&nbsp;  \n" + end + "</title>"),
                "\n<title>" + start + "&lt;&amp;&nbsp; " + end + "</title>");
        }
    }
}

TEST(SerialiserTest, EscapesAttributeValues) {
    EXPECT_EQ(rewritten("<a b='&lt;>&amp;\"&nbsp;  c'></a>"), "\n<a b=\"&lt;>&amp;&quot;&nbsp;  c\"></a>");
}

TEST(SerialiserTest, LeavesLessThanInAttributesOfHtml) {
    const auto document = parseXml("<a b='&lt;\"'></a>");
    document->outputSettings().setSyntax(OutputSettings::Syntax::html);
    EXPECT_EQ(document->outerHtml(), "\n<a b=\"<&quot;\"></a>");
}

TEST(SerialiserTest, WritesSelfClosingElementsOfXmlAsSuch) {
    EXPECT_EQ(rewritten("<a b=c /><d></d>"), "\n<a b=\"c\" />\n<d></d>");
}

TEST(SerialiserTest, WritesVoidElementsOfHtmlWithoutAnEndTag) {
    const auto document = parseXml("<title><br/><i/></title>");
    document->outputSettings().setSyntax(OutputSettings::Syntax::html);
    document->outputSettings().setPrettyPrint(false);
    EXPECT_EQ(document->outerHtml(), "<title><br><i></i></title>");
}

TEST(SerialiserTest, WritesScriptsOfHtmlAsTheyAre) {
    const auto document = parseXml("<script>a &lt; b &amp;&amp; c</script>");
    document->outputSettings().setSyntax(OutputSettings::Syntax::html);
    EXPECT_EQ(document->outerHtml(), "\n<script>a < b && c</script>");
}

TEST(SerialiserTest, LeavesOutAttributesWhoseKeyNoXmlReaderTakes) {
    EXPECT_EQ(rewritten("<a b=1 \"=2 1c=3 d$=4 e:f=5 =g=6></a>"), "\n<a b=\"1\" e:f=\"5\"></a>");
}

TEST(SerialiserTest, KeepsAttributesInTheOrderOfTheSource) {
    EXPECT_EQ(rewritten("<a z=1 y=2 x=3 z=4></a>"), "\n<a z=\"1\" y=\"2\" x=\"3\"></a>");
}

TEST(SerialiserTest, ClosesEveryElementThatTheSourceLeavesOpen) {
    EXPECT_EQ(rewrittenPlainly("<a><b><c>x"), "<a><b><c>x</c></b></a>");
}

TEST(SerialiserTest, WritesCommentsAsTheyAre) {
    EXPECT_EQ(rewrittenPlainly("<a><!-- x -- <y> & --></a>"), "<a><!-- x -- <y> & --></a>");
}

TEST(SerialiserTest, KeepsTheXmlDeclarationByteForByte) {
    EXPECT_EQ(rewritten("<?xml version=\"1.0\" encoding='x'  ?><a/>"), "<?xml version=\"1.0\" encoding='x'  ?>\n<a />");
}

TEST(SerialiserTest, MendsAnInstructionThatIsNotClosed) {
    EXPECT_EQ(rewrittenPlainly("<?xml version=\"1.0\"><a/>"), "<?xml version=\"1.0\"?><a />");
}

TEST(SerialiserTest, KeepsDocumentTypesWithTheirSubset) {
    const std::string text = "<!DOCTYPE rss PUBLIC \"a\" 'b' [ <!ENTITY x \"y]>\"> <!-- ]> --> <?z ]> ?> %p; ]><rss />";
    EXPECT_EQ(rewrittenPlainly(text), text);
}

TEST(SerialiserTest, WritesAnHtmlDocumentTypeByItsName) {
    const auto document = parseXml("<!DOCTYPE html SYSTEM 'about:legacy-compat'>");
    document->outputSettings().setSyntax(OutputSettings::Syntax::html);
    EXPECT_EQ(document->outerHtml(), "<!DOCTYPE html>");
}

TEST(SerialiserTest, ChangesNoTextWithoutPrettyPrinting) {
    EXPECT_EQ(rewrittenPlainly("<a>  <b> x\n\ny </b>\n</a>"), "<a>  <b> x\n\ny </b>\n</a>");
}

TEST(SerialiserTest, IndentsByTheChosenAmount) {
    const auto document = parseXml("<a><guid>x</guid></a>");
    document->outputSettings().setIndentAmount(3);
    EXPECT_EQ(document->outerHtml(), "\n<a>\n   <guid>\n      x\n   </guid></a>");
}

TEST(SerialiserTest, IndentsByManyBlanksAsWell) {
    for (const unsigned amount : {0U, 30U, 31U, 32U, 33U, 255U}) {
        const auto document = parseXml("<n><n/></n>");
        document->outputSettings().setIndentAmount(static_cast<unsigned char>(amount));
        EXPECT_EQ(document->outerHtml(), "\n<n>\n" + std::string(amount, ' ') + "<n />\n</n>");
    }
}

TEST(SerialiserTest, TreatsEveryElementAsABlockInOutline) {
    const auto document = parseXml("<p><a>x</a></p>");
    document->outputSettings().setOutline(true);
    EXPECT_EQ(document->outerHtml(), "\n<p>\n <a>\n  x\n </a>\n</p>");
}

TEST(SerialiserTest, StopsIndentingFurtherBeyondTheDeepestIndentation) {
    const std::size_t depth = Serialiser::deepestIndentation + 5;
    const std::string text = rewritten(repeated("<x>", depth));
    const std::string deepest = "\n" + std::string(Serialiser::deepestIndentation, ' ') + "<x>";
    EXPECT_NE(text.find(repeated(deepest, 4) + deepest + "</x>"), std::string::npos);
}

TEST(SerialiserTest, WritesANodeBelowTheDocumentAtDepthZero) {
    const auto document = parseXml("<a><guid b='1'>x<c/></guid></a>");
    EXPECT_EQ(firstElement(*document).childNode(0)->outerHtml(), "\n<guid b=\"1\">\n x\n <c />\n</guid>");
    EXPECT_EQ(firstElement(*document).childNode(0)->childNode(0)->outerHtml(), "\nx");
}

TEST(SerialiserTest, WritesNothingForAnEmptyDocument) {
    EXPECT_EQ(rewritten(""), "");
}

} // namespace brindle::html
