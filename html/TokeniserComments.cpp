#include <cstring>

#include "html/AsciiText.hpp"
#include "html/ByteBlock.hpp"
#include "html/Tokeniser.hpp"
#include "html/Utf8.hpp"

// Comments and what else begins with an exclamation mark: sections 13.2.5.41 to 13.2.5.52 of the HTML standard.

namespace brindle::html {

/// Behind `<!`.
void Tokeniser::readMarkupDeclaration() {
    constexpr std::string_view doctype = "doctype";
    constexpr std::string_view cdata = "[CDATA[";
    const std::string_view rest(_at, remaining());
    if (rest.starts_with("--")) {
        _at += 2;
        return readComment();
    }
    if (startsWithIgnoringCase(doctype)) {
        _at += doctype.size();
        return readDoctype();
    }
    if (!rest.starts_with(cdata)) {
        report(ParseErrorCode::incorrectlyOpenedComment, _at);
        return readBogusComment(_at, Token::CommentKind::exclamationMark);
    }
    if (_allowsCdata) {
        _at += cdata.size();
        _run.begin(_at);
        return readCdataSection();
    }
    report(ParseErrorCode::cdataInHtmlContent, _at + cdata.size() - 1);
    readBogusComment(_at, Token::CommentKind::exclamationMark);
}

/// Behind `<!--`. The states of the standard come down to looking back from each `>`.
void Tokeniser::readComment() {
    const char* const start = _at;
    const std::string_view rest(start, remaining());
    const std::size_t abrupt = rest.starts_with('>') ? 1 : rest.starts_with("->") ? 2 : 0;
    if (abrupt != 0) {
        _at += abrupt;
        report(ParseErrorCode::abruptClosingOfEmptyComment, _at - 1);
        return emitComment(start, start, Token::CommentKind::comment);
    }
    for (const char* at = findAny<'>'>(start, _end); at != _end; at = findAny<'>'>(at + 1, _end)) {
        const std::string_view before(start, static_cast<std::size_t>(at - start));
        const std::size_t closing = before.ends_with("--") ? 2 : before.ends_with("--!") ? 3 : 0;
        if (closing == 0) {
            continue;
        }
        if (closing == 3) {
            report(ParseErrorCode::incorrectlyClosedComment, at);
        }
        _at = at + 1;
        reportNestedComments(start, at);
        return emitComment(start, at - closing, Token::CommentKind::comment);
    }
    report(ParseErrorCode::eofInComment, _end);
    reportNestedComments(start, _end);
    const std::size_t closing = rest.ends_with("--!") ? 3 : rest.ends_with("--") ? 2 : rest.ends_with('-') ? 1 : 0;
    _at = _end;
    emitComment(start, _end - closing, Token::CommentKind::comment);
}

/// Reports each `<!--` of the comment whose `>` is at `to`, but for one whose dashes belong to the end.
void Tokeniser::reportNestedComments(const char* from, const char* to) {
    constexpr std::string_view opener = "<!--";
    if (_errors->isFull()) {
        return;
    }
    const std::string_view text(from, static_cast<std::size_t>(to - from));
    for (std::size_t at = text.find(opener); at != std::string_view::npos; at = text.find(opener, at + opener.size())) {
        if (at + opener.size() < text.size()) {
            report(ParseErrorCode::nestedComment, from + at + opener.size());
        }
    }
}

/// `from` is where the text of the comment begins.
void Tokeniser::readBogusComment(const char* from, Token::CommentKind kind) {
    const char* const end = findAny<'>'>(from, _end);
    _at = end == _end ? end : end + 1;
    emitComment(from, end, kind);
}

void Tokeniser::emitComment(const char* from, const char* to, Token::CommentKind kind) {
    _token.kind = Token::Kind::comment;
    _token.commentKind = kind;
    _token.data = withoutNulls(from, to);
}

std::string_view Tokeniser::withoutNulls(const char* from, const char* to) {
    _run.begin(from);
    for (const char* at = findAny<'\0'>(from, to); at != to; at = findAny<'\0'>(at + 1, to)) {
        report(ParseErrorCode::unexpectedNullCharacter, at);
        _run.replace(at, at + 1, replacementCharacter);
    }
    return _run.end(to);
}

} // namespace brindle::html
