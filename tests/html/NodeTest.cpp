#include "html/Node.hpp"

#include <gtest/gtest.h>

#include "html/DataNodes.hpp"
#include "html/Error.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::firstElement;
using testing::parseXml;

TEST(NodeTest, GivesTheValueOfAnAttributeByItsExactKey) {
    const auto document = parseXml("<link rel=\"alternate\" REL='x'/>");
    EXPECT_EQ(firstElement(*document).attr("rel"), "alternate");
    EXPECT_EQ(firstElement(*document).attr("REL"), "x");
    EXPECT_EQ(firstElement(*document).attr("Rel"), "");
}

TEST(NodeTest, ReadsAMissingAttributeAsEmpty) {
    const auto document = parseXml("<link empty='' bare/>text");
    EXPECT_EQ(firstElement(*document).attr("href"), "");
    EXPECT_EQ(firstElement(*document).attr("empty"), "");
    EXPECT_EQ(firstElement(*document).attr("bare"), "");
    EXPECT_EQ(document->attr("href"), "");
    EXPECT_EQ(document->childNode(1)->attr("href"), "");
}

TEST(NodeTest, MakesAnAttributeAbsoluteForAKeyWithThePrefix) {
    const auto document = parseXml("<link href='../c?d#e' HREF='/f'/>", "http://example.org/a/b/x");
    EXPECT_EQ(firstElement(*document).attr("abs:href"), "http://example.org/a/c?d#e");
    EXPECT_EQ(firstElement(*document).attr("ABS:HREF"), "http://example.org/f");
    EXPECT_EQ(firstElement(*document).attr("abs:src"), "");
}

TEST(NodeTest, PrefersAValueThatHasThePrefixInItsKey) {
    const auto document = parseXml("<link abs:href='own' href='/f'/><link abs:href='' href='/f'/>", "http://example.org");
    EXPECT_EQ(document->childNode(0)->attr("abs:href"), "own");
    EXPECT_EQ(document->childNode(1)->attr("abs:href"), "http://example.org/f");
}

TEST(NodeTest, GivesNothingWhereNoAbsoluteUrlComesOfAnAttribute) {
    const auto document = parseXml("<link a='b' c='http://d/'/>");
    EXPECT_EQ(firstElement(*document).attr("abs:a"), "");
    EXPECT_EQ(firstElement(*document).attr("abs:c"), "http://d/");
}

TEST(NodeTest, GivesChildrenByTheirIndex) {
    const auto document = parseXml("<a>x<b/><!--y--></a>");
    const Element& root = firstElement(*document);
    EXPECT_EQ(root.childNode(0)->kind(), Node::Kind::text);
    EXPECT_EQ(root.childNode(1)->kind(), Node::Kind::element);
    EXPECT_EQ(root.childNode(2)->kind(), Node::Kind::comment);
    EXPECT_THROW(root.childNode(3), Error);
    EXPECT_THROW(root.childNode(0)->childNode(0), Error);
}

TEST(NodeTest, KnowsItsNeighbours) {
    const auto document = parseXml("<a>x<b/></a>");
    const Element& root = firstElement(*document);
    EXPECT_EQ(root.parent(), document.get());
    EXPECT_EQ(root.firstChild()->nextSibling(), root.lastChild());
    EXPECT_EQ(root.lastChild()->previousSibling(), root.firstChild());
    EXPECT_EQ(root.firstChild()->previousSibling(), nullptr);
    EXPECT_EQ(root.lastChild()->nextSibling(), nullptr);
    EXPECT_EQ(root.lastChild()->ownerDocument(), document.get());
}

} // namespace brindle::html
