#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "html/Attributes.hpp"

namespace brindle::html {

/// What the tokeniser gives next. A field means something for the kinds of token that it is described for. Texts live as long as the arena
/// and the text of the tokeniser; attributes until the next token.
struct Token {
    enum class Kind : std::uint8_t { startTag, endTag, text, comment, documentType, endOfFile };

    /// How a comment was opened. All but `comment` are what the HTML standard calls bogus comments.
    enum class CommentKind : std::uint8_t { comment, questionMark, exclamationMark, solidus };

    Kind kind = Kind::endOfFile;
    CommentKind commentKind = CommentKind::comment;

    /// Whether a start tag ends in a solidus.
    bool isSelfClosing = false;

    /// Whether a text holds U+0000, which the standard leaves to tree construction.
    bool containsNull = false;

    /// Whether a text is that of a CDATA section.
    bool isCdata = false;

    /// What a document type has and asks for.
    bool forcesQuirks = false;
    bool hasName = false;
    bool hasPublicId = false;
    bool hasSystemId = false;

    /// The text of a text or comment; for a document type, what stands between `<!DOCTYPE` and its end.
    std::string_view data;

    /// The name of a tag or document type.
    std::string_view name;

    /// Of a document type.

    std::string_view publicId;
    std::string_view systemId;

    /// The attributes of a start tag, no key twice.
    std::span<const Attribute> attributes;

    /// Makes it a token whose flags are all unset. The texts stay: clearing them for every token costs more than all else that is done for
    /// one.
    void restart() noexcept {
        kind = Kind::endOfFile;
        isSelfClosing = containsNull = isCdata = forcesQuirks = hasName = hasPublicId = hasSystemId = false;
    }
};

} // namespace brindle::html
