#include "html/Element.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "html/Error.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::firstElement;
using testing::parseXml;
using testing::rewrittenPlainly;

namespace {

std::vector<std::string> idsOf(const Elements& elements) {
    std::vector<std::string> ids;
    for (const Element* element : elements) {
        ids.push_back(element->attr("id"));
    }
    return ids;
}

} // namespace

TEST(ElementTest, FindsElementsWhateverTheCaseOfTheirTag) {
    const auto document = parseXml("<LINK rel=\"alternate\">");
    const Elements links = document->getElementsByTag("link");
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links[0]->tagName(), "LINK");
    EXPECT_EQ(links[0]->tag().normalName(), "link");
    EXPECT_EQ(links[0]->attr("rel"), "alternate");
}

TEST(ElementTest, FindsElementsInDocumentOrderInDepthAndWithinUnclosedOnes) {
    const auto document = parseXml("<html><head><link id=1><link id=2><p><link id=3></p></head><link id=4></html>");
    EXPECT_EQ(idsOf(document->getElementsByTag("link")), (std::vector<std::string>{"1", "2", "3", "4"}));
}

TEST(ElementTest, CountsItselfAmongWhatItFindsAndNothingOutside) {
    const auto document = parseXml("<a id='1'><a id='2'><a id='3'/></a><a id='4'/></a><a id='5'/>");
    Element& second = *document->children()[0]->children()[0];
    EXPECT_EQ(idsOf(second.getElementsByTag("a")), (std::vector<std::string>{"2", "3"}));
}

TEST(ElementTest, FoldsAndTrimsTheNameThatIsSearched) {
    const auto document = parseXml("<link id='1'/>");
    EXPECT_EQ(document->getElementsByTag(" \n LiNk\t").size(), 1U);
    EXPECT_EQ(document->getElementsByTag("links").size(), 0U);
    EXPECT_EQ(document->getElementsByTag("lin").size(), 0U);
    EXPECT_EQ(document->getElementsByTag("  ").size(), 0U);
}

TEST(ElementTest, RaisesAnErrorForAnEmptyName) {
    const auto document = parseXml("<a/>");
    EXPECT_THROW(document->getElementsByTag(""), Error);
}

TEST(ElementTest, HasNoElementsInATextWithoutTags) {
    const auto document = parseXml("no tags & nothing");
    EXPECT_TRUE(document->children().empty());
    EXPECT_TRUE(document->getElementsByTag("link").empty());
}

TEST(ElementTest, GivesOnlyElementsAsChildren) {
    const auto document = parseXml("<a>x<b/><!--y--><c><d/></c></a>");
    const Elements children = firstElement(*document).children();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0]->tagName(), "b");
    EXPECT_EQ(children[1]->tagName(), "c");
}

TEST(ElementTest, MovesNodesAbout) {
    const auto document = parseXml("<a><b/><c/><d/></a>");
    document->outputSettings().setPrettyPrint(false);
    Element& root = *document->children()[0];
    Node* const first = root.firstChild();
    root.removeChild(first);
    EXPECT_EQ(first->parent(), nullptr);
    EXPECT_EQ(document->outerHtml(), "<a><c /><d /></a>");
    root.insertBefore(first, root.lastChild());
    EXPECT_EQ(document->outerHtml(), "<a><c /><b /><d /></a>");
    root.removeChild(first);
    root.appendChild(first);
    EXPECT_EQ(document->outerHtml(), "<a><c /><d /><b /></a>");
    EXPECT_EQ(root.lastChild(), first);
}

TEST(ElementTest, TakesTheChildrenOfAnother) {
    const auto document = parseXml("<a><b/>x</a><c><d/></c><e/>");
    document->outputSettings().setPrettyPrint(false);
    const Elements tops = document->children();
    tops[1]->takeChildrenOf(*tops[0]);
    EXPECT_EQ(document->outerHtml(), "<a></a><c><d /><b />x</c><e />");
    EXPECT_EQ(tops[1]->lastChild()->parent(), tops[1]);
    tops[2]->takeChildrenOf(*tops[1]);
    tops[2]->takeChildrenOf(*tops[1]);
    EXPECT_EQ(document->outerHtml(), "<a></a><c></c><e><d /><b />x</e>");
    EXPECT_EQ(tops[2]->lastChild()->previousSibling()->previousSibling(), tops[2]->firstChild());
}

} // namespace brindle::html
