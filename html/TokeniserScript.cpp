#include "html/AsciiText.hpp"
#include "html/ByteBlock.hpp"
#include "html/Tokeniser.hpp"

// Script data with its escaped and double escaped states: sections 13.2.5.4 and 13.2.5.15 to 13.2.5.31 of the HTML standard.

namespace brindle::html {

void Tokeniser::readScriptData() {
    ScriptEscape escape = ScriptEscape::none;
    // The text of a script comes as one run, so no escape lasts from one call to the next.
    for (;;) {
        _at = escape == ScriptEscape::none ? findAny<'<', '\0'>(_at, _end) : findAny<'<', '>', '\0'>(_at, _end);
        if (_at == _end) {
            if (escape != ScriptEscape::none) {
                report(ParseErrorCode::eofInScriptHtmlCommentLikeText, _end);
            }
            return emitTextOrEndOfFile();
        }
        if (*_at == '\0') {
            replaceNull();
        } else if (*_at == '>') {
            // The dashes that opened the escape may close it as well, and nothing else can stand before it as "--".
            if (std::string_view(_at - 2, 2) == "--") {
                escape = ScriptEscape::none;
            }
            ++_at;
        } else if (escape != ScriptEscape::doublyEscaped && endsTextHere()) {
            return endText();
        } else {
            passScriptLessThan(escape);
        }
    }
}

/// At a `<` that does not end the script.
void Tokeniser::passScriptLessThan(ScriptEscape& escape) {
    constexpr std::string_view commentOpener = "<!--";
    switch (escape) {
    case ScriptEscape::none:
        if (std::string_view(_at, remaining()).starts_with(commentOpener)) {
            _at += commentOpener.size();
            escape = ScriptEscape::escaped;
        } else {
            ++_at;
        }
        break;
    case ScriptEscape::escaped:
        ++_at;
        if (passScriptKeyword()) {
            escape = ScriptEscape::doublyEscaped;
        }
        break;
    case ScriptEscape::doublyEscaped:
        ++_at;
        if (*_at == '/') {
            ++_at;
            if (passScriptKeyword()) {
                escape = ScriptEscape::escaped;
            }
        }
        break;
    }
}

/// Passes "script" and the character that ends it, if they are here.
bool Tokeniser::passScriptKeyword() noexcept {
    constexpr std::string_view keyword = "script";
    if (!startsWithIgnoringCase(keyword)) {
        return false;
    }
    const char behind = _at[keyword.size()];
    if (!isAsciiWhitespace(behind) && behind != '/' && behind != '>') {
        return false;
    }
    _at += keyword.size() + 1;
    return true;
}

} // namespace brindle::html
