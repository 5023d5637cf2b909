#include "html/XmlTreeBuilder.hpp"

#include <gtest/gtest.h>

#include "html/DataNodes.hpp"
#include "html/TreeDump.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::firstElement;
using testing::parseXml;

namespace {

std::string dumpOf(std::string text) {
    return html5libDump(*parseXml(std::move(text)));
}

} // namespace

TEST(XmlTreeBuilderTest, TakesNoElementForVoid) {
    EXPECT_EQ(dumpOf("<link>a<br>b</link>"), "| <link>\n|   \"a\"\n|   <br>\n|     \"b\"\n");
}

TEST(XmlTreeBuilderTest, SuppliesNoElements) {
    EXPECT_EQ(dumpOf("<td>a"), "| <td>\n|   \"a\"\n");
}

TEST(XmlTreeBuilderTest, TakesNoTextForSpecial) {
    EXPECT_EQ(
        dumpOf("<script>a<b>&lt;</b></script><title><i/></title>"), "| <script>\n|   \"a\"\n|   <b>\n|     \"<\"\n| <title>\n|   <i>\n");
}

TEST(XmlTreeBuilderTest, KeepsTheCaseOfNames) {
    EXPECT_EQ(dumpOf("<A b=1 B=2></a></A>"), "| <A>\n|   B=\"2\"\n|   b=\"1\"\n");
}

TEST(XmlTreeBuilderTest, LeavesNoSelfClosingElementOpen) {
    EXPECT_EQ(dumpOf("<a/>b"), "| <a>\n| \"b\"\n");
}

TEST(XmlTreeBuilderTest, ClosesUpToTheNearestOpenElementOfTheName) {
    EXPECT_EQ(dumpOf("<a><b><a><c>x</a>y"), "| <a>\n|   <b>\n|     <a>\n|       <c>\n|         \"x\"\n|     \"y\"\n");
}

TEST(XmlTreeBuilderTest, IgnoresAnEndTagThatClosesNothing) {
    EXPECT_EQ(dumpOf("</x><a>b</x>c</b>d</a></a>"), "| <a>\n|   \"bcd\"\n");
}

TEST(XmlTreeBuilderTest, MakesATextNodeOfItsOwnOfACdataSection) {
    const auto document = parseXml("<a>x<![CDATA[<y>&amp;]]>z<![CDATA[]]></a>");
    const Element& root = firstElement(*document);
    ASSERT_EQ(root.childNode(1)->kind(), Node::Kind::text);
    EXPECT_EQ(static_cast<const TextNode*>(root.childNode(1))->text(), "<y>&amp;");
    EXPECT_EQ(root.childNode(2), root.lastChild());
}

TEST(XmlTreeBuilderTest, TakesCdataSectionsOutsideTheRootAsWell) {
    EXPECT_EQ(dumpOf("<![CDATA[a]]><b/>"), "| \"a\"\n| <b>\n");
}

TEST(XmlTreeBuilderTest, ReadsAnUnclosedCdataSectionToTheEnd) {
    EXPECT_EQ(dumpOf("<a><![CDATA[b]]</a>"), "| <a>\n|   \"b]]</a>\"\n");
}

TEST(XmlTreeBuilderTest, DropsAByteOrderMark) {
    EXPECT_EQ(dumpOf("\xEF\xBB\xBF<a/>"), "| <a>\n");
}

TEST(XmlTreeBuilderTest, DropsBlanksAheadOfTheXmlDeclarationOnly) {
    EXPECT_EQ(dumpOf("\n <?xml version='1.0'?><a/>"), "| <?xml version='1.0'>\n| <a>\n");
    EXPECT_EQ(dumpOf("\n <?xmlish?><a/>"), "| \"\n \"\n| <?xmlish>\n| <a>\n");
    EXPECT_EQ(dumpOf("x<?xml?>"), "| \"x\"\n| <?xml>\n");
}

TEST(XmlTreeBuilderTest, TellsDeclarationsFromComments) {
    const auto document = parseXml("<?a b?><!ELEMENT c><!--d--></ e><!>");
    ASSERT_EQ(document->childNode(0)->kind(), Node::Kind::xmlDeclaration);
    EXPECT_EQ(static_cast<const XmlDeclaration*>(document->childNode(0))->opener(), '?');
    EXPECT_EQ(static_cast<const XmlDeclaration*>(document->childNode(0))->text(), "a b");
    ASSERT_EQ(document->childNode(1)->kind(), Node::Kind::xmlDeclaration);
    EXPECT_EQ(static_cast<const XmlDeclaration*>(document->childNode(1))->opener(), '!');
    EXPECT_EQ(static_cast<const XmlDeclaration*>(document->childNode(1))->text(), "ELEMENT c");
    EXPECT_EQ(document->childNode(2)->kind(), Node::Kind::comment);
    EXPECT_EQ(document->childNode(3)->kind(), Node::Kind::comment);
    EXPECT_EQ(document->childNode(4)->kind(), Node::Kind::xmlDeclaration);
}

TEST(XmlTreeBuilderTest, ReadsADocumentType) {
    EXPECT_EQ(dumpOf("<!DOCTYPE Rss PUBLIC 'a' \"b\">"), "| <!DOCTYPE Rss \"a\" \"b\">\n");
}

TEST(XmlTreeBuilderTest, PassesAnInternalSubsetOnlyWhereItIsWhole) {
    EXPECT_EQ(dumpOf("<!DOCTYPE a [<!ENTITY b '>'>]><a/>"), "| <!DOCTYPE a>\n| <a>\n");
    EXPECT_EQ(dumpOf("<!DOCTYPE a [<b/>]><a/>"), "| <!DOCTYPE a>\n| \"]>\"\n| <a>\n");
    EXPECT_EQ(dumpOf("<!DOCTYPE a [<!ENTITY b 'c>"), "| <!DOCTYPE a>\n");
}

TEST(XmlTreeBuilderTest, ResolvesReferencesInTextAndAttributes) {
    EXPECT_EQ(dumpOf("<a b='&copy=1 &amp;&#x80;'>&copy &nosuch; &#150;&notit;</a>"),
        "| <a>\n|   b=\"&copy=1 &\xE2\x82\xAC\"\n|   \"\xC2\xA9 &nosuch; \xE2\x80\x93\xC2\xACit;\"\n");
}

TEST(XmlTreeBuilderTest, WritesXmlWithPrettyPrinting) {
    const auto document = parseXml("<a/>");
    EXPECT_EQ(document->outputSettings().syntax(), OutputSettings::Syntax::xml);
    EXPECT_TRUE(document->outputSettings().prettyPrint());
    EXPECT_FALSE(document->outputSettings().outline());
    EXPECT_EQ(document->outputSettings().indentAmount(), 1U);
}

} // namespace brindle::html
