#include "html/Tokeniser.hpp"

#include <gtest/gtest.h>
#include <string>

#include "tests/html/Support.hpp"

namespace brindle::html {

namespace {

using State = Tokeniser::State;

std::string described(const Token& token) {
    switch (token.kind) {
    case Token::Kind::startTag: {
        std::string text = "<" + std::string(token.name);
        for (const Attribute& attribute : token.attributes) {
            text.append(" ").append(attribute.key).append("=").append(attribute.value);
        }
        return text + (token.isSelfClosing ? "/>" : ">");
    }
    case Token::Kind::endTag:
        return "</" + std::string(token.name) + ">";
    case Token::Kind::text:
        return "'" + std::string(token.data) + "'";
    case Token::Kind::comment:
        return "<!" + std::string(token.data) + ">";
    case Token::Kind::documentType:
        return "<doctype " + std::string(token.name) + ">";
    case Token::Kind::endOfFile:
        break;
    }
    return "end";
}

/// The tokens of a text up to the end, and the names of its errors.
std::string tokens(const std::string& text, State state = State::data, std::string_view lastStartTag = {}, bool allowsCdata = false) {
    Arena arena;
    ParseErrorList errors(100);
    Tokeniser tokeniser(text, arena, errors, ParseSettings());
    tokeniser.setState(state);
    tokeniser.setLastStartTag(lastStartTag);
    tokeniser.setAllowsCdata(allowsCdata);
    std::string all;
    for (const Token* token = &tokeniser.next(); token->kind != Token::Kind::endOfFile; token = &tokeniser.next()) {
        all += described(*token);
    }
    EXPECT_EQ(tokeniser.next().kind, Token::Kind::endOfFile);
    for (const ParseError& error : std::move(errors).located(text)) {
        all.append(" ").append(error.name());
    }
    return all;
}

} // namespace

TEST(TokeniserTest, GivesTextBetweenTagsAsOneRun) {
    EXPECT_EQ(tokens("a &lt; b<c>d</c>"), "'a < b'<c>'d'</c>");
}

TEST(TokeniserTest, FoldsNamesUnlessToldNotTo) {
    EXPECT_EQ(tokens("<DiV CLASS=A></DiV>"), "<div class=A></div>");
}

TEST(TokeniserTest, LetsTheFirstOfRepeatedAttributesWinAmongFewAndMany) {
    EXPECT_EQ(tokens("<a b=1 c=2 b=3>"), "<a b=1 c=2> duplicate-attribute");
    std::string text = "<a";
    std::string expected = "<a";
    for (int index = 0; index < 100; ++index) {
        text += " k" + std::to_string(index) + "=1";
        expected += " k" + std::to_string(index) + "=1";
    }
    EXPECT_EQ(tokens(text + " k3=2 k99=2 k50>"), expected + "> duplicate-attribute duplicate-attribute duplicate-attribute");
}

TEST(TokeniserTest, EndsRcdataAtItsOwnEndTagOnly) {
    EXPECT_EQ(tokens("a</b>&amp;</TITLE >c", State::rcdata, "title"), "'a</b>&'</title>'c'");
    EXPECT_EQ(tokens("a</title", State::rcdata, "title"), "'a</title'");
    EXPECT_EQ(tokens("a</titles></title/>", State::rcdata, "title"), "'a</titles>'</title> end-tag-with-trailing-solidus");
}

TEST(TokeniserTest, ResolvesNoReferencesInRawtext) {
    EXPECT_EQ(tokens("a&amp;<b></style>", State::rawtext, "style"), "'a&amp;<b>'</style>");
}

TEST(TokeniserTest, ReadsPlaintextToTheEnd) {
    EXPECT_EQ(tokens("a</plaintext>", State::plaintext, "plaintext"), "'a</plaintext>'");
}

TEST(TokeniserTest, EndsAScriptAtItsEndTag) {
    EXPECT_EQ(tokens("a<b</script>", State::scriptData, "script"), "'a<b'</script>");
    EXPECT_EQ(tokens("<!--a</script>-->", State::scriptData, "script"), "'<!--a'</script>'-->'");
}

TEST(TokeniserTest, HidesTheEndTagOfADoublyEscapedScript) {
    EXPECT_EQ(tokens("<!--<script>a</script>b</script>", State::scriptData, "script"), "'<!--<script>a</script>b'</script>");
    EXPECT_EQ(tokens("<!--<script >a--></script>", State::scriptData, "script"), "'<!--<script >a-->'</script>");
    EXPECT_EQ(tokens("<!--<scripts>a</script>", State::scriptData, "script"), "'<!--<scripts>a'</script>");
    EXPECT_EQ(tokens("<!--<script>a</script", State::scriptData, "script"), "'<!--<script>a</script' eof-in-script-html-comment-like-text");
}

TEST(TokeniserTest, ClosesAnEscapeWithTheDashesThatOpenedIt) {
    EXPECT_EQ(tokens("<!--><script></script>", State::scriptData, "script"), "'<!--><script>'</script>");
    EXPECT_EQ(tokens("<!---><script></script>", State::scriptData, "script"), "'<!---><script>'</script>");
}

TEST(TokeniserTest, ReadsCdataSectionsOnlyWhereTheyAreAllowed) {
    EXPECT_EQ(tokens("a<![CDATA[b]]]>c", State::data, {}, true), "'a''b]''c'");
    EXPECT_EQ(tokens("<![CDATA[b]]>", State::data, {}, false), "<![CDATA[b]]> cdata-in-html-content");
}

TEST(TokeniserTest, TellsTextOfCdataSectionsFromOtherText) {
    const std::string text = "a<![CDATA[b]]>";
    Arena arena;
    ParseErrorList errors(0);
    Tokeniser tokeniser(text, arena, errors, ParseSettings());
    tokeniser.setAllowsCdata(true);
    EXPECT_FALSE(tokeniser.next().isCdata);
    EXPECT_TRUE(tokeniser.next().isCdata);
}

TEST(TokeniserTest, TellsWhetherATextHoldsTheNullCharacter) {
    const std::string text("a\0b<c>d", 7);
    Arena arena;
    ParseErrorList errors(0);
    Tokeniser tokeniser(text, arena, errors, ParseSettings());
    EXPECT_TRUE(tokeniser.next().containsNull);
    tokeniser.next();
    EXPECT_FALSE(tokeniser.next().containsNull);
}

TEST(TokeniserTest, ReportsTheNestedCommentButNotOneThatEndsThere) {
    EXPECT_EQ(tokens("<!--a<!--b-->"), "<!a<!--b> nested-comment");
    EXPECT_EQ(tokens("<!--a<!-->"), "<!a<!>");
    EXPECT_EQ(tokens("<!--a<!--->"), "<!a<!-> nested-comment");
    EXPECT_EQ(tokens("<!--a<!--"), "<!a<!> eof-in-comment");
}

TEST(TokeniserTest, EndsCommentsWhereTheStandardDoes) {
    EXPECT_EQ(tokens("<!-->"), "<!> abrupt-closing-of-empty-comment");
    EXPECT_EQ(tokens("<!--->"), "<!> abrupt-closing-of-empty-comment");
    EXPECT_EQ(tokens("<!---->"), "<!>");
    EXPECT_EQ(tokens("<!----->"), "<!->");
    EXPECT_EQ(tokens("<!--a--!>b"), "<!a>'b' incorrectly-closed-comment");
    EXPECT_EQ(tokens("<!--a--!-->"), "<!a--!>");
    EXPECT_EQ(tokens("<!--a> -> -- >-->"), "<!a> -> -- >>");
}

TEST(TokeniserTest, LeavesAmpersandsInAddressesAlone) {
    EXPECT_EQ(tokens("<a b='?c&copy=1&copyx&copy;&copy'>&copy="),
        "<a b=?c&copy=1&copyx\xC2\xA9\xC2\xA9>'\xC2\xA9=' missing-semicolon-after-character-reference "
        "missing-semicolon-after-character-reference");
}

TEST(TokeniserTest, ReplacesNumbersThatStandForNothingOrForWindowsCharacters) {
    EXPECT_EQ(tokens("&#x80;&#x9F;&#0;&#xD800;&#x110000;&#99999999999999999999;&#x41;&#65"),
        "'\xE2\x82\xAC\xC5\xB8\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"
        "AA' control-character-reference control-character-reference null-character-reference surrogate-character-reference "
        "character-reference-outside-unicode-range character-reference-outside-unicode-range missing-semicolon-after-character-reference");
}

TEST(TokeniserTest, DropsATagThatTheTextEndsIn) {
    for (const std::string text : {"<a", "<a ", "<a b", "<a b=", "<a b='c", "<a b=c", "<a /", "</a "}) {
        EXPECT_EQ(tokens("x" + text), "'x' eof-in-tag") << text;
    }
}

} // namespace brindle::html
