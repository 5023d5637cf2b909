#include "html/ParseError.hpp"

#include <array>

namespace brindle::html {

namespace {

constexpr std::array names = {
    std::string_view("abrupt-closing-of-empty-comment"),
    std::string_view("abrupt-doctype-public-identifier"),
    std::string_view("abrupt-doctype-system-identifier"),
    std::string_view("absence-of-digits-in-numeric-character-reference"),
    std::string_view("cdata-in-html-content"),
    std::string_view("character-reference-outside-unicode-range"),
    std::string_view("control-character-in-input-stream"),
    std::string_view("control-character-reference"),
    std::string_view("duplicate-attribute"),
    std::string_view("end-tag-with-attributes"),
    std::string_view("end-tag-with-trailing-solidus"),
    std::string_view("eof-before-tag-name"),
    std::string_view("eof-in-cdata"),
    std::string_view("eof-in-comment"),
    std::string_view("eof-in-doctype"),
    std::string_view("eof-in-script-html-comment-like-text"),
    std::string_view("eof-in-tag"),
    std::string_view("incorrectly-closed-comment"),
    std::string_view("incorrectly-opened-comment"),
    std::string_view("invalid-character-sequence-after-doctype-name"),
    std::string_view("invalid-first-character-of-tag-name"),
    std::string_view("missing-attribute-value"),
    std::string_view("missing-doctype-name"),
    std::string_view("missing-doctype-public-identifier"),
    std::string_view("missing-doctype-system-identifier"),
    std::string_view("missing-end-tag-name"),
    std::string_view("missing-quote-before-doctype-public-identifier"),
    std::string_view("missing-quote-before-doctype-system-identifier"),
    std::string_view("missing-semicolon-after-character-reference"),
    std::string_view("missing-whitespace-after-doctype-public-keyword"),
    std::string_view("missing-whitespace-after-doctype-system-keyword"),
    std::string_view("missing-whitespace-before-doctype-name"),
    std::string_view("missing-whitespace-between-attributes"),
    std::string_view("missing-whitespace-between-doctype-public-and-system-identifiers"),
    std::string_view("nested-comment"),
    std::string_view("non-void-html-element-start-tag-with-trailing-solidus"),
    std::string_view("noncharacter-character-reference"),
    std::string_view("noncharacter-in-input-stream"),
    std::string_view("null-character-reference"),
    std::string_view("surrogate-character-reference"),
    std::string_view("surrogate-in-input-stream"),
    std::string_view("unexpected-character-after-doctype-system-identifier"),
    std::string_view("unexpected-character-in-attribute-name"),
    std::string_view("unexpected-character-in-unquoted-attribute-value"),
    std::string_view("unexpected-equals-sign-before-attribute-name"),
    std::string_view("unexpected-null-character"),
    std::string_view("unexpected-question-mark-instead-of-tag-name"),
    std::string_view("unexpected-solidus-in-tag"),
    std::string_view("unknown-named-character-reference"),
};

static_assert(names.size() == static_cast<std::size_t>(ParseErrorCode::unknownNamedCharacterReference) + 1);

} // namespace

std::string_view parseErrorName(ParseErrorCode code) noexcept {
    return names[static_cast<std::size_t>(code)];
}

} // namespace brindle::html
