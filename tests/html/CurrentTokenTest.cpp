#include "html/CurrentToken.hpp"

#include <gtest/gtest.h>
#include <string_view>

namespace brindle::html {

namespace {

class CurrentTokenTest : public ::testing::Test {
protected:
    void setText(std::string_view text) {
        _given.kind = Token::Kind::text;
        _given.data = text;
        _given.containsNull = text.find('\0') != std::string_view::npos;
        _token.set(_given);
    }

    void setTag(Token::Kind kind, std::string_view name) {
        _given.kind = kind;
        _given.name = name;
        _token.set(_given);
    }

private:
    Document _document{InputStream(std::string()), std::string()};
    Token _given;

protected:
    CurrentToken _token{_document};
};

} // namespace

TEST_F(CurrentTokenTest, GivesATextPieceByPiece) {
    setText(" \n\f\t x y ");
    EXPECT_EQ(_token.takeLeadingWhitespace(), " \n\f\t ");
    EXPECT_EQ(_token.takeLeadingWhitespace(), "");
    EXPECT_EQ(_token.text(), "x y ");
    _token.keepWhitespaceOnly();
    EXPECT_EQ(_token.text(), "  ");
}

TEST_F(CurrentTokenTest, DropsOneLineFeed) {
    setText("\n\nx");
    _token.dropLeadingLineFeed();
    EXPECT_EQ(_token.text(), "\nx");
    setText("x\n");
    _token.dropLeadingLineFeed();
    EXPECT_EQ(_token.text(), "x\n");
}

TEST_F(CurrentTokenTest, ReplacesNulls) {
    using namespace std::string_view_literals;
    setText("a\0b\0"sv);
    _token.replaceNulls("--");
    EXPECT_EQ(_token.text(), "a--b--");
    setText("\0"sv);
    _token.replaceNulls("");
    EXPECT_EQ(_token.text(), "");
}

TEST_F(CurrentTokenTest, KnowsTagsByTheirKindAndName) {
    setTag(Token::Kind::startTag, "b");
    EXPECT_TRUE(_token.isStartTagOf({TagId::a, TagId::b}));
    EXPECT_FALSE(_token.isStartTagOf({TagId::a}));
    EXPECT_FALSE(_token.isEndTagOf({TagId::b}));
    setTag(Token::Kind::endTag, "x-y");
    EXPECT_TRUE(_token.isEndTag());
    EXPECT_EQ(_token.id(), TagId::unknown);
    EXPECT_EQ(_token.tag().name(), "x-y");
}

TEST_F(CurrentTokenTest, MayStandForAnotherTag) {
    setTag(Token::Kind::startTag, "image");
    _token.rename(TagId::img);
    EXPECT_EQ(_token.id(), TagId::img);
    EXPECT_EQ(_token.tag().name(), "img");
}

} // namespace brindle::html
