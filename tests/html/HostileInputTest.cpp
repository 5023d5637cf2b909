#include <gtest/gtest.h>
#include <string>

#include "html/TreeDump.hpp"
#include "tests/html/HostileSupport.hpp"

// Inputs of a mebibyte that are made to be costly. What would take quadratic time does not come to an end under the runner's limit.

namespace brindle::html {

using testing::flood;
using testing::parseXml;
using testing::repeated;
using testing::runOnSmallStack;

namespace {

class HostileInputTest : public ::testing::TestWithParam<const char*> {};

} // namespace

TEST_P(HostileInputTest, IsReadWrittenAndReadAgain) {
    const std::string text = flood(GetParam());
    Parser parser = Parser::xmlParser();
    parser.setMaxErrors(50);
    const auto document = parse(text, "", parser);
    const std::string written = document->outerHtml();
    EXPECT_LT(written.size(), 64 * text.size());
    const auto again = parse(written, "", parser);
    EXPECT_EQ(document->getElementsByTag("a").size(), again->getElementsByTag("a").size());
}

INSTANTIATE_TEST_SUITE_P(Floods, HostileInputTest,
    ::testing::Values("<", "<a ", "<a>", "<a/>", "&", "&a", "&#", "&#x", "&lt", "]]>", "</b>", "<a></b>", "<a b></c>", "<!--", "<!-->",
        "<!--<!--", "<![CDATA[", "<![CDATA[]]>", "<!DOCTYPE", "<!DOCTYPE a [", "<!DOCTYPE a [<!--", "<!DOCTYPE a []>", "<?", "<?a>", "</",
        "</>", "<a b='", "<a b=\"c\" ", " ", "\r", "-", "--!>", ">", "\"", "<a\n=", "<a b='&", "&nbsp;", " \n", "a <", "<title>",
        "<pre> "));

TEST(HostileInputDepthTest, BuildsSearchesWritesAndDestroysDeepTreesOnASmallStack) {
    runOnSmallStack([] {
        constexpr std::size_t depth = 200'000;
        const auto document = parseXml(repeated("<n>", depth) + "x");
        EXPECT_EQ(document->getElementsByTag("n").size(), depth);
        const std::string written = document->outerHtml();
        EXPECT_NE(written.find(">\n" + std::string(30, ' ') + "x\n"), std::string::npos);
        EXPECT_TRUE(written.ends_with("\n</n>"));
        EXPECT_LT(written.size(), depth * 100);
        EXPECT_FALSE(html5libDump(*document).empty());
    });
}

TEST(HostileInputDepthTest, PassesEndTagsThatMatchNothingOverADeepStack) {
    const auto document = parseXml("<b></b>" + repeated("<a>", 100'000) + repeated("</b>", 100'000) + repeated("</c>", 100'000) + "x");
    EXPECT_EQ(document->getElementsByTag("a").size(), 100'000U);
}

TEST(HostileInputDepthTest, KeepsAMillionAttributesOfOneTag) {
    std::string text = "<a";
    for (int index = 0; index < 1'000'000; ++index) {
        text += " k" + std::to_string(index % 600'000) + "=" + std::to_string(index);
    }
    const auto document = parseXml(text + ">");
    const Element& element = testing::firstElement(*document);
    EXPECT_EQ(element.attributes().size(), 600'000U);
    EXPECT_EQ(element.attr("k7"), "7");
}

TEST(HostileInputDepthTest, ReadsMalformedUtf8AndNullCharacters) {
    std::string text;
    for (int byte = 0; byte < 256; ++byte) {
        text += static_cast<char>(byte);
    }
    for (const std::string& wrapped : {text, "<a>" + text, "<a b='" + text + "'>", "<a " + text + ">", "<!--" + text, "<" + text}) {
        const auto document = parseXml(wrapped);
        EXPECT_EQ(html5libDump(*document), html5libDump(*parseXml(wrapped)));
        EXPECT_FALSE(parseXml(document->outerHtml())->outerHtml().empty() && !document->outerHtml().empty());
    }
}

} // namespace brindle::html
