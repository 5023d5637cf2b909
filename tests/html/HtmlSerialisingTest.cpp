#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "html/Serialiser.hpp"
#include "html/TreeDump.hpp"
#include "tests/html/Support.hpp"
#include "tests/support/Corpus.hpp"

// What is written of a tree of HTML, and what it reads as.

namespace brindle::html {

using testing::htmlTree;
using testing::parseHtml;

namespace {

std::string writtenPlainly(const Document& document) {
    OutputSettings settings = document.outputSettings();
    settings.setPrettyPrint(false);
    return Serialiser(settings).serialise(document);
}

/// The tree below the root element; what a document type says besides its name is not written.
std::string treeOfRoot(const Document& document) {
    return html5libDump(*document.children()[0]);
}

std::string bodyRewritten(const std::string& text) {
    const auto document = parseHtml(text);
    const std::string written = writtenPlainly(*document);
    constexpr std::string_view start = "<html><head></head><body>";
    constexpr std::string_view end = "</body></html>";
    EXPECT_TRUE(written.starts_with(start) && written.ends_with(end)) << written;
    return written.substr(start.size(), written.size() - start.size() - end.size());
}

} // namespace

TEST(HtmlSerialisingTest, SuppliesEveryTagThatTheSourceLeavesOut) {
    EXPECT_EQ(writtenPlainly(*parseHtml("<!DOCTYPE html><title>t</title><p>a<p>b<table><td>c")),
        "<!DOCTYPE html><html><head><title>t</title></head><body><p>a</p><p>b</p><table><tbody><tr><td>c</td></tr></tbody></table></body>"
        "</html>");
}

TEST(HtmlSerialisingTest, WritesNoEndTagForVoidElements) {
    for (const std::string name : {"area", "base", "br", "col", "embed", "hr", "img", "input", "link", "meta", "param", "source", "track",
             "wbr", "basefont", "bgsound", "frame", "keygen"}) {
        const auto document = Parser::htmlParser().parseFragment("<" + name + ">", name == "col"     ? "colgroup"
                                                                                   : name == "frame" ? "frameset"
                                                                                                     : "p");
        EXPECT_EQ(writtenPlainly(*document), "<" + name + ">");
    }
    EXPECT_EQ(bodyRewritten("<command>x"), "<command>x</command>");
}

TEST(HtmlSerialisingTest, WritesEndTagsForForeignElementsWithNamesOfVoidOnes) {
    EXPECT_EQ(bodyRewritten("<svg><link/><source></source><g/></svg>"), "<svg><link></link><source></source><g></g></svg>");
}

TEST(HtmlSerialisingTest, WritesTheTextOfRawElementsAsItIsInHtmlOnly) {
    EXPECT_EQ(bodyRewritten("<p><style>a<b&amp;</style><svg><style>a&lt;b</style></svg>"),
        "<p><style>a<b&amp;</style><svg><style>a&lt;b</style></svg></p>");
    EXPECT_EQ(bodyRewritten("<p><noscript>a&lt;b</noscript>&nbsp;"), "<p><noscript>a&lt;b</noscript>&nbsp;</p>");
}

TEST(HtmlSerialisingTest, WritesTheContentOfATemplateInIt) {
    EXPECT_EQ(bodyRewritten("<p><template><td>a</template>"), "<p><template><td>a</td></template></p>");
}

TEST(HtmlSerialisingTest, WritesNamesOfForeignContentInTheirCase) {
    EXPECT_EQ(bodyRewritten("<svg viewbox=1 xlink:href=2><lineargradient/></svg>"),
        "<svg viewBox=\"1\" xlink:href=\"2\"><linearGradient></linearGradient></svg>");
}

TEST(HtmlSerialisingTest, LaysOutADocumentByDepth) {
    EXPECT_EQ(parseHtml("<!DOCTYPE html><title>t</title><div><p>a <b>b</b><br>")->outerHtml(),
        "<!DOCTYPE html>\n<html>\n <head>\n  <title>t</title>\n </head>\n <body>\n  <div>\n   <p>a \n    <b>\n     b\n    </b>\n    "
        "<br></p>\n"
        "  </div>\n </body>\n</html>");
}

TEST(HtmlSerialisingTest, WritesPagesThatReadAsTheSameTree) {
    BRINDLE_REQUIRE_CORPUS(path);
    std::size_t pages = 0;
    for (const auto& file : testsupport::filesBelow(path / "pages")) {
        SCOPED_TRACE(file.string());
        ++pages;
        const auto document = parseHtml(testsupport::bytesOf(file));
        const auto again = parseHtml(writtenPlainly(*document));
        EXPECT_TRUE(treeOfRoot(*document) == treeOfRoot(*again));
        const auto pretty = parseHtml(document->outerHtml());
        EXPECT_EQ(document->getElementsByTag("link").size(), pretty->getElementsByTag("link").size());
    }
    EXPECT_GE(pages, 100U);
}

} // namespace brindle::html
