#include <gtest/gtest.h>

#include "html/Error.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::fragmentTree;

TEST(HtmlFragmentTest, BuildsTheContentOfAnElement) {
    EXPECT_EQ(fragmentTree("<td>x", "tr"), "| <td>\n|   \"x\"\n");
    EXPECT_EQ(fragmentTree("<td>x", "div"), "| \"x\"\n");
    EXPECT_EQ(fragmentTree("a</title><b>", "title"), "| \"a</title><b>\"\n");
    EXPECT_EQ(fragmentTree("<tr><td>", "template"), "| <tr>\n|   <td>\n");
    EXPECT_EQ(fragmentTree("<form>x", "form"), "| \"x\"\n");
    EXPECT_EQ(fragmentTree("<![CDATA[<a>]]><g/>", "svg path"), "| \"<a>\"\n| <svg g>\n");
    EXPECT_EQ(fragmentTree("<p>x", "math mi"), "| <p>\n|   \"x\"\n");
    EXPECT_EQ(fragmentTree("<head><body a=b>x", "html"), "| <head>\n| <body>\n|   a=\"b\"\n|   \"x\"\n");
    EXPECT_EQ(fragmentTree("", "div"), "");
}

TEST(HtmlFragmentTest, MovesFragmentsFromTheirRootToTheDocument) {
    const auto document = Parser::htmlParser().parseFragment("a<b>c</b><!--d-->", "p", "http://a.test/");
    EXPECT_EQ(document->childNode(1)->parent(), document.get());
    EXPECT_EQ(document->location(), "http://a.test/");
    document->outputSettings().setPrettyPrint(false);
    EXPECT_EQ(document->outerHtml(), "a<b>c</b><!--d-->");
}

TEST(HtmlFragmentTest, IsTheOnlyBuilderThatKnowsFragments) {
    EXPECT_THROW(Parser::xmlParser().parseFragment("<a/>", "div"), Error);
}

} // namespace brindle::html
