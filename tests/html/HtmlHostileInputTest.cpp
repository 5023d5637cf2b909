#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "html/DataNodes.hpp"
#include "html/TreeDump.hpp"
#include "tests/html/HostileSupport.hpp"

// Inputs to the HTML builder that are made to be costly. What would take quadratic time does not come to an end under the runner's limit.

namespace brindle::html {

using testing::flood;
using testing::mebibyte;
using testing::parseHtml;
using testing::repeated;
using testing::runOnSmallStack;

namespace {

std::size_t elementsIn(Document& document) {
    std::size_t count = 0;
    for (const Node* node = document.firstChild(); node != nullptr; node = node->nextInTree(&document)) {
        count += node->isElement() ? 1 : 0;
    }
    return count;
}

/// Reads a text, writes the tree, reads that again, and holds the trees to a size in proportion to their text.
void expectTreesInProportion(const std::string& text) {
    const auto document = parseHtml(text);
    EXPECT_LE(elementsIn(*document), 3 * text.size() + 3);
    document->outputSettings().setPrettyPrint(false);
    const std::string written = document->outerHtml();
    EXPECT_LT(written.size(), 64 * text.size());
    EXPECT_LE(elementsIn(*parseHtml(written)), 3 * written.size() + 3);
}

/// `count` pieces, each with its number in place of the `#`.
std::string numbered(std::string_view piece, std::size_t count) {
    const std::size_t place = piece.find('#');
    std::string text;
    for (std::size_t index = 0; index < count; ++index) {
        text.append(piece.substr(0, place)).append(std::to_string(index)).append(piece.substr(place + 1));
    }
    return text;
}

class HtmlFloodTest : public ::testing::TestWithParam<const char*> {};

/// What makes the stack deep, and what then comes again and again.
class HtmlDeepFloodTest : public ::testing::TestWithParam<std::pair<const char*, const char*>> {};

} // namespace

TEST_P(HtmlFloodTest, IsReadWrittenAndReadAgain) {
    expectTreesInProportion(flood(GetParam(), mebibyte / 4));
}

INSTANTIATE_TEST_SUITE_P(Floods, HtmlFloodTest,
    ::testing::Values("<", "<b>", "<a>", "<a><p>", "<a><div><br>", "<p><b>", "<b></p>", "<b><i><a><div>", "<b><i><u><div></b></i></u>",
        "<i><b><u></i>", "<nobr>", "</p>", "</br>", "</a>", "a</x>", "<table>", "<table><td>", "<td><table>", "<b><table><td>",
        "<table>a</x>", "<table>a<b>", "<table> <b></b>", "<table>a<tr><td>b</td></tr>", "<caption><table>", "<select><option>",
        "<select><optgroup><div>", "<ul><li>", "<dl><dt>", "<button><p>", "<svg><g>", "<svg><foreignObject>", "<svg><desc><div>",
        "<math><mi>", "<template><b>", "<template><td>", "<frameset>", "<form><div></form>", "<h1><h2>", "<object><b>", "<ruby><rtc><rt>",
        "<textarea>\n", "<script><!--", "<plaintext>", "<html a=b>", "<col>", "<frame>", "<!DOCTYPE html>", "<!--x-->", "<image/>"));

TEST_P(HtmlDeepFloodTest, IsReadWrittenAndReadAgain) {
    const auto& [deep, then] = GetParam();
    expectTreesInProportion(flood(deep, mebibyte / 4) + flood(then, mebibyte / 4));
}

INSTANTIATE_TEST_SUITE_P(Floods, HtmlDeepFloodTest,
    ::testing::Values(std::pair("<span>", "</x>"), std::pair("<span>", "<li></li>"), std::pair("<span>", "<dd></dd>"),
        std::pair("<span>", "<table></table>"), std::pair("<div>", "<table><td>x</table>"), std::pair("<span>", "<form></form>"),
        std::pair("<span>", "</h1>"), std::pair("<span>", "</u>"), std::pair("<div>", "<head></body>"), std::pair("<div>", "<svg></svg>"),
        std::pair("<svg><g>", "</x>"), std::pair("<b><datalist>", "</b>"), std::pair("<b><option><div>", "</b>"),
        std::pair("<div>", "<select><option></select>"), std::pair("<b>", "<div></b>"), std::pair("<table><td>", "</th>"),
        std::pair("<template>", "</b>")));

TEST(HtmlHostileInputTest, ClosesOneFormattingElementOverADeepStackAgainAndAgain) {
    expectTreesInProportion("<b>" + flood("<div>", mebibyte / 4) + flood("</b>", mebibyte / 4));
    expectTreesInProportion("<b>" + flood("<datalist>", mebibyte / 8) + flood("<div>", mebibyte / 8) + flood("</b>", mebibyte / 4));
}

TEST(HtmlHostileInputTest, LooksForNoTagInALongListOfFormattingElements) {
    expectTreesInProportion(numbered("<b id=#>", 30'000) + repeated("</u>", 50'000));
    expectTreesInProportion(repeated(numbered("<b id=#>", 5'000), 6));
}

TEST(HtmlHostileInputTest, MovesWideContentOnlyOnce) {
    expectTreesInProportion(repeated("<b>", 300) + "<div>" + repeated("<br>", 50'000) + repeated("</b>", 50'000));
}

TEST(HtmlHostileInputTest, LimitsTheElementsThatAreOpenedAgain) {
    const std::string text = "<p>" + numbered("<b id=#>", 20'000) + repeated("</p><p>x", 20'000);
    const auto document = parseHtml(text);
    EXPECT_GT(elementsIn(*document), text.size() / 2);
    EXPECT_LT(elementsIn(*document), text.size() + 50'000);
}

TEST(HtmlHostileInputTest, OpensThousandsOfElementsAgainInAShortText) {
    const auto document = parseHtml("<p>" + numbered("<b id=#>", 100) + repeated("</p><p>x", 20));
    EXPECT_EQ(document->getElementsByTag("b").size(), 100U * 21);
}

TEST(HtmlHostileInputTest, MergesTheAttributesOfManyRootsAndBodies) {
    const auto document = parseHtml(numbered("<html a#=1>", 30'000) + numbered("<body b#=2>", 30'000));
    EXPECT_EQ(document->children()[0]->attributes().size(), 30'000U);
    EXPECT_EQ(document->getElementsByTag("body")[0]->attributes().size(), 30'000U);
}

TEST(HtmlHostileInputTest, ComparesManyAttributesOfFormattingElements) {
    const std::string tag = "<b" + numbered(" a#", 50'000) + ">";
    const auto document = parseHtml(tag + tag + tag + tag + "<p></b></b></b></b>x");
    EXPECT_EQ(document->getElementsByTag("p")[0]->getElementsByTag("b").size(), 3U);
}

TEST(HtmlHostileInputTest, CopiesTheSelectedOptionsContentOnceForEachOption) {
    const std::string start = "<select><button><selectedcontent></button>";
    expectTreesInProportion(start + flood("<option selected>x", mebibyte / 4));
    expectTreesInProportion(start + flood("<option selected><div>", mebibyte / 4));
    expectTreesInProportion(start + flood("<div>", mebibyte / 4) + flood("<option></option>", mebibyte / 4));
}

TEST(HtmlHostileInputTest, JoinsManyPiecesOfText) {
    const auto document = parseHtml(repeated("a</x>", 100'000));
    const Node* const text = document->getElementsByTag("body")[0]->firstChild();
    EXPECT_EQ(static_cast<const TextNode*>(text)->text(), std::string(100'000, 'a'));
    EXPECT_EQ(text->nextSibling(), nullptr);
}

TEST(HtmlHostileInputTest, BuildsSearchesWritesAndDestroysDeepTreesOnASmallStack) {
    for (const std::string piece : {"<div>", "<b>", "<span>", "<template>", "<ul><li>", "<table><td>", "<svg>", "<math><mi>", "<object>"}) {
        runOnSmallStack([&] {
            constexpr std::size_t depth = 200'000;
            const auto document = parseHtml(repeated(piece, depth) + "x");
            EXPECT_GE(elementsIn(*document), depth);
            EXPECT_GE(document->getElementsByTag(piece.substr(1, piece.find('>') - 1)).size(), depth);
            EXPECT_GT(document->outerHtml().size(), depth);
            document->outputSettings().setPrettyPrint(false);
            EXPECT_GT(document->outerHtml().size(), depth);
        });
    }
}

TEST(HtmlHostileInputTest, DumpsADeepTreeOnASmallStack) {
    runOnSmallStack([] { EXPECT_GT(html5libDump(*parseHtml(repeated("<div>", 200'000))).size(), 200'000U * 100); });
}

TEST(HtmlHostileInputTest, KeepsAMillionAttributesOfOneTag) {
    const auto document = parseHtml("<p" + numbered(" k#", 1'000'000) + ">");
    EXPECT_EQ(document->getElementsByTag("p")[0]->attributes().size(), 1'000'000U);
}

TEST(HtmlHostileInputTest, ReadsAnyBytes) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    for (const std::string start :
        {"", "<a>", "<a b='", "<a ", "<!--", "<", "<table>", "<svg>", "<select>", "<title>", "<!DOCTYPE ", "</p>"}) {
        const std::string text = start + bytes;
        EXPECT_EQ(testing::htmlTree(text), testing::htmlTree(text)) << start;
        EXPECT_FALSE(parseHtml(parseHtml(text)->outerHtml())->outerHtml().empty());
    }
}

} // namespace brindle::html
