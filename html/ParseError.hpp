#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brindle::html {

/// The parse errors that the HTML standard has names for (section 13.2.2). They arise in the input stream and the tokeniser, one of them in
/// tree construction.
enum class ParseErrorCode : std::uint8_t {
    abruptClosingOfEmptyComment,
    abruptDoctypePublicIdentifier,
    abruptDoctypeSystemIdentifier,
    absenceOfDigitsInNumericCharacterReference,
    cdataInHtmlContent,
    characterReferenceOutsideUnicodeRange,
    controlCharacterInInputStream,
    controlCharacterReference,
    duplicateAttribute,
    endTagWithAttributes,
    endTagWithTrailingSolidus,
    eofBeforeTagName,
    eofInCdata,
    eofInComment,
    eofInDoctype,
    eofInScriptHtmlCommentLikeText,
    eofInTag,
    incorrectlyClosedComment,
    incorrectlyOpenedComment,
    invalidCharacterSequenceAfterDoctypeName,
    invalidFirstCharacterOfTagName,
    missingAttributeValue,
    missingDoctypeName,
    missingDoctypePublicIdentifier,
    missingDoctypeSystemIdentifier,
    missingEndTagName,
    missingQuoteBeforeDoctypePublicIdentifier,
    missingQuoteBeforeDoctypeSystemIdentifier,
    missingSemicolonAfterCharacterReference,
    missingWhitespaceAfterDoctypePublicKeyword,
    missingWhitespaceAfterDoctypeSystemKeyword,
    missingWhitespaceBeforeDoctypeName,
    missingWhitespaceBetweenAttributes,
    missingWhitespaceBetweenDoctypePublicAndSystemIdentifiers,
    nestedComment,
    nonVoidHtmlElementStartTagWithTrailingSolidus,
    noncharacterCharacterReference,
    noncharacterInInputStream,
    nullCharacterReference,
    surrogateCharacterReference,
    surrogateInInputStream,
    unexpectedCharacterAfterDoctypeSystemIdentifier,
    unexpectedCharacterInAttributeName,
    unexpectedCharacterInUnquotedAttributeValue,
    unexpectedEqualsSignBeforeAttributeName,
    unexpectedNullCharacter,
    unexpectedQuestionMarkInsteadOfTagName,
    unexpectedSolidusInTag,
    unknownNamedCharacterReference,
};

/// The standard's own name of an error, such as "eof-in-tag".
std::string_view parseErrorName(ParseErrorCode code) noexcept;

/// One error with the place of the character at which it was noticed.
struct ParseError {
    ParseErrorCode code = ParseErrorCode::eofInTag;
    std::size_t offset = 0; ///< Bytes from the start of the text, after a byte order mark and with line ends made line feeds.
    std::size_t line = 1;   ///< From 1.
    std::size_t column = 1; ///< In UTF-16 code units, from 1.

    std::string_view name() const noexcept { return parseErrorName(code); }
};

} // namespace brindle::html
