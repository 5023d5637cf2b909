#include <array>

#include "html/AsciiText.hpp"
#include "html/ByteBlock.hpp"
#include "html/Tokeniser.hpp"
#include "html/Utf8.hpp"

// Tags and attributes: sections 13.2.5.6 to 13.2.5.8 and 13.2.5.32 to 13.2.5.40 of the HTML standard.

namespace brindle::html {

namespace {

/// Whether a byte needs a look while a name or value is read.
using ByteSet = std::array<bool, 256>;

constexpr ByteSet byteSet(std::string_view bytes, bool withUpper) {
    ByteSet set{};
    for (const char byte : bytes) {
        set[static_cast<unsigned char>(byte)] = true;
    }
    for (char upper = 'A'; withUpper && upper <= 'Z'; ++upper) {
        set[static_cast<unsigned char>(upper)] = true;
    }
    return set;
}

using namespace std::string_view_literals;

constexpr ByteSet tagNameStops = byteSet("\t\n\f\r />\0"sv, false);
constexpr ByteSet foldedTagNameStops = byteSet("\t\n\f\r />\0"sv, true);
constexpr ByteSet attributeNameStops = byteSet("\t\n\f\r />=\"'<\0"sv, false);
constexpr ByteSet foldedAttributeNameStops = byteSet("\t\n\f\r />=\"'<\0"sv, true);
constexpr ByteSet unquotedValueStops = byteSet("\t\n\f\r >&\"'<=`\0"sv, false);

const char* pass(const char* from, const ByteSet& stops) noexcept {
    while (!stops[static_cast<unsigned char>(*from)]) {
        ++from;
    }
    return from;
}

constexpr std::array<std::string_view, 26> lowerLetters = {
    "a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z"};

std::string_view lowerLetterFor(char upper) noexcept {
    return lowerLetters[static_cast<std::size_t>(upper - 'A')];
}

} // namespace

void Tokeniser::readStartTag() {
    if (readTag()) {
        _token.kind = Token::Kind::startTag;
        _token.attributes = _attributes.attributes();
        _lastStartTag = _token.name;
    }
}

void Tokeniser::readEndTag() {
    if (!readTag()) {
        return;
    }
    _token.kind = Token::Kind::endTag;
    if (!_attributes.attributes().empty()) {
        report(ParseErrorCode::endTagWithAttributes, _at - 1);
    }
    if (_token.isSelfClosing) {
        report(ParseErrorCode::endTagWithTrailingSolidus, _at - 1);
        _token.isSelfClosing = false;
    }
}

/// At the name of a tag. False at the end of the text, which then is the token.
bool Tokeniser::readTag() {
    _attributes.clear();
    _token.name = readTagName();
    for (;;) {
        skipWhitespace();
        if (*_at == '>') {
            ++_at;
            return true;
        }
        if (_at == _end) {
            report(ParseErrorCode::eofInTag, _end);
            emitEndOfFile();
            return false;
        }
        if (*_at != '/') {
            readAttribute();
        } else if (*++_at == '>') {
            ++_at;
            _token.isSelfClosing = true;
            return true;
        } else if (_at != _end) {
            report(ParseErrorCode::unexpectedSolidusInTag, _at);
        }
    }
}

std::string_view Tokeniser::readTagName() {
    const ByteSet& stops = _settings.preserveTagCase ? tagNameStops : foldedTagNameStops;
    _run.begin(_at);
    for (;;) {
        _at = pass(_at, stops);
        if (isAsciiUpper(*_at)) {
            _run.replace(_at, _at + 1, lowerLetterFor(*_at));
            ++_at;
        } else if (*_at == '\0' && _at != _end) {
            replaceNull();
        } else {
            return _run.end(_at);
        }
    }
}

void Tokeniser::readAttribute() {
    const std::string_view key = readAttributeName();
    const bool isNew = _attributes.isNew(key);
    if (!isNew) {
        report(ParseErrorCode::duplicateAttribute, _at);
    }
    skipWhitespace();
    std::string_view value;
    if (*_at == '=') {
        ++_at;
        value = readAttributeValue();
    }
    if (isNew) {
        _attributes.add(key, value);
    }
}

std::string_view Tokeniser::readAttributeName() {
    const ByteSet& stops = _settings.preserveAttributeCase ? attributeNameStops : foldedAttributeNameStops;
    _run.begin(_at);
    if (*_at == '=') {
        report(ParseErrorCode::unexpectedEqualsSignBeforeAttributeName, _at);
        ++_at;
    }
    for (;;) {
        _at = pass(_at, stops);
        switch (*_at) {
        case '"':
        case '\'':
        case '<':
            report(ParseErrorCode::unexpectedCharacterInAttributeName, _at);
            ++_at;
            break;
        case '\0':
            if (_at == _end) {
                return _run.end(_at);
            }
            replaceNull();
            break;
        default:
            if (!isAsciiUpper(*_at)) {
                return _run.end(_at);
            }
            _run.replace(_at, _at + 1, lowerLetterFor(*_at));
            ++_at;
        }
    }
}

/// Behind the equals sign.
std::string_view Tokeniser::readAttributeValue() {
    skipWhitespace();
    if (*_at == '"' || *_at == '\'') {
        return readQuotedValue(*_at);
    }
    if (*_at == '>') {
        report(ParseErrorCode::missingAttributeValue, _at);
        return {};
    }
    return readUnquotedValue();
}

std::string_view Tokeniser::readQuotedValue(char quote) {
    _run.begin(++_at);
    for (;;) {
        _at = quote == '"' ? findAny<'"', '&', '\0'>(_at, _end) : findAny<'\'', '&', '\0'>(_at, _end);
        if (_at == _end) {
            return _run.end(_at);
        }
        if (*_at == '&') {
            readReference(true);
        } else if (*_at == '\0') {
            replaceNull();
        } else {
            break;
        }
    }
    const std::string_view value = _run.end(_at);
    ++_at;
    if (!isAsciiWhitespace(*_at) && *_at != '/' && *_at != '>' && _at != _end) {
        report(ParseErrorCode::missingWhitespaceBetweenAttributes, _at);
    }
    return value;
}

std::string_view Tokeniser::readUnquotedValue() {
    _run.begin(_at);
    for (;;) {
        _at = pass(_at, unquotedValueStops);
        switch (*_at) {
        case '&':
            readReference(true);
            break;
        case '"':
        case '\'':
        case '<':
        case '=':
        case '`':
            report(ParseErrorCode::unexpectedCharacterInUnquotedAttributeValue, _at);
            ++_at;
            break;
        case '\0':
            if (_at == _end) {
                return _run.end(_at);
            }
            replaceNull();
            break;
        default:
            return _run.end(_at);
        }
    }
}

} // namespace brindle::html
