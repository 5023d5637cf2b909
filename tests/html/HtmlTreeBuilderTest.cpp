#include <gtest/gtest.h>

#include "html/DataNodes.hpp"
#include "tests/html/Support.hpp"

namespace brindle::html {

using testing::bodyTree;
using testing::htmlTree;
using testing::parseHtml;

TEST(HtmlTreeBuilderTest, SuppliesWhatIsMissing) {
    EXPECT_EQ(htmlTree(""), "| <html>\n|   <head>\n|   <body>\n");
    EXPECT_EQ(htmlTree("x"), "| <html>\n|   <head>\n|   <body>\n|     \"x\"\n");
    EXPECT_EQ(htmlTree("<link><p>"), "| <html>\n|   <head>\n|     <link>\n|   <body>\n|     <p>\n");
}

TEST(HtmlTreeBuilderTest, FoldsNamesToLowerCase) {
    EXPECT_EQ(bodyTree("<DIV ID=A Class=b></DIV>x"), "| <div>\n|   class=\"b\"\n|   id=\"A\"\n| \"x\"\n");
}

TEST(HtmlTreeBuilderTest, KeepsCommentsWhereTheyStand) {
    EXPECT_EQ(htmlTree("<!--1--><html><!--2--><head><!--3--></head><!--4--><body><!--5--></body><!--6--></html><!--7-->"),
        "| <!-- 1 -->\n| <html>\n|   <!-- 2 -->\n|   <head>\n|     <!-- 3 -->\n|   <!-- 4 -->\n|   <body>\n|     <!-- 5 -->\n"
        "|   <!-- 6 -->\n| <!-- 7 -->\n");
}

TEST(HtmlTreeBuilderTest, KeepsADocumentTypeAtTheStartOnly) {
    EXPECT_EQ(htmlTree(" <!DOCTYPE html PUBLIC \"a\" 'b'><p><!DOCTYPE x>"),
        "| <!DOCTYPE html \"a\" \"b\">\n| <html>\n|   <head>\n|   <body>\n|     <p>\n");
}

TEST(HtmlTreeBuilderTest, LeadsContentBehindTheBodyBackIntoIt) {
    EXPECT_EQ(htmlTree("<body>a</body> </html> b<p>"), "| <html>\n|   <head>\n|   <body>\n|     \"a  b\"\n|     <p>\n");
}

TEST(HtmlTreeBuilderTest, AddsOnlyNewAttributesOfFurtherRootsAndBodies) {
    EXPECT_EQ(htmlTree("<html a=1><body c=1><html a=2 b=2><body c=2 d=2>"),
        "| <html>\n|   a=\"1\"\n|   b=\"2\"\n|   <head>\n|   <body>\n|     c=\"1\"\n|     d=\"2\"\n");
}

TEST(HtmlTreeBuilderTest, TakesElementsOfTheHeadIntoItUntilTheBodyStarts) {
    EXPECT_EQ(htmlTree("<head></head> <title>t</title><meta><script>s</script> <p>"),
        "| <html>\n|   <head>\n|     <title>\n|       \"t\"\n|     <meta>\n|     <script>\n|       \"s\"\n|   \"  \"\n|   <body>\n"
        "|     <p>\n");
}

TEST(HtmlTreeBuilderTest, ReadsTheTextOfRawElementsUpToTheirEndTag) {
    for (const std::string name : {"style", "script", "xmp", "iframe", "noembed", "noframes"}) {
        const std::string text = "<div><" + name + "><b>&amp;</" + name + ">x";
        EXPECT_EQ(bodyTree(text), "| <div>\n|   <" + name + ">\n|     \"<b>&amp;\"\n|   \"x\"\n") << name;
    }
    EXPECT_EQ(bodyTree("<textarea>\n<b>&amp;</textarea>"), "| <textarea>\n|   \"<b>&\"\n");
    EXPECT_EQ(bodyTree("<plaintext><b></plaintext>"), "| <plaintext>\n|   \"<b></plaintext>\"\n");
}

TEST(HtmlTreeBuilderTest, ReadsNoscriptAsMarkup) {
    EXPECT_EQ(htmlTree("<noscript><link><p>x</noscript>"),
        "| <html>\n|   <head>\n|     <noscript>\n|       <link>\n|   <body>\n|     <p>\n|       \"x\"\n");
    EXPECT_EQ(bodyTree("<p><noscript><b>x</b></noscript>"), "| <p>\n|   <noscript>\n|     <b>\n|       \"x\"\n");
}

TEST(HtmlTreeBuilderTest, DropsTheLineFeedBehindPreformattedTags) {
    for (const std::string name : {"pre", "listing", "textarea"}) {
        EXPECT_EQ(bodyTree("<" + name + ">\n\nx"), "| <" + name + ">\n|   \"\nx\"\n") << name;
        EXPECT_EQ(bodyTree("<" + name + ">\n"), "| <" + name + ">\n") << name;
    }
    EXPECT_EQ(bodyTree("<pre><!---->\nx"), "| <pre>\n|   <!--  -->\n|   \"\nx\"\n");
}

TEST(HtmlTreeBuilderTest, DropsNullsFromTextAndReplacesThemInForeignContent) {
    EXPECT_EQ(bodyTree(std::string("a\0b<svg>c\0d", 11)), "| \"ab\"\n| <svg svg>\n|   \"c\xEF\xBF\xBD"
                                                          "d\"\n");
    EXPECT_EQ(bodyTree(std::string("<table>\0 \0</table>", 18)), "| <table>\n|   \" \"\n");
}

TEST(HtmlTreeBuilderTest, ClosesAParagraphBeforeABlock) {
    for (const std::string name : {"div", "ul", "h1", "pre", "form", "search", "dialog", "plaintext", "xmp", "hr", "center", "li", "dd"}) {
        EXPECT_TRUE(bodyTree("<p>x<" + name + ">").starts_with("| <p>\n|   \"x\"\n| <" + name + ">\n")) << name;
    }
    EXPECT_EQ(bodyTree("<p><button><div>"), "| <p>\n|   <button>\n|     <div>\n");
}

TEST(HtmlTreeBuilderTest, OpensAParagraphForAStrayEndTag) {
    EXPECT_EQ(bodyTree("<body></p>x"), "| <p>\n| \"x\"\n");
}

TEST(HtmlTreeBuilderTest, TakesAnEndTagOfALineBreakForALineBreak) {
    EXPECT_EQ(bodyTree("<p>a</br b=c>d"), "| <p>\n|   \"a\"\n|   <br>\n|   \"d\"\n");
}

TEST(HtmlTreeBuilderTest, LetsATableIntoAParagraphInQuirksModeOnly) {
    EXPECT_EQ(bodyTree("<p><table>"), "| <p>\n|   <table>\n");
    EXPECT_EQ(bodyTree("<!DOCTYPE html><p><table>"), "| <p>\n| <table>\n");
}

TEST(HtmlTreeBuilderTest, ClosesListItemsByTheNextOne) {
    EXPECT_EQ(bodyTree("<ul><li>a<b><li>c"), "| <ul>\n|   <li>\n|     \"a\"\n|     <b>\n|   <li>\n|     <b>\n|       \"c\"\n");
    EXPECT_EQ(bodyTree("<li><div><p><li>"), "| <li>\n|   <div>\n|     <p>\n| <li>\n");
    EXPECT_EQ(bodyTree("<li><section><li>"), "| <li>\n|   <section>\n|     <li>\n");
    EXPECT_EQ(bodyTree("<dl><dt>a<dd>b<dt>c"), "| <dl>\n|   <dt>\n|     \"a\"\n|   <dd>\n|     \"b\"\n|   <dt>\n|     \"c\"\n");
}

TEST(HtmlTreeBuilderTest, ClosesAnyHeadingByTheEndTagOfAny) {
    EXPECT_EQ(bodyTree("<h1><i>a</h3>b"), "| <h1>\n|   <i>\n|     \"a\"\n| <i>\n|   \"b\"\n");
    EXPECT_EQ(bodyTree("<h1><h2>"), "| <h1>\n| <h2>\n");
}

TEST(HtmlTreeBuilderTest, KeepsOneFormOpen) {
    EXPECT_EQ(bodyTree("<form><div><form id=2></form>x</div>y"), "| <form>\n|   <div>\n|     \"x\"\n| \"y\"\n");
    EXPECT_EQ(bodyTree("<table><form><tr><td></form>x<form>"), "| <table>\n|   <form>\n|   <tbody>\n|     <tr>\n|       <td>\n"
                                                               "|         \"x\"\n|         <form>\n");
}

TEST(HtmlTreeBuilderTest, LeavesTheScopesRightWhenAFormGoesFromTheMiddleOfTheStack) {
    EXPECT_EQ(bodyTree("<span><form><i></form></span>x"), "| <span>\n|   <form>\n|     <i>\n| <i>\n|   \"x\"\n");
}

TEST(HtmlTreeBuilderTest, ClosesAnOpenButtonByANewOne) {
    EXPECT_EQ(bodyTree("<button>a<button>b"), "| <button>\n|   \"a\"\n| <button>\n|   \"b\"\n");
}

TEST(HtmlTreeBuilderTest, TakesAnImageForAnImg) {
    EXPECT_EQ(bodyTree("<image src=a>x"), "| <img>\n|   src=\"a\"\n| \"x\"\n");
}

TEST(HtmlTreeBuilderTest, OpensFormattingElementsAgainThatWereClosedOutOfTurn) {
    EXPECT_EQ(bodyTree("<p><b id=1><i>a</p>c"), "| <p>\n|   <b>\n|     id=\"1\"\n|     <i>\n|       \"a\"\n| <b>\n|   id=\"1\"\n|   <i>\n"
                                                "|     \"c\"\n");
}

TEST(HtmlTreeBuilderTest, OpensNoMoreThanThreeAlikeAgain) {
    EXPECT_EQ(bodyTree("<p><b><b><b><b></p>x"),
        "| <p>\n|   <b>\n|     <b>\n|       <b>\n|         <b>\n| <b>\n|   <b>\n|     <b>\n|       \"x\"\n");
    EXPECT_EQ(bodyTree("<p><b a=1 b=2><b b=2 a=1><b a=1 b=2><b b=2 a=1><b a=1></p>x").find('x'),
        bodyTree("<p><b a=1 b=2><b a=1 b=2><b a=1 b=2><b a=1 b=2><b a=1></p>x").find('x'));
}

TEST(HtmlTreeBuilderTest, SplitsFormattingElementsThatOverlapBlocks) {
    EXPECT_EQ(bodyTree("<b>1<p>2</b>3"), "| <b>\n|   \"1\"\n| <p>\n|   <b>\n|     \"2\"\n|   \"3\"\n");
    EXPECT_EQ(bodyTree("<a>1<div>2<div>3</a>4"),
        "| <a>\n|   \"1\"\n| <div>\n|   <a>\n|     \"2\"\n|   <div>\n|     <a>\n|       \"3\"\n|     \"4\"\n");
}

TEST(HtmlTreeBuilderTest, OpensAMovedFormattingElementWithinThoseItWasMovedBehind) {
    const std::string tree = bodyTree("<b><i>" + testing::repeated("<div>", 9) + "</b>" + testing::repeated("</div>", 9) + "x");
    EXPECT_TRUE(tree.ends_with("|   <b>\n|     \"x\"\n")) << tree;
}

TEST(HtmlTreeBuilderTest, LooksForTheEndOfAFormattingElementWithinItsScopeOnly) {
    EXPECT_EQ(bodyTree("<b><object></b>x</object>y"), "| <b>\n|   <object>\n|     \"x\"\n|   \"y\"\n");
}

TEST(HtmlTreeBuilderTest, ClosesAnAnchorByTheNextOne) {
    EXPECT_EQ(bodyTree("<a href=1>a<a href=2>b"), "| <a>\n|   href=\"1\"\n|   \"a\"\n| <a>\n|   href=\"2\"\n|   \"b\"\n");
    EXPECT_EQ(bodyTree("<a href=1><table><a href=2>x"), "| <a>\n|   href=\"1\"\n|   <a>\n|     href=\"2\"\n|     \"x\"\n|   <table>\n");
}

TEST(HtmlTreeBuilderTest, PutsBeforeATableWhatDoesNotBelongIntoIt) {
    EXPECT_EQ(bodyTree("<table> a<b>c<tr>d<td>e</td>f"),
        "| \" a\"\n| <b>\n|   \"c\"\n| <b>\n|   \"d\"\n| <b>\n|   \"f\"\n| <table>\n|   <tbody>\n|     <tr>\n|       <td>\n"
        "|         \"e\"\n");
}

TEST(HtmlTreeBuilderTest, KeepsWhiteSpaceAndHiddenInputsInATable) {
    EXPECT_EQ(bodyTree("<table> <input type=HIDDEN> <input type=text></table>"),
        "| <input>\n|   type=\"text\"\n| <table>\n|   \" \"\n|   <input>\n|     type=\"HIDDEN\"\n|   \" \"\n");
}

TEST(HtmlTreeBuilderTest, SuppliesThePartsOfATable) {
    EXPECT_EQ(bodyTree("<table><td>a<tr><th>b<tfoot><col><caption>c</table>d"),
        "| <table>\n|   <tbody>\n|     <tr>\n|       <td>\n|         \"a\"\n|     <tr>\n|       <th>\n|         \"b\"\n|   <tfoot>\n"
        "|   <colgroup>\n|     <col>\n|   <caption>\n|     \"c\"\n| \"d\"\n");
}

TEST(HtmlTreeBuilderTest, ClosesTheNewestCellWhereDataAndHeaderCellsNest) {
    EXPECT_EQ(bodyTree("<table><th><table><td>a<td>b</table>c<td>d"),
        "| <table>\n|   <tbody>\n|     <tr>\n|       <th>\n|         <table>\n|           <tbody>\n|             <tr>\n|               "
        "<td>\n"
        "|                 \"a\"\n|               <td>\n|                 \"b\"\n|         \"c\"\n|       <td>\n|         \"d\"\n");
}

TEST(HtmlTreeBuilderTest, ReadsFramesetsWhereNothingStoodBefore) {
    EXPECT_EQ(htmlTree("<input type=hidden><frameset a=1>x <frame></frameset> <noframes>n</noframes></html>y <!--c-->"),
        "| <html>\n|   <head>\n|   <frameset>\n|     a=\"1\"\n|     \" \"\n|     <frame>\n|   \" \"\n|   <noframes>\n|     \"n\"\n"
        "|   \" \"\n| <!-- c -->\n");
    EXPECT_EQ(htmlTree(std::string("<svg>\0 </svg><frameset>", 23)), "| <html>\n|   <head>\n|   <frameset>\n");
    EXPECT_EQ(htmlTree("<p>x<frameset>"), "| <html>\n|   <head>\n|   <body>\n|     <p>\n|       \"x\"\n");
}

TEST(HtmlTreeBuilderTest, KeepsTheContentOfATemplateApartFromTheModeAround) {
    EXPECT_EQ(bodyTree("<table><template><td>a</td></template><tr>"),
        "| <table>\n|   <template>\n|     content\n|       <td>\n|         \"a\"\n|   <tbody>\n|     <tr>\n");
    EXPECT_EQ(bodyTree("<body><template><p>a</template>b"), "| <template>\n|   content\n|     <p>\n|       \"a\"\n| \"b\"\n");
}

TEST(HtmlTreeBuilderTest, OpensNoFormattingElementAgainBehindTheEndOfAPart) {
    EXPECT_EQ(bodyTree("<table><td><b>a<td>c</table>d"),
        "| <table>\n|   <tbody>\n|     <tr>\n|       <td>\n|         <b>\n|           \"a\"\n|       <td>\n|         \"c\"\n| \"d\"\n");
    EXPECT_EQ(bodyTree("<marquee><b>a</marquee>c"), "| <marquee>\n|   <b>\n|     \"a\"\n| \"c\"\n");
}

TEST(HtmlTreeBuilderTest, LetsASelectHoldAnythingButASelectAndInputs) {
    EXPECT_EQ(bodyTree("<select><div>a<option>b<option>c<optgroup>d<option>e<hr>"),
        "| <select>\n|   <div>\n|     \"a\"\n|     <option>\n|       \"b\"\n|     <option>\n|       \"c\"\n|     <optgroup>\n|       "
        "\"d\"\n"
        "|       <option>\n|         \"e\"\n|     <hr>\n");
    EXPECT_EQ(bodyTree("<select><option>a<select>b"), "| <select>\n|   <option>\n|     \"a\"\n| \"b\"\n");
    EXPECT_EQ(bodyTree("<select><b><input>c"), "| <select>\n|   <b>\n| <b>\n|   <input>\n|   \"c\"\n");
}

TEST(HtmlTreeBuilderTest, GivesForeignElementsTheirVocabularyAndNames) {
    EXPECT_EQ(bodyTree("<svg viewbox=1 xlink:href=2 xml:lang=3 xmlns=4 definitionurl=5><CLIPPATH/><title><p>x</p></title></svg>y"),
        "| <svg svg>\n|   definitionurl=\"5\"\n|   viewBox=\"1\"\n|   xlink href=\"2\"\n|   xml lang=\"3\"\n|   xmlns xmlns=\"4\"\n"
        "|   <svg clipPath>\n|   <svg title>\n|     <p>\n|       \"x\"\n| \"y\"\n");
    EXPECT_EQ(bodyTree("<math definitionurl=5 viewbox=1><mi><b>x</b></mi><clippath>"),
        "| <math math>\n|   definitionURL=\"5\"\n|   viewbox=\"1\"\n|   <math mi>\n|     <b>\n|       \"x\"\n|   <math clippath>\n");
}

TEST(HtmlTreeBuilderTest, LeavesForeignContentAtTagsOfHtml) {
    EXPECT_EQ(bodyTree("<svg><g><p>x"), "| <svg svg>\n|   <svg g>\n| <p>\n|   \"x\"\n");
    EXPECT_EQ(bodyTree("<svg><g></p>x"), "| <svg svg>\n|   <svg g>\n| <p>\n| \"x\"\n");
    EXPECT_EQ(
        bodyTree("<svg><font><g><font size=1>x"), "| <svg svg>\n|   <svg font>\n|     <svg g>\n| <font>\n|   size=\"1\"\n|   \"x\"\n");
    EXPECT_EQ(bodyTree("<math><mi><mglyph/><p>x"), "| <math math>\n|   <math mi>\n|     <math mglyph>\n|     <p>\n|       \"x\"\n");
}

TEST(HtmlTreeBuilderTest, ReadsHtmlInAnnotationsThatSaySo) {
    EXPECT_EQ(bodyTree("<math><annotation-xml encoding=TEXT/html><div>x"),
        "| <math math>\n|   <math annotation-xml>\n|     encoding=\"TEXT/html\"\n|     <div>\n|       \"x\"\n");
    EXPECT_EQ(bodyTree("<math><annotation-xml><svg><g/></svg><foo>"),
        "| <math math>\n|   <math annotation-xml>\n|     <svg svg>\n|       <svg g>\n|     <math foo>\n");
}

TEST(HtmlTreeBuilderTest, ReadsSectionsInForeignContentOnly) {
    EXPECT_EQ(bodyTree("<svg><![CDATA[<a>&amp;]]></svg><![CDATA[x]]>"), "| <svg svg>\n|   \"<a>&amp;\"\n| <!-- [CDATA[x]] -->\n");
}

TEST(HtmlTreeBuilderTest, ClosesForeignElementsByTheirNameInAnyCase) {
    EXPECT_EQ(bodyTree("<svg><foreignObject></FOREIGNOBJECT><g></svg>x"), "| <svg svg>\n|   <svg foreignObject>\n|   <svg g>\n| \"x\"\n");
    EXPECT_EQ(bodyTree("<p><svg><g></x>y"), "| <p>\n|   <svg svg>\n|     <svg g>\n|       \"y\"\n");
}

TEST(HtmlTreeBuilderTest, JoinsTextThatMeetsInOnePlace) {
    const auto document = parseHtml("<p>a</x>b<table>c</table>d");
    const Node* const paragraph = document->getElementsByTag("p")[0];
    ASSERT_EQ(paragraph->firstChild()->kind(), Node::Kind::text);
    EXPECT_EQ(static_cast<const TextNode*>(paragraph->firstChild())->text(), "abc");
    EXPECT_EQ(static_cast<const TextNode*>(paragraph->lastChild())->text(), "d");
}

TEST(HtmlTreeBuilderTest, KnowsTheModeOfTheDocument) {
    EXPECT_EQ(parseHtml("<!DOCTYPE html>")->mode(), Document::Mode::noQuirks);
    EXPECT_EQ(parseHtml("<p>")->mode(), Document::Mode::quirks);
    EXPECT_EQ(parseHtml("<!DOCTYPE html PUBLIC '-//W3C//DTD XHTML 1.0 Transitional//EN' 'x'>")->mode(), Document::Mode::limitedQuirks);
}

TEST(HtmlTreeBuilderTest, ReportsASolidusThatChangesNothing) {
    Parser parser = Parser::htmlParser();
    parser.setMaxErrors(10);
    parser.parse("<!DOCTYPE html><br/><svg/><link/><div/>\n<p/></p>", "");
    ASSERT_EQ(parser.errors().size(), 2U);
    for (const ParseError& error : parser.errors()) {
        EXPECT_EQ(error.name(), "non-void-html-element-start-tag-with-trailing-solidus");
    }
    EXPECT_EQ(parser.errors()[0].column, 39U);
    EXPECT_EQ(parser.errors()[1].line, 2U);
}

TEST(HtmlTreeBuilderTest, MayBeUsedAgainAndAgain) {
    Parser parser = Parser::htmlParser();
    const auto first = parser.parse("<table><b>x", "");
    const auto second = parser.parse("<p>y", "http://a.test/");
    EXPECT_EQ(html5libDump(*second), htmlTree("<p>y"));
    EXPECT_EQ(html5libDump(*first), htmlTree("<table><b>x"));
}

} // namespace brindle::html
