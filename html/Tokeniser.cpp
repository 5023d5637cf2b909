#include "html/Tokeniser.hpp"

#include <cstring>

#include "html/AsciiText.hpp"
#include "html/ByteBlock.hpp"
#include "html/Utf8.hpp"

namespace brindle::html {

Tokeniser::Tokeniser(const std::string& text, Arena& arena, ParseErrorList& errors, ParseSettings settings)
    : _begin(text.data()), _end(text.data() + text.size()), _at(_begin), _settings(settings), _arena(&arena), _errors(&errors),
      _run(arena) {}

const Token& Tokeniser::next() {
    do {
        _token.restart();
        _run.begin(_at);
        readInState();
        // An empty CDATA section comes to nothing.
    } while (_token.kind == Token::Kind::text && _token.data.empty());
    return _token;
}

void Tokeniser::readInState() {
    switch (_state) {
    case State::data:
        return readData();
    case State::rcdata:
        return readRcdata();
    case State::rawtext:
        return readRawtext();
    case State::scriptData:
        return readScriptData();
    case State::plaintext:
        return readPlaintext();
    case State::cdataSection:
        return readCdataSection();
    }
}

void Tokeniser::readData() {
    for (;;) {
        _at = findAny<'<', '&', '\0'>(_at, _end);
        if (_at == _end) {
            return emitTextOrEndOfFile();
        }
        if (*_at == '&') {
            readReference(false);
        } else if (*_at == '\0') {
            report(ParseErrorCode::unexpectedNullCharacter, _at);
            _token.containsNull = true;
            ++_at;
        } else if (!passLiteralLessThan()) {
            if (!_run.isEmptyAt(_at)) {
                return emitText(_at);
            }
            return readMarkup();
        }
    }
}

/// At a `<` that opens nothing, passes it and tells so.
bool Tokeniser::passLiteralLessThan() {
    const char* const next = _at + 1;
    if (isAsciiAlpha(*next) || *next == '!' || *next == '?') {
        return false;
    }
    if (*next != '/') {
        report(next == _end ? ParseErrorCode::eofBeforeTagName : ParseErrorCode::invalidFirstCharacterOfTagName, next);
        _at = next;
        return true;
    }
    const char* const name = next + 1;
    if (*name == '>') {
        report(ParseErrorCode::missingEndTagName, name);
        _run.replace(_at, name + 1, {});
        _at = name + 1;
        return true;
    }
    if (name == _end) {
        report(ParseErrorCode::eofBeforeTagName, name);
        _at = name;
        return true;
    }
    return false;
}

/// At a `<` that opens something.
void Tokeniser::readMarkup() {
    const char* const next = _at + 1;
    if (*next == '!') {
        _at = next + 1;
        readMarkupDeclaration();
    } else if (*next == '?') {
        report(ParseErrorCode::unexpectedQuestionMarkInsteadOfTagName, next);
        readBogusComment(next, Token::CommentKind::questionMark);
    } else if (*next != '/') {
        _at = next;
        readStartTag();
    } else if (isAsciiAlpha(next[1])) {
        _at = next + 1;
        readEndTag();
    } else {
        report(ParseErrorCode::invalidFirstCharacterOfTagName, next + 1);
        readBogusComment(next + 1, Token::CommentKind::solidus);
    }
}

void Tokeniser::readRcdata() {
    for (;;) {
        _at = findAny<'<', '&', '\0'>(_at, _end);
        if (_at == _end) {
            return emitTextOrEndOfFile();
        }
        if (*_at == '&') {
            readReference(false);
        } else if (*_at == '\0') {
            replaceNull();
        } else if (endsTextHere()) {
            return endText();
        } else {
            ++_at;
        }
    }
}

void Tokeniser::readRawtext() {
    for (;;) {
        _at = findAny<'<', '\0'>(_at, _end);
        if (_at == _end) {
            return emitTextOrEndOfFile();
        }
        if (*_at == '\0') {
            replaceNull();
        } else if (endsTextHere()) {
            return endText();
        } else {
            ++_at;
        }
    }
}

void Tokeniser::readPlaintext() {
    for (;;) {
        _at = findAny<'\0'>(_at, _end);
        if (_at == _end) {
            return emitTextOrEndOfFile();
        }
        replaceNull();
    }
}

void Tokeniser::readCdataSection() {
    constexpr std::string_view closing = "]]>";
    const std::string_view rest(_at, remaining());
    const std::size_t length = rest.find(closing);
    const char* const end = length == std::string_view::npos ? _end : _at + length;
    _token.isCdata = true;
    _token.containsNull = std::memchr(_at, '\0', static_cast<std::size_t>(end - _at)) != nullptr;
    if (end == _end) {
        report(ParseErrorCode::eofInCdata, _end);
        _at = _end;
        _state = State::data;
        return emitTextOrEndOfFile();
    }
    _at = end + closing.size();
    _state = State::data;
    emitText(end);
}

/// Whether the `<` here opens the end tag that the text waits for.
bool Tokeniser::endsTextHere() const noexcept {
    const std::size_t length = _lastStartTag.size();
    if (length == 0 || _at[1] != '/' || remaining() < length + 3) {
        return false;
    }
    const char behind = _at[2 + length];
    return equalsIgnoringAsciiCase({_at + 2, length}, _lastStartTag) && (isAsciiWhitespace(behind) || behind == '/' || behind == '>');
}

/// At the end tag that the text waited for: first the text before it, and with the next call the tag.
void Tokeniser::endText() {
    if (!_run.isEmptyAt(_at)) {
        return emitText(_at);
    }
    _state = State::data;
    _at += 2;
    readEndTag();
}

void Tokeniser::replaceNull() {
    report(ParseErrorCode::unexpectedNullCharacter, _at);
    _run.replace(_at, _at + 1, replacementCharacter);
    ++_at;
}

void Tokeniser::emitText(const char* end) {
    _token.kind = Token::Kind::text;
    _token.data = _run.end(end);
}

void Tokeniser::emitTextOrEndOfFile() {
    if (_run.isEmptyAt(_at)) {
        emitEndOfFile();
    } else {
        emitText(_at);
    }
}

void Tokeniser::emitEndOfFile() {
    _token.kind = Token::Kind::endOfFile;
    _at = _end;
}

void Tokeniser::skipWhitespace() noexcept {
    while (isAsciiWhitespace(*_at)) {
        ++_at;
    }
}

bool Tokeniser::startsWithIgnoringCase(std::string_view lowered) const noexcept {
    return remaining() >= lowered.size() && equalsIgnoringAsciiCase({_at, lowered.size()}, lowered);
}

} // namespace brindle::html
