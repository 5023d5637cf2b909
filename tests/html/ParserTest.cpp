#include "html/Parser.hpp"

#include <gtest/gtest.h>

#include "html/Error.hpp"
#include "html/XmlTreeBuilder.hpp"

namespace brindle::html {

TEST(ParserTest, KeepsTheCaseOfNamesUnderTheXmlParser) {
    const Parser parser = Parser::xmlParser();
    EXPECT_TRUE(parser.settings().preserveTagCase);
    EXPECT_TRUE(parser.settings().preserveAttributeCase);
}

TEST(ParserTest, FoldsNamesUnderSettingsThatSaySo) {
    Parser parser(std::make_unique<XmlTreeBuilder>(), ParseSettings());
    const auto document = parse("<LiNK ReL=A></LINK>", "", parser);
    EXPECT_EQ(document->children()[0]->tagName(), "link");
    EXPECT_EQ(document->children()[0]->attr("rel"), "A");
}

TEST(ParserTest, FoldsNamesUnderTheHtmlParser) {
    Parser parser = Parser::htmlParser();
    EXPECT_FALSE(parser.settings().preserveTagCase);
    EXPECT_FALSE(parser.settings().preserveAttributeCase);
    EXPECT_EQ(parse("<LiNK ReL=A>", "", parser)->getElementsByTag("link")[0]->attr("rel"), "A");
}

TEST(ParserTest, ReadsHtmlWithoutABaseUriWhereNoParserIsNamed) {
    const auto document = parse("<LiNK href=a>");
    EXPECT_EQ(document->location(), "");
    EXPECT_EQ(document->getElementsByTag("head")[0]->children()[0]->tagName(), "link");
}

TEST(ParserTest, KeepsTheErrorsOfAFragment) {
    Parser parser = Parser::htmlParser();
    parser.setMaxErrors(1);
    parser.parseFragment("x\n<a b b><", "p");
    ASSERT_EQ(parser.errors().size(), 1U);
    EXPECT_EQ(parser.errors()[0].name(), "duplicate-attribute");
    EXPECT_EQ(parser.errors()[0].line, 2U);
}

TEST(ParserTest, KeepsTheBaseUri) {
    Parser parser = Parser::xmlParser();
    EXPECT_EQ(parse("<a/>", "http://example.org/", parser)->location(), "http://example.org/");
}

TEST(ParserTest, KeepsNoErrorsUnlessAsked) {
    Parser parser = Parser::xmlParser();
    parse("<a a=1 a=2", "", parser);
    EXPECT_TRUE(parser.errors().empty());
}

TEST(ParserTest, KeepsErrorsInTheOrderOfTheTextUpToTheLimit) {
    Parser parser = Parser::xmlParser();
    parser.setMaxErrors(3);
    parse("<b\n q=1 q=2>\x01</b c=d>\x02&#0;", "", parser);
    ASSERT_EQ(parser.errors().size(), 3U);
    EXPECT_EQ(parser.errors()[0].name(), "duplicate-attribute");
    EXPECT_EQ(parser.errors()[0].line, 2U);
    EXPECT_EQ(parser.errors()[0].column, 7U);
    EXPECT_EQ(parser.errors()[1].name(), "control-character-in-input-stream");
    EXPECT_EQ(parser.errors()[2].name(), "end-tag-with-attributes");
    parse("<a/>", "", parser);
    EXPECT_TRUE(parser.errors().empty());
}

TEST(ParserTest, RaisesAnErrorWithoutATreeBuilder) {
    Parser parser(nullptr, ParseSettings());
    EXPECT_THROW(parse("<a/>", "", parser), Error);
}

} // namespace brindle::html
