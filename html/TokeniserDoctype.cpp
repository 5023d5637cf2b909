#include "html/AsciiText.hpp"
#include "html/Tokeniser.hpp"
#include "html/Utf8.hpp"

// Document type declarations: sections 13.2.5.53 to 13.2.5.68 of the HTML standard.
// Functions that return a bool tell whether there is more of the declaration to read.

namespace brindle::html {

namespace {

constexpr std::string_view publicKeyword = "public";
constexpr std::string_view systemKeyword = "system";

} // namespace

/// Behind `<!DOCTYPE`.
void Tokeniser::readDoctype() {
    const char* const start = _at;
    _token.kind = Token::Kind::documentType;
    _token.name = _token.publicId = _token.systemId = {};
    if (readDoctypeName() && readDoctypeIdentifiers()) {
        skipBogusDoctype();
    }
    // Every `>` that is not within an internal subset ends the declaration, so one that stands last has done so.
    const char* const end = _at[-1] == '>' ? _at - 1 : _at;
    _token.data = std::string_view(start, static_cast<std::size_t>(end - start));
}

bool Tokeniser::readDoctypeName() {
    if (!isAsciiWhitespace(*_at) && *_at != '>' && _at != _end) {
        report(ParseErrorCode::missingWhitespaceBeforeDoctypeName, _at);
    }
    skipWhitespace();
    if (*_at == '>') {
        report(ParseErrorCode::missingDoctypeName, _at);
        _token.forcesQuirks = true;
    }
    if (endDoctypeAtEnd()) {
        return false;
    }
    _token.hasName = true;
    _run.begin(_at);
    for (; !isAsciiWhitespace(*_at) && *_at != '>' && _at != _end; ++_at) {
        if (*_at == '\0') {
            report(ParseErrorCode::unexpectedNullCharacter, _at);
            _run.replace(_at, _at + 1, replacementCharacter);
        } else if (isAsciiUpper(*_at) && !_settings.preserveTagCase) {
            const char lowered = toAsciiLower(*_at);
            _run.replace(_at, _at + 1, {&lowered, 1});
        }
    }
    _token.name = _run.end(_at);
    return true;
}

/// Ends the declaration if the text or the declaration ends here.
bool Tokeniser::endDoctypeAtEnd() {
    if (*_at == '>') {
        ++_at;
        return true;
    }
    if (_at == _end) {
        report(ParseErrorCode::eofInDoctype, _end);
        _token.forcesQuirks = true;
        return true;
    }
    return false;
}

bool Tokeniser::readDoctypeIdentifiers() {
    skipWhitespace();
    if (endDoctypeAtEnd()) {
        return false;
    }
    if (startsWithIgnoringCase(publicKeyword)) {
        _at += publicKeyword.size();
        return readPublicIdentifier();
    }
    if (startsWithIgnoringCase(systemKeyword)) {
        _at += systemKeyword.size();
        if (*_at == '"' || *_at == '\'') {
            report(ParseErrorCode::missingWhitespaceAfterDoctypeSystemKeyword, _at);
        }
        skipWhitespace();
        if (*_at == '>') {
            report(ParseErrorCode::missingDoctypeSystemIdentifier, _at);
            _token.forcesQuirks = true;
        }
        return !endDoctypeAtEnd() && readSystemIdentifier();
    }
    if (skipInternalSubset()) {
        return !endDoctypeAtEnd();
    }
    report(ParseErrorCode::invalidCharacterSequenceAfterDoctypeName, _at);
    _token.forcesQuirks = true;
    return true;
}

/// Behind the keyword.
bool Tokeniser::readPublicIdentifier() {
    if (*_at == '"' || *_at == '\'') {
        report(ParseErrorCode::missingWhitespaceAfterDoctypePublicKeyword, _at);
    }
    skipWhitespace();
    if (*_at == '>') {
        report(ParseErrorCode::missingDoctypePublicIdentifier, _at);
        _token.forcesQuirks = true;
    }
    if (endDoctypeAtEnd()) {
        return false;
    }
    if (*_at != '"' && *_at != '\'') {
        report(ParseErrorCode::missingQuoteBeforeDoctypePublicIdentifier, _at);
        _token.forcesQuirks = true;
        return true;
    }
    _token.hasPublicId = true;
    return readQuotedIdentifier(_token.publicId, ParseErrorCode::abruptDoctypePublicIdentifier) && readAfterPublicIdentifier();
}

bool Tokeniser::readAfterPublicIdentifier() {
    if (*_at == '"' || *_at == '\'') {
        report(ParseErrorCode::missingWhitespaceBetweenDoctypePublicAndSystemIdentifiers, _at);
    }
    skipWhitespace();
    return !endDoctypeAtEnd() && readSystemIdentifier();
}

/// At what should be the opening quote.
bool Tokeniser::readSystemIdentifier() {
    if (*_at != '"' && *_at != '\'') {
        report(ParseErrorCode::missingQuoteBeforeDoctypeSystemIdentifier, _at);
        _token.forcesQuirks = true;
        return true;
    }
    _token.hasSystemId = true;
    return readQuotedIdentifier(_token.systemId, ParseErrorCode::abruptDoctypeSystemIdentifier) && readAfterSystemIdentifier();
}

bool Tokeniser::readAfterSystemIdentifier() {
    skipWhitespace();
    if (endDoctypeAtEnd()) {
        return false;
    }
    if (skipInternalSubset()) {
        return !endDoctypeAtEnd();
    }
    report(ParseErrorCode::unexpectedCharacterAfterDoctypeSystemIdentifier, _at);
    return true;
}

bool Tokeniser::readQuotedIdentifier(std::string_view& identifier, ParseErrorCode abrupt) {
    const char quote = *_at;
    _run.begin(++_at);
    for (; *_at != quote && *_at != '>' && _at != _end; ++_at) {
        if (*_at == '\0') {
            report(ParseErrorCode::unexpectedNullCharacter, _at);
            _run.replace(_at, _at + 1, replacementCharacter);
        }
    }
    identifier = _run.end(_at);
    if (*_at == quote) {
        ++_at;
        return true;
    }
    if (*_at == '>') {
        report(abrupt, _at);
        _token.forcesQuirks = true;
    }
    return !endDoctypeAtEnd();
}

void Tokeniser::skipBogusDoctype() {
    for (; *_at != '>' && _at != _end; ++_at) {
        if (*_at == '\0') {
            report(ParseErrorCode::unexpectedNullCharacter, _at);
        }
    }
    if (_at != _end) {
        ++_at;
    }
}

/// At the `[` of an internal subset, passes it if it is whole and the declaration ends behind it.
/// Tried once in a text: a text has one such declaration, and a flood of broken ones must not be searched to the end each.
bool Tokeniser::skipInternalSubset() {
    if (!_allowsInternalSubset || *_at != '[') {
        return false;
    }
    _allowsInternalSubset = false;
    const std::string_view rest(_at, remaining());
    std::size_t at = 1;
    while (at < rest.size() && rest[at] != ']') {
        std::size_t end = at;
        if (rest.substr(at).starts_with("<!--")) {
            end = rest.find("-->", at + 4);
        } else if (rest.substr(at).starts_with("<?")) {
            end = rest.find("?>", at + 2);
        } else if (rest.substr(at).starts_with("<!")) {
            end = rest.find_first_of("\"'>", at);
            while (end != std::string_view::npos && rest[end] != '>') {
                end = rest.find(rest[end], end + 1);
                end = end == std::string_view::npos ? end : rest.find_first_of("\"'>", end + 1);
            }
        } else if (rest[at] == '%') {
            end = rest.find(';', at);
        } else if (!isAsciiWhitespace(rest[at])) {
            return false;
        }
        if (end == std::string_view::npos) {
            return false;
        }
        at = rest[end] == '-' ? end + 3 : rest[end] == '?' ? end + 2 : end + 1;
    }
    const std::size_t closing = rest.find_first_not_of(" \t\n\f\r", at + 1);
    if (at >= rest.size() || closing == std::string_view::npos || rest[closing] != '>') {
        return false;
    }
    _at += closing;
    return true;
}

} // namespace brindle::html
