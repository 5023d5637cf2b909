#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "html/Document.hpp"
#include "html/Token.hpp"

namespace brindle::html {

/// The token that tree construction is at, with what its rules ask of it. Texts may be taken piece by piece.
class CurrentToken {
public:
    explicit CurrentToken(Document& document) noexcept : _document(document) {}

    /// `token` must stay as it is until the next call.
    void set(const Token& token);

    const Token& token() const noexcept { return *_token; }
    bool isText() const noexcept { return _token->kind == Token::Kind::text; }
    bool isStartTag() const noexcept { return _token->kind == Token::Kind::startTag; }
    bool isEndTag() const noexcept { return _token->kind == Token::Kind::endTag; }
    bool isEndOfFile() const noexcept { return _token->kind == Token::Kind::endOfFile; }
    bool isStartTagOf(std::initializer_list<TagId> ids) const noexcept { return isStartTag() && isOneOf(ids); }
    bool isEndTagOf(std::initializer_list<TagId> ids) const noexcept { return isEndTag() && isOneOf(ids); }

    /// What the name of a tag is, and its place in the document's table of tags.
    const Tag& tag() const noexcept { return *_tag; }
    TagId id() const noexcept { return _tag->id(); }
    std::uint32_t nameIndex() const noexcept { return _nameIndex; }

    /// Has a tag be another one from here on.
    void rename(TagId id) noexcept { _tag = &Tag::known(id); }

    /// The attributes of a start tag, kept by the document.
    Attributes keptAttributes() const;

    /// The attribute of a start tag with this key, or null.
    const Attribute* find(std::string_view key) const noexcept { return Attributes(_token->attributes).find(key); }

    /// To be told that the solidus at the end of a start tag is in its place.
    void acknowledgeSolidus() noexcept { _hasStraySolidus = false; }
    bool hasStraySolidus() const noexcept { return _hasStraySolidus; }

    /// What is left of a text.
    std::string_view text() const noexcept { return _text; }

    /// Takes the white space off that a text starts with, and gives it.
    std::string_view takeLeadingWhitespace() noexcept;

    /// Takes off a line feed that a text starts with.
    void dropLeadingLineFeed() noexcept;

    /// Takes off all but white space.
    void keepWhitespaceOnly();

    /// Takes U+0000 out of a text, or puts `replacement` for each.
    void replaceNulls(std::string_view replacement);

private:
    bool isOneOf(std::initializer_list<TagId> ids) const noexcept;

    Document& _document;
    const Token* _token = nullptr;
    const Tag* _tag = nullptr;
    std::uint32_t _nameIndex = 0;
    bool _hasStraySolidus = false;
    std::string_view _text;
};

} // namespace brindle::html
