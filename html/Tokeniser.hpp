#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "html/Arena.hpp"
#include "html/AttributeCollector.hpp"
#include "html/ParseErrorList.hpp"
#include "html/ParseSettings.hpp"
#include "html/TextRun.hpp"
#include "html/Token.hpp"

namespace brindle::html {

/// The tokeniser of the HTML standard (section 13.2.5), over a text that is there as a whole and has been preprocessed.
/// States that cannot last from one token to the next are places in the code and have no name here.
/// Text comes in runs as long as possible. Each call takes time by what it reads.
class Tokeniser {
public:
    enum class State : std::uint8_t { data, rcdata, rawtext, scriptData, plaintext, cdataSection };

    /// `text` and `arena` must outlive the tokens, `errors` the tokeniser.
    Tokeniser(const std::string& text, Arena& arena, ParseErrorList& errors, ParseSettings settings);

    /// The next token. At the end of the text, and ever after, one of kind `endOfFile`. The token is good until the next call.
    const Token& next();

    /// Where the next token begins: bytes from the start of the text.
    std::size_t offset() const noexcept { return static_cast<std::size_t>(_at - _begin); }

    /// Where the next token is read. An end tag that ends RCDATA, RAWTEXT or script data leads back to `data`.
    void setState(State state) noexcept { _state = state; }

    /// The name that an end tag must have to end RCDATA, RAWTEXT or script data; each start tag sets it.
    /// It must live as long as the tokeniser is in use.
    void setLastStartTag(std::string_view name) { _lastStartTag = name; }

    /// Whether `<![CDATA[` opens a CDATA section; where it does not, it opens a comment, as in HTML content.
    void setAllowsCdata(bool allows) noexcept { _allowsCdata = allows; }

    /// Whether a document type declaration may hold an internal subset (XML 1.0, section 2.8), which is skipped as a whole.
    void setAllowsInternalSubset(bool allows) noexcept { _allowsInternalSubset = allows; }

private:
    /// How much of script data is hidden from its end tag by `<!--` and a further `<script`.
    enum class ScriptEscape : std::uint8_t { none, escaped, doublyEscaped };

    // Text (Tokeniser.cpp).
    void readInState();
    void readData();
    void readRcdata();
    void readRawtext();
    void readPlaintext();
    void readCdataSection();
    bool passLiteralLessThan();
    void readMarkup();
    bool endsTextHere() const noexcept;
    void endText();
    void replaceNull();
    void emitText(const char* end);
    void emitTextOrEndOfFile();
    void emitEndOfFile();

    // Script data (TokeniserScript.cpp).
    void readScriptData();
    void passScriptLessThan(ScriptEscape& escape);
    bool passScriptKeyword() noexcept;

    // Tags and attributes (TokeniserTags.cpp).
    void readStartTag();
    void readEndTag();
    bool readTag();
    std::string_view readTagName();
    void readAttribute();
    std::string_view readAttributeName();
    std::string_view readAttributeValue();
    std::string_view readQuotedValue(char quote);
    std::string_view readUnquotedValue();

    // Comments (TokeniserComments.cpp).
    void readMarkupDeclaration();
    void readComment();
    void reportNestedComments(const char* from, const char* to);
    void readBogusComment(const char* from, Token::CommentKind kind);
    void emitComment(const char* from, const char* to, Token::CommentKind kind);
    std::string_view withoutNulls(const char* from, const char* to);

    // Document types (TokeniserDoctype.cpp).
    void readDoctype();
    bool readDoctypeName();
    bool readDoctypeIdentifiers();
    bool readPublicIdentifier();
    bool readAfterPublicIdentifier();
    bool readSystemIdentifier();
    bool readAfterSystemIdentifier();
    bool readQuotedIdentifier(std::string_view& identifier, ParseErrorCode abrupt);
    bool skipInternalSubset();
    bool endDoctypeAtEnd();
    void skipBogusDoctype();

    // Character references (TokeniserReferences.cpp).
    void readReference(bool inAttribute);
    void readNamedReference(bool inAttribute);
    void readNumericReference();
    char32_t checkedReference(std::uint32_t number, const char* at);

    void skipWhitespace() noexcept;
    bool startsWithIgnoringCase(std::string_view lowered) const noexcept;
    std::size_t remaining() const noexcept { return static_cast<std::size_t>(_end - _at); }

    void report(ParseErrorCode code, const char* at) { _errors->report(code, static_cast<std::size_t>(at - _begin)); }

    // The byte at `_end` can be read and is 0.
    const char* const _begin;
    const char* const _end;
    const char* _at;
    State _state = State::data;
    bool _allowsCdata = false;
    bool _allowsInternalSubset = false;
    const ParseSettings _settings;
    Arena* const _arena;
    ParseErrorList* const _errors;
    std::string_view _lastStartTag;
    TextRun _run;
    AttributeCollector _attributes;
    Token _token;
};

} // namespace brindle::html
