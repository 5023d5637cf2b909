#include "Brindle/browser/ArticlePage.hpp"
#include "tests/support/Folders.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brindle {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(ArticlePageTest, FillsEveryPlaceholder) {
    EXPECT_EQ(articlePage("<%title%>|<%title%>|<%content%>|<%content%>.", "T", "C"), "T|T|C|C.");
}

TEST(ArticlePageTest, LeavesATemplateWithoutPlaceholderAsItIs) {
    EXPECT_EQ(articlePage("<p>100<%</p><%other%><%title", "T", "C"), "<p>100<%</p><%other%><%title");
    EXPECT_EQ(articlePage("", "T", "C"), "");
}

TEST(ArticlePageTest, ResolvesReferencesInTheTitle) {
    EXPECT_EQ(articlePage("<%title%>", "Fish &amp; Chips &#8211; caf&eacute;", ""), "Fish & Chips – café");
    EXPECT_EQ(articlePage("<%title%>", "AT&T &copy", ""), "AT&T ©");
    EXPECT_EQ(articlePage("<%title%>", "&amp;amp;", ""), "&amp;");
}

TEST(ArticlePageTest, EscapesNothing) {
    EXPECT_EQ(articlePage("<%title%>", "&lt;b> <i>x</i>", ""), "<b> <i>x</i>");
    EXPECT_EQ(articlePage("<%content%>", "", "<script>1 &lt; 2</script>"), "<script>1 &lt; 2</script>");
}

TEST(ArticlePageTest, KeepsTheEndTagOfATitleInATitle) {
    EXPECT_EQ(articlePage("<%title%>.", "a</title>b &amp; c", ""), "a</title>b & c.");
}

TEST(ArticlePageTest, TakesPlaceholdersInTitleAndContentForText) {
    EXPECT_EQ(articlePage("<%title%> <%content%>", "<%content%>", "<%title%>"), "<%content%> <%title%>");
}

TEST(ArticlePageTest, ReadsTheTemplateOfTheProgram) {
    const std::string page = articlePage(articlePageTemplate(testsupport::sourceFolder() + "/resources"), "A title", "<p>Text</p>");
    EXPECT_THAT(page, HasSubstr("<h1 class=\"title\">A title</h1>"));
    EXPECT_THAT(page, HasSubstr("<article><p>Text</p></article>"));
    EXPECT_THAT(page, HasSubstr("data-color-scheme=\"dark\""));
    EXPECT_THAT(page, Not(HasSubstr("<%")));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
}

TEST(ArticlePageTest, ReadsNothingWhereThereIsNoTemplate) {
    EXPECT_EQ(articlePageTemplate("/nonexistent"), "");
}

} // namespace
} // namespace brindle
